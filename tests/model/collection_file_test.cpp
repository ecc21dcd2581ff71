// SPDX-License-Identifier: MIT
// Files: collections with their lines and records, the older layout, and how a file is replaced.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "model/collection_file.h"
#include "model/convert_layout.h"
#include "model/file_error.h"
#include "model/line_index.h"
#include "model/line_reader.h"
#include "model/replace_file.h"
#include "model/system_file.h"
#include "support/board_text.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";

/// All lines of a file that holds `bytes`, an end shown as "|".
std::string LinesOf(const std::string& bytes) {
    const TempFolder folder;
    LineReader lines(folder.Write("a", bytes));
    std::string all;
    for (std::string line; lines.Next(line);)
        all += line + (lines.LineEnded() ? "|" : "");
    EXPECT_EQ(lines.Position(), bytes.size());
    return all;
}

TEST(LineReader, TakesBothEndsAndALastLineWithoutOne) {
    EXPECT_EQ(LinesOf("1\r\n2\n\n4"), "1|2||4");
    EXPECT_EQ(LinesOf("a\rb\r\r\n"), "a\rb\r|") << "only the CR of the end goes";
    EXPECT_EQ(LinesOf(kByteOrderMark), "");
    EXPECT_EQ(LinesOf("\xEF\xBB"), "\xEF\xBB") << "a part of a byte order mark is none";
    const std::string mark = kByteOrderMark;
    EXPECT_EQ(LinesOf(mark + "1\n" + mark + "2"), "1|" + mark + "2");
}

TEST(LineReader, LinesMayBeLongerThanWhatIsReadAtATime) {
    const std::string longLine(300000, 'x');
    EXPECT_EQ(LinesOf(longLine + "\r\n" + longLine + "\n3"), longLine + "|" + longLine + "|3");
    for (const std::size_t length : {131071, 131070, 131072})
        EXPECT_EQ(LinesOf(std::string(length, 'x') + "\r\ny\r\n"), std::string(length, 'x') + "|y|");
    const TempFolder folder;
    LineReader lines(folder.Write("a", longLine + "\nshort\nnext"));
    std::string line;
    EXPECT_TRUE(lines.Next(line, 200000));
    EXPECT_EQ(line.size(), 200000U);
    EXPECT_TRUE(lines.Skip());
    EXPECT_EQ(lines.Position(), 300007U);
    EXPECT_TRUE(lines.Skip());
    EXPECT_FALSE(lines.Skip());
    EXPECT_FALSE(lines.Next(line));
    EXPECT_EQ(line, "");
}

TEST(LineReader, ReadsWhatIsTypedAndRefusesWhatHasNoEnd) {
    std::istringstream typed("1 one\n2 two");
    LineReader lines(*typed.rdbuf(), "standard input");
    std::string line;
    EXPECT_TRUE(lines.Next(line) && lines.Next(line));
    EXPECT_EQ(line, "2 two");
    const TempFolder folder;
    const std::string path = folder.Write("huge", "7,7,0");
    std::error_code error;
    std::filesystem::resize_file(path, std::uintmax_t{1} << 36U, error);
    if (error) GTEST_SKIP() << "no room for a sparse file: " << error.message();
    EXPECT_THROW(LineReader(path).Next(line), FileError) << "it would fill the memory";
    EXPECT_LT(line.size(), kLongestLine + 1000000);
    EXPECT_FALSE(ReadPuzzle(path, 1));
}

TEST(Collection, CountsItsLinesAndGivesTheirPuzzles) {
    const TempFolder folder;
    const std::string path = folder.Write("a", kByteOrderMark + Record({"1-1"}) + "\r\nno record\n" + Record({"2=2"}));
    EXPECT_EQ(CountLines(path), 3);
    LineIndex index;
    EXPECT_EQ(LastPuzzleUpTo(index, path, 2) * 10 + LastPuzzleUpTo(index, path, 99), 13);
    EXPECT_EQ(LastPuzzleUpTo(index, folder.Path("missing"), 1), 0);
    EXPECT_EQ(CountLines(folder.Path("missing")) + CountLines(folder.Path("")), 0);
    EXPECT_EQ(ReadPuzzle(path, 1), PuzzleFrom({"1-1"}));
    EXPECT_EQ(ReadPuzzle(path, 3), PuzzleFrom({"2=2"}));
    for (const int number : {-1, 0, 2, 4})
        EXPECT_FALSE(ReadPuzzle(path, number)) << number;
    EXPECT_FALSE(ReadPuzzle(folder.Path(""), 1));
    std::string line;
    EXPECT_THROW(ReadCollectionLine("missing", 1, line), FileError);
}

