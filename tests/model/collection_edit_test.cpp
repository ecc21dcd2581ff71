// SPDX-License-Identifier: MIT
#include "model/collection_edit.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdlib>

#include "model/convert_layout.h"
#include "model/load_puzzle.h"
#include "model/paths.h"
#include "model/write_puzzle_record.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kInformation = "vbinformation+vbok";

std::string Numbered(int number) {
    return Record(
        {std::to_string(number) + "......", ".......", ".......", ".......", ".......", ".......", "......1"});
}

TEST(WritePuzzleRecord, WritesTheBytesThatItReads) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const std::string path = game.folder.Path("out.tdw");
    WritePuzzleRecord(game, path, 0);
    WritePuzzleRecord(game, path, 7);
    // The header counts the links that were found, whatever the old header told.
    const std::string record = " 7, 7, 10;D;..4===2,1.I....,|.6===3,|.I...|,|.I2..|,2-3I..|,.1-4--2,\r\n";
    EXPECT_EQ(game.folder.Read("out.tdw"), record + record);
}

TEST(WritePuzzleRecord, ShippedPuzzlesComeBackTheSame) {
    TestGame game;
    const std::string shipped = std::string(TIDEWALK_DATA_DIR) + "/puzzles.txt";
    const int count = CountLines(game, shipped);
    ASSERT_GT(count, 40);
    for (int number = 1; number <= count; ++number) {
        ASSERT_EQ(LoadPuzzle(game, shipped, number), 0);
        const std::string first = PuzzleRecord(game);
        WritePuzzleRecord(game, "one.tdw", 0);
        ASSERT_EQ(LoadPuzzle(game, "one.tdw", 1), 0);
        ASSERT_EQ(PuzzleRecord(game), first) << number;
    }
}

TEST(WritePuzzleRecord, DrawsEachLinkAsItsStateAndOrderTell) {
    TestGame game({Record({"3.2", "...", "3.2"})});
    ASSERT_EQ(game.Load(1), 0);
    game.LinkList.Append(3, 1, 1);
    game.LinkList.Append(9, 7, 0);
    game.LinkList.Append(7, 1, 0);
    game.LinkList.Append(3, 9, 2);
    game.LinkList.Append(1, 9, 1);
    EXPECT_EQ(PuzzleRecord(game), " 3, 3, 5;D;3 -2,I..,3=2,");
}

TEST(AppendPuzzle, CreatesTheFileAndMovesThere) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const std::string path = game.folder.Path("mine.tdw");
    for (const char* number : {"1", "2"}) {
        game.filePicker.Answer(path);
        game.prompts.Expect(std::string("Puzzle#") + number + " appended to file " + path, kInformation, 1);
        mnuappend_Click(game);
        EXPECT_EQ(game.CollectionPath, path);
        EXPECT_EQ(game.window.texts[Control::PuzNumNow], number);
    }
    EXPECT_EQ(game.PuzzleCount, 2);
}

TEST(AppendPuzzle, EndsALastLineThatHasNoEnd) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const std::string path = game.folder.Write("mine.tdw", kSmallPuzzle);
    game.filePicker.Answer(path);
    game.prompts.Expect("Puzzle#2 appended to file " + path, kInformation, 1);
    mnuappend_Click(game);
    EXPECT_EQ(game.Load(1), 0);
    EXPECT_EQ(game.Load(2), 0);
}

TEST(AppendPuzzle, AFailedWriteEndsWithoutAMessageBox) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    game.filePicker.Answer(game.folder.Path("no/such/folder.tdw"));
    mnuappend_Click(game);
    EXPECT_NE(game.window.texts[Control::pb].find("folder.tdw"), std::string::npos);
    EXPECT_EQ(game.window.pointer, Pointer::Default);
    EXPECT_EQ(game.Load(1), 0) << "no file is left open";
}

