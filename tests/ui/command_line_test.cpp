// SPDX-License-Identifier: MIT
#include "ui/command_line.h"

#include <gtest/gtest.h>

#include <QDir>

namespace tidewalk::test {
namespace {

using Wish = CommandLine::Wish;

TEST(CommandLine, PathsAreMadeAbsolute) {
    const CommandLine line = ParseCommandLine(
        {"tidewalk", "--folder", "here", "--screenshot=a.png", "--seed", "7", "-platform", "offscreen", "x.tdw", "12"});
    EXPECT_EQ(line.wish, Wish::Run);
    EXPECT_EQ(line.folder, QDir::current().filePath("here"));
    EXPECT_EQ(line.screenshot, QDir::current().filePath("a.png"));
    EXPECT_EQ(line.collection, QDir::current().filePath("x.tdw"));
    EXPECT_EQ(line.seed, 7U);
    EXPECT_EQ(line.puzzleNumber, 12);
    EXPECT_TRUE(line.namesPlatform);
}

TEST(CommandLine, WrongUsageIsToldApart) {
    for (const QStringList& arguments : {QStringList{"--nosuch"},
                                         {"--folder"},
                                         {"--folder="},
                                         {"--seed", "x"},
                                         {"--seed", "-1"},
                                         {"a", "b"},
                                         {"a", "0"},
                                         {"a", "-3"},
                                         {"a", "1", "2"},
                                         {""}}) {
        EXPECT_EQ(ParseCommandLine(QStringList{"tidewalk"} + arguments).wish, Wish::Wrong)
            << arguments.join(' ').toStdString();
    }
    EXPECT_EQ(ParseCommandLine({"tidewalk", "--help"}).wish, Wish::Help);
    EXPECT_EQ(ParseCommandLine({"tidewalk", "--version"}).wish, Wish::Version);
    EXPECT_EQ(ParseCommandLine({"tidewalk"}).wish, Wish::Run);
}

}  // namespace
}  // namespace tidewalk::test