TEST(Collection, TakesRecordsAtItsEnd) {
    const TempFolder folder;
    AppendRecord("made", "1");
    AppendRecord("made", "2");
    EXPECT_EQ(folder.Read("made"), "1\r\n2\r\n");
    const Puzzle puzzle = PuzzleFrom({"1-1"});
    WritePuzzleRecord("made", puzzle, WriteMode::Append);
    EXPECT_EQ(ReadPuzzle("made", 3), puzzle);
    WritePuzzleRecord("made", puzzle, WriteMode::Replace);
    EXPECT_EQ(folder.Read("made"), " 1, 3, 1;D;1-1,\r\n");
}

TEST(Collection, LosesOneLineThroughAWorkFile) {
    const TempFolder folder;
    folder.Write("a", "1\r\n2\n3");
    using Outcome = Deleted::Outcome;
    const auto remove = [](int number, const std::optional<std::string>& expected) {
        const Deleted deleted = DeleteLine("a", number, expected, "work");
        return std::pair(deleted.outcome, deleted.left);
    };
    EXPECT_EQ(remove(2, "other"), std::pair(Outcome::OtherLine, 3));
    EXPECT_EQ(remove(2, "2"), std::pair(Outcome::Done, 2));
    EXPECT_EQ(folder.Read("a") + folder.Read("work"), "1\r\n3\r\n1\r\n3\r\n");
    EXPECT_EQ(remove(3, std::nullopt), std::pair(Outcome::NoSuchLine, 2));
    EXPECT_EQ(remove(1, std::nullopt), std::pair(Outcome::Done, 1));
    EXPECT_EQ(remove(1, std::nullopt), std::pair(Outcome::OnlyLine, 1));
    EXPECT_EQ(folder.Read("a"), "3\r\n");
    folder.Write("work", "1\r\n2\r\n");
    EXPECT_EQ(DeleteLine("work", 1, "1", "work").left, 1) << "the work file is the collection itself";
    EXPECT_EQ(folder.Read("work"), "2\r\n");
    const std::string torn = " 7, 7, 3;D;1..,";
    std::filesystem::create_directory("sub");
    for (const char* workFile : {"sub", "no/folder"}) {
        folder.Write("a", "1\r\n2\r\n" + torn);
        EXPECT_EQ(DeleteLine("a", 1, "1", workFile).left, 2) << "a work file that cannot be is no reason";
        EXPECT_EQ(folder.Read("a"), "2\r\n" + torn) << "and what an append takes off stays at the end";
    }
}

TEST(Collection, SaysWhatCannotBeReadOrWrittenAndKeepsTheOldFile) {
    const TempFolder folder;
    folder.Write("old", "1\r\n2\r\n");
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    std::filesystem::create_directory("sub");
    // Faulty code that takes the file away takes the link and not the device.
    std::filesystem::create_symlink("/dev/full", "full");
    EXPECT_EQ(Refusal([] { AppendRecord("pipe", "2"); }), "pipe: Invalid argument") << "nobody waits at its other end";
    EXPECT_EQ(Refusal([] { AppendRecord("no/folder", "2"); }), "no/folder: No such file or directory");
    EXPECT_EQ(Refusal([] { AppendRecord("full", "2"); }), "full: No space left on device");
    EXPECT_EQ(Refusal([] { DeleteLine("sub", 1, "1", "work"); }), "sub: Is a directory");
    EXPECT_EQ(Refusal([] { ConvertCollection("pipe", "new"); }), "pipe: Invalid argument");
    EXPECT_EQ(Refusal([] { ConvertCollection("old", "sub"); }), "sub: Is a directory");
    EXPECT_EQ(Refusal([] { ConvertCollection("old", "no/folder"); }), "no/folder: No such file or directory");
    folder.Write("layout", "#0\r\nD\r\n7,7,3\r\n1.\r\n#1\r\n");
    EXPECT_EQ(Refusal([] { ConvertCollection("layout", "pipe"); }), "pipe: Invalid argument");
    {
        const NoSpace nothing;
        EXPECT_EQ(Refusal([] { WritePuzzleRecord("old", PuzzleFrom({"1-1"}), WriteMode::Replace); }),
                  "old: File too large");
        EXPECT_EQ(Refusal([] { AppendRecord("old", "a longer one"); }), "old: File too large");
    }
    EXPECT_EQ(folder.Read("old"), "1\r\n2\r\n") << "what was begun is cut back";
}

