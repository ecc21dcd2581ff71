// SPDX-License-Identifier: MIT
#include "model/replace_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "model/file_error.h"
#include "model/system_file.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

namespace fs = std::filesystem;

void WriteNew(std::ostream& out) {
    out << "new\r\n";
}

std::string Replaced(const std::string& path, const std::function<void(std::ostream&)>& write = WriteNew) {
    return Refusal([&] { ReplaceFile(path, write); });
}

TEST(ReplaceFile, MakesOrReplacesTheFileAndKeepsItsPermissions) {
    const TempFolder folder;
    ReplaceFile("made.txt", WriteNew);
    EXPECT_EQ(folder.Read("made.txt"), "new\r\n");
    const fs::path old = folder.Write("old.txt", "a long old content\n");
    EXPECT_EQ(fs::status("made.txt").permissions(), fs::status(old).permissions()) << "the usual ones";
    const auto rights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_exec;
    fs::permissions(old, rights);
    ReplaceFile(old.string(), WriteNew);
    EXPECT_EQ(folder.Read("old.txt"), "new\r\n");
    EXPECT_EQ(fs::status(old).permissions(), rights);
    EXPECT_EQ(folder.Entries(), 2);
}

TEST(ReplaceFile, AFailureInTheMiddleKeepsTheOldFileAndLeavesNothingBeside) {
    const TempFolder folder;
    folder.Write("old.txt", "old");
    EXPECT_EQ(Replaced("old.txt",
                       [](std::ostream& out) {
                           out << "half";
                           throw FileError("source: gone");
                       }),
              "source: gone");
    EXPECT_EQ(Replaced("old.txt", [](std::ostream& out) { out.setstate(std::ios::badbit); }),
              "old.txt: Input/output error");
    EXPECT_EQ(folder.Read("old.txt"), "old");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, TakesAwayWhatWasLeftBesideButNotWhatIsStillWritten) {
    const TempFolder folder;
    folder.Write("a.new1", "another's");
    for (int i = 2; i <= 100; ++i)
        folder.Write("a.new" + std::to_string(i), "left by one that was killed");
    auto other = SystemFile::Open("a.new1", SystemFile::Mode::Change);
    ASSERT_TRUE(other && other->TryLock());
    ReplaceFile("a", WriteNew);
    EXPECT_EQ(folder.Read("a") + folder.Read("a.new1"), "new\r\nanother's");
    folder.Write("b.new3", "left behind two that have just ended");
    ReplaceFile("b", WriteNew);
    EXPECT_EQ(folder.Entries(), 3);
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
    EXPECT_EQ(Replaced("round"), "round: Too many levels of symbolic links");
}

TEST(ReplaceFile, RefusesWhatIsNoPlainFileAndNamesTheReason) {
    const TempFolder folder;
    fs::create_directory("sub");
    EXPECT_EQ(Replaced("sub"), "sub: Is a directory");
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    EXPECT_EQ(Replaced("pipe"), "pipe: Invalid argument");
    EXPECT_EQ(Replaced("missing/new.txt"), "missing/new.txt: No such file or directory");
    EXPECT_EQ(folder.Entries(), 2);
}

}  // namespace
}  // namespace tidewalk::test