TEST(AppendPuzzle, PipesAreRefusedAndFullDisksTold) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    ASSERT_EQ(::mkfifo("pipe.txt", 0600), 0);
    std::filesystem::create_symlink("/dev/full", "full.txt");
    const auto refusal = [&](void (*command)(Game&), const char* name) {
        game.window.texts[Control::pb].clear();
        game.filePicker.Answer(game.folder.Path(name));
        command(game);
        EXPECT_FALSE(game.files.IsOpen(1));
        const std::string& said = game.window.texts[Control::pb];
        return said.substr(said.rfind(':') + 1);
    };
    EXPECT_EQ(refusal(mnuappend_Click, "pipe.txt"), " Invalid argument");
    EXPECT_EQ(refusal(mnuexport_Click, "pipe.txt"), " Invalid argument");
    EXPECT_EQ(refusal(mnuappend_Click, "full.txt"), " No space left on device");
    EXPECT_EQ(refusal(mnuexport_Click, "full.txt"), " Invalid argument") << "a device is not replaced";
    EXPECT_THROW(WritePuzzleRecord(game, "/dev/full", 0), FileError);
    EXPECT_FALSE(game.files.IsOpen(1));
    EXPECT_EQ(game.CollectionPath, game.folder.Path("collection.tdw"));
}

/// Files cannot grow beyond some bytes for as long as it lives, as on a disk that is full.
class NoSpace {
 public:
    NoSpace() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit few{5, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &few);
    }
    ~NoSpace() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    NoSpace(const NoSpace&) = delete;
    NoSpace& operator=(const NoSpace&) = delete;

 private:
    void (*handler_)(int);
    rlimit before_{};
};

TEST(WritePuzzleRecord, WithoutSpaceTheOldFileStaysWhole) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const std::string path = game.folder.Write("temp.txt", "the puzzle before");
    {
        const NoSpace full;
        EXPECT_THROW(WritePuzzleRecord(game, path, 0), FileError);
        game.prompts.ExpectSystemBox("OverWrite file: " + path + " ?", SystemButtons::YesNo, kYes);
        game.filePicker.Answer(path);
        mnuexport_Click(game);
    }
    EXPECT_EQ(game.folder.Read("temp.txt"), "the puzzle before");
    EXPECT_EQ(game.window.texts[Control::pb].find("Not written: "), 0U);
}

TEST(DeletePuzzle, ShowsThePuzzleBefore) {
    TestGame game({Numbered(1), Numbered(2), Numbered(3)});
    const auto remove = [&](int number) {
        EXPECT_EQ(game.Load(number), 0);
        game.prompts.Expect("Delete current puzzle from file:\r\n" + game.CollectionPath, "vbYesNo+vbtrash", 6);
        game.prompts.Expect("Deleted", "vbok+vbtrash", 1);
        mnudelete_Click(game);
        return game.PuzzleNumber * 10 + game.IslandGrid(1, 1);
    };
    EXPECT_EQ(remove(3), 22);
    EXPECT_EQ(remove(1), 12);
    EXPECT_EQ(game.PuzzleCount, 1);
    EXPECT_EQ(game.folder.Read("tidetemp.tmp"), Numbered(2) + "\r\n");
    game.prompts.Expect("There is only one puzzle in this file", "vbcritical+vbok", 1);
    mnudelete_Click(game);
    EXPECT_EQ(game.folder.Read("collection.tdw"), Numbered(2) + "\r\n");
}

TEST(DeletePuzzle, AsksFirstAndCountsAgain) {
    TestGame game({Numbered(1), Numbered(2)});
    ASSERT_EQ(game.Load(1), 0);
    const std::string question = "Delete current puzzle from file:\r\n" + game.CollectionPath;
    game.prompts.Expect(question, "vbYesNo+vbtrash", 7);
    mnudelete_Click(game);
    game.folder.Write("collection.tdw", Numbered(1));
    game.prompts.Expect(question, "vbYesNo+vbtrash", 6);
    game.prompts.Expect("There is only one puzzle in this file", "vbok+vbcritical", 1);
    mnudelete_Click(game);
    EXPECT_EQ(game.folder.Read("collection.tdw"), Numbered(1));
}