TEST(Collection, TakesOnlyATornRecordOffItsEnd) {
    const TempFolder folder;
    const auto appended = [&](const std::string& before) {
        folder.Write("a", before);
        const Appended result = AppendRecord("a", "new", Numbering::Count);
        return std::string(result.cutTail ? "cut " : "") + std::to_string(result.number) + ": " + folder.Read("a");
    };
    const std::string record = " 2, 3, 1;D;1-1,...,";
    for (std::size_t length = 1; length < record.size(); ++length)
        EXPECT_EQ(appended("x\r\n" + record.substr(0, length)), "cut 2: x\r\nnew\r\n") << length;
    for (const char* torn : {" 7", " 10, 25, 1000;D;1"})
        EXPECT_EQ(appended(torn), "cut 1: new\r\n");
    EXPECT_EQ(appended(std::string(kLongestRecord, 'x') + "\r\n 7").substr(0, 6), "cut 2:");
    EXPECT_EQ(appended("x\r\n" + record), "3: x\r\n" + record + "\r\nnew\r\n");
    EXPECT_EQ(appended(record + "\r"), "2: " + record + "\r\nnew\r\n") << "the half of a line's end";
    EXPECT_EQ(appended(" 2, 3, 1;D;1-1,\r\n"), "2:  2, 3, 1;D;1-1,\r\nnew\r\n") << "a line with its end stays";
    for (const std::string other : {"7", "2, 3, 1;D;", " 2, 3, 1;E;", " 777", "note"})
        EXPECT_EQ(appended(other), "2: " + other + "\r\nnew\r\n") << "whatever else it is";
}

TEST(Collection, IsChangedByOneAtATime) {
    const TempFolder folder;
    folder.Write("a", "0\r\n");
    {
        SystemFile locked = OpenLocked("a", SystemFile::Mode::Change, WaitOn);
        int asked = 0;
        EXPECT_EQ(Refusal([&] { AppendRecord("a", "1", Numbering::Skip, [&] { return ++asked < 3; }); }),
                  "a: another program is changing it");
        EXPECT_EQ(asked, 3);
        // The name comes to stand for another file while somebody waits.
        AppendRecord("a", "1", Numbering::Skip, [&] {
            folder.Write("b", "other\r\n");
            std::filesystem::rename("b", "a");
            locked = *SystemFile::Open("a", SystemFile::Mode::Read);
            return true;
        });
    }
    EXPECT_EQ(folder.Read("a"), "other\r\n1\r\n");
    constexpr int kEach = 20;
    std::vector<std::thread> writers;
    for (int writer = 0; writer < 4; ++writer) {
        writers.emplace_back([] {
            for (int i = 0; i < kEach; ++i) {
                AppendRecord("a", "new");
                DeleteLine("a", 1, std::nullopt, "");
            }
        });
    }
    for (std::thread& writer : writers)
        writer.join();
    EXPECT_EQ(CountLines("a"), 2) << "as many came as went";
}

TEST(ConvertLayout, TurnsEachPuzzleIntoALineAndDropsTheLast) {
    const TempFolder folder;
    const auto converted = [&](const std::string& bytes) {
        ConvertCollection(folder.Write("old.dat", bytes), "new.txt");
        return folder.Read("new.txt");
    };
    EXPECT_EQ(converted("#0\r\n Dx y\r\n 7, 7, 3\r\n1.\r\n2.\r\n#1\r\nE\r\n 8, 8, 1\r\n3\r\n4\r\nlast, never used"),
              " 7, 7, 3;D;1.,2.,\r\n 8, 8, 1;E;3,4,\r\n");
    EXPECT_EQ(converted("#0\nD\n 7, 7, 3\n1.\n#1\nE\n"), " 7, 7, 3;D;1.,\r\n") << "no header behind the last kind";
    EXPECT_EQ(converted(""), "");
    std::string rows;
    for (int row = 0; row < 1002; ++row)
        rows += std::to_string(row % 10) + "\n";
    const std::string endless = converted("#\nD\nh\n" + rows + "end");
    EXPECT_EQ(std::count(endless.begin(), endless.end(), ','), 1000);
    EXPECT_EQ(ConvertedPath("/a.b/c.dat"), "/a.b/c-newformat.txt");
    EXPECT_FALSE(IsOlderLayout("missing"));
    EXPECT_EQ(ConvertedPath("x.y/abc") + ConvertedPath("abc"), "");
}

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
