// SPDX-License-Identifier: MIT
#include "model/replace_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

namespace fs = std::filesystem;

void WriteNew(std::ostream& out) {
    out << "new\r\n";
}

int FilesIn(const fs::path& folder) {
    return static_cast<int>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(ReplaceFile, MakesOrReplacesTheFileAndKeepsItsPermissions) {
    const TempFolder folder;
    ReplaceFile("made.txt", WriteNew);
    EXPECT_EQ(folder.Read("made.txt"), "new\r\n");
    const fs::path old = folder.Write("old.txt", "a long old content\n");
    const auto rights = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(old, rights);
    ReplaceFile(old.string(), WriteNew);
    EXPECT_EQ(folder.Read("old.txt"), "new\r\n");
    EXPECT_EQ(fs::status(old).permissions(), rights);
    EXPECT_EQ(FilesIn("."), 2);
}

TEST(ReplaceFile, AFailureInTheMiddleKeepsTheOldFileAndLeavesNothingBeside) {
    const TempFolder folder;
    folder.Write("old.txt", "old");
    EXPECT_THROW(ReplaceFile("old.txt",
                             [](std::ostream& out) {
                                 out << "half";
                                 throw FileError("source: gone");
                             }),
                 FileError);
    EXPECT_THROW(ReplaceFile("old.txt", [](std::ostream& out) { out.setstate(std::ios::badbit); }), FileError);
    EXPECT_EQ(folder.Read("old.txt"), "old");
    EXPECT_EQ(FilesIn("."), 1);
}

TEST(ReplaceFile, FollowsLinksAlsoToAFileThatIsNotThereYet) {
    const TempFolder folder;
    fs::create_directory("sub");
    fs::create_symlink("real.txt", "sub/second");
    fs::create_symlink("sub/second", "first");
    ReplaceFile("first", WriteNew);
    EXPECT_EQ(folder.Read("sub/real.txt"), "new\r\n");
    EXPECT_TRUE(fs::is_symlink("first"));
    fs::create_symlink("round", "round");
    EXPECT_THROW(ReplaceFile("round", WriteNew), FileError);
}

TEST(ReplaceFile, RefusesWhatIsNoPlainFileAndNamesTheReason) {
    const TempFolder folder;
    fs::create_directory("sub");
    EXPECT_THROW(ReplaceFile("sub", WriteNew), FileError);
    EXPECT_THROW(ReplaceFile("/dev/full", WriteNew), FileError);
    try {
        ReplaceFile("missing/new.txt", WriteNew);
        ADD_FAILURE() << "a missing folder was accepted";
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), "missing/new.txt: No such file or directory");
    }
    EXPECT_EQ(FilesIn("."), 1);
}

}  // namespace
}  // namespace tidewalk::test