TEST(DeletePuzzle, AWorkFileThatCannotBeWrittenLosesNothing) {
    TestGame game({Numbered(1), Numbered(2)});
    ASSERT_EQ(game.Load(1), 0);
    std::filesystem::create_directory("tidetemp.tmp");
    game.prompts.Expect("Delete current puzzle from file:\r\n" + game.CollectionPath, "vbYesNo+vbtrash", 6);
    game.prompts.ExpectSystemBox("The puzzle could not be deleted.\r\ntidetemp.tmp: Is a directory", SystemButtons::Ok,
                                 1);
    mnudelete_Click(game);
    EXPECT_EQ(game.folder.Read("collection.tdw"), Numbered(1) + "\r\n" + Numbered(2) + "\r\n");
}

TEST(ExportPuzzle, WritesNumbersAlone) {
    TestGame game({kSmallPuzzle});
    ASSERT_EQ(game.Load(1), 0);
    const std::string path = game.folder.Write("grid.txt", "old");
    game.filePicker.Answer(path);
    game.prompts.ExpectSystemBox("OverWrite file: " + path + " ?", SystemButtons::YesNo, 7);
    mnuexport_Click(game);
    EXPECT_EQ(game.folder.Read("grid.txt"), "old");
    game.filePicker.Answer(path);
    game.prompts.ExpectSystemBox("OverWrite file: " + path + " ?", SystemButtons::YesNo, 6);
    game.prompts.Expect("Puzzle exported to file:\r\n" + path, kInformation, 1);
    mnuexport_Click(game);
    EXPECT_EQ(game.folder.Read("grid.txt"),
              "..4...2\r\n1......\r\n..6...3\r\n.......\r\n...2...\r\n2.3....\r\n.1.4..2\r\n");
}

TEST(Paths, GetAnExtensionOnlyWithoutAnyDot) {
    std::string name = "/a/b";
    AddExtension(name, "txt");
    EXPECT_EQ(name, "/a/b.txt");
    name = "/a.d/b";
    AddExtension(name, "txt");
    EXPECT_EQ(name, "/a.d/b");
    EXPECT_EQ(FileNameOf("/a/b.tdw") + FileNameOf("c"), "b.tdwc");
    EXPECT_EQ(WithSeparator("/") + WithSeparator("/a"), "//a/");
}

TEST(ConvertLayout, TurnsEachPuzzleIntoALineAndDropsTheLast) {
    TestGame game;
    const std::string old = game.folder.Write(
        "old.dat", "#0\r\nDx y\r\n 7, 7, 3\r\n1.\r\n2.\r\n#1\r\nE\r\n 8, 8, 1\r\n3\r\n4\r\nlast line, never used");
    ConvertLayout(game, old, "new.txt");
    EXPECT_EQ(game.folder.Read("new.txt"), " 7, 7, 3;D;1.,2.,\r\n 8, 8, 1;E;3,4,\r\n");
    ConvertLayout(game, game.folder.Write("old.dat", ""), "new.txt");
    EXPECT_EQ(game.folder.Read("new.txt"), "");
    EXPECT_EQ(ConvertedPath("/a.b/c.dat"), "/a-newformat.txt");
    EXPECT_EQ(ConvertedPath("abc"), "");
}

TEST(ConvertLayout, MarkedLinesAreFoundByTheirIndex) {
    TestGame game;
    game.files.Open(1, game.folder.Write("marked", "x\n#5\ny\n# 12 rest\n"), FileMode::Input);
    int number = 0;
    int failed = 0;
    FindMarkedLine(game, 1, number, failed);
    EXPECT_EQ(number, 12);
    EXPECT_EQ(failed, 0);
    FindMarkedLine(game, 0, number, failed);
    EXPECT_EQ(failed, -1);
}

}  // namespace
}  // namespace tidewalk::test
