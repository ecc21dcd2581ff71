// SPDX-License-Identifier: MIT
#include "model/collection_commands.h"

#include <filesystem>

#include "game/file_work.h"
#include "generator/shuffle.h"
#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

constexpr const char* kAppendPick = "Add Puzzle to File|*.txt|Tidewalk Files|save";
constexpr const char* kExportPick = "Export Puzzle|*.txt|Text Files|save";

std::string Numbered(int number) {
    return Record({std::to_string(number) + ".1"});
}

/// A game on one of these puzzles, which are numbered, or of other lines.
struct EditGame : TestGame {
    explicit EditGame(int number, const Lines& lines = {Numbered(1), Numbered(2), Numbered(3), Numbered(4)})
        : TestGame(lines) {
        Load(number);
    }

    void ExpectDelete(int answer = kYes) {
        world.Expect("Delete current puzzle from file:\r\n" + PathOfCollection(), "vbYesNo+vbtrash", answer);
    }
};

TEST(AppendPuzzle, CreatesTheFileAndMovesThere) {
    EditGame game(2);
    const std::string path = game.folder.Path("mine");
    for (const std::string number : {"1", "2"}) {
        game.world.ExpectPick(kAppendPick, path);
        game.world.Expect("Puzzle#" + number + " appended to file " + path + ".txt", kInformation);
        game.Run(mnuappend_Click);
        EXPECT_EQ(game.collection.CollectionPath, path + ".txt");
        EXPECT_EQ(game.world.Seen(), "pick, busy, number: " + number + ", not busy, box");
    }
    EXPECT_EQ(LinesOf(game.folder.Read("mine.txt")), Lines(2, Numbered(2)));
    for (const auto& [command, pick] : {std::pair{&mnuappend_Click, kAppendPick}, {&mnuexport_Click, kExportPick}}) {
        game.world.ExpectPick(pick, "");
        game.Run(command);
        const std::string refused = game.folder.Path("no/such.folder");
        game.world.ExpectPick(pick, refused);
        game.Run(command);
        const std::string notWritten = "status: Not written: " + refused + ": No such file or directory";
        EXPECT_NE(game.world.Seen().find(notWritten), std::string::npos);
        EXPECT_EQ(game.collection.CollectionPath, path + ".txt");
    }
}

TEST(DeletePuzzle, ShowsThePuzzleBefore) {
    EditGame game(3);
    // The last one is deleted the second time, and the former puzzle 2 is the first one in the end.
    for (const auto& [number, shown] : {std::pair{3, 2}, {3, 2}, {1, 1}}) {
        game.Load(number);
        game.collection.leftOpen = true;
        game.ExpectDelete();
        game.world.Expect("Deleted", "vbok+vbtrash");
        game.Run(mnudelete_Click);
        EXPECT_EQ(game.world.Seen(), "box, number: " + std::to_string(shown) + ", box");
        EXPECT_EQ(game.Numbers(), Lines{"2.1"});
    }
    EXPECT_EQ(game.collection.PuzzleCount, 1);
    EXPECT_EQ(game.folder.Read("tidetemp.tmp"), Joined({Numbered(2)}));
    game.world.Expect("There is only one puzzle in this file", kCritical);
    game.Run(mnudelete_Click);
    EXPECT_EQ(game.folder.Read("collection.tdw"), Joined({Numbered(2)}));
}

TEST(DeletePuzzle, AsksFirstAndCountsAgain) {
    EditGame game(1, {Numbered(1), Numbered(2)});
    game.ExpectDelete(kNo);
    game.Run(mnudelete_Click);
    EXPECT_EQ(game.folder.Read("collection.tdw"), Joined({Numbered(1), Numbered(2)}));
    const std::string path = game.PathOfCollection();
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    game.ExpectDelete();
    game.world.Expect("The puzzle could not be deleted.\r\n" + path + ": Is a directory", "system ok");
    game.Run(mnudelete_Click);
    std::filesystem::remove(path);
    game.folder.Write("collection.tdw", Numbered(1));
    game.ExpectDelete();
    game.world.Expect("There is only one puzzle in this file", "vbok+vbcritical");
    game.Run(mnudelete_Click);
    EXPECT_EQ(game.folder.Read("collection.tdw"), Numbered(1));
}

TEST(DeletePuzzle, NextToABrokenOneForgetsTheMovesAllTheSame) {
    EditGame game(2, {"\x01", Numbered(2), Numbered(3)});
    game.board.history.Push({{1, 3, 0}, 1});
    game.ExpectDelete();
    game.world.Expect("puzzle 1 not found", kInformation);
    game.world.Expect("Deleted", "vbok+vbtrash");
    game.Run(mnudelete_Click);
    EXPECT_TRUE(game.board.history.UndoList().empty());
    EXPECT_EQ(game.collection.PuzzleNumber * 10 + game.collection.PuzzleCount, 12);
}

TEST(DeletePuzzle, DeletesNothingThatIsNotThePuzzleOnTheBoard) {
    EditGame game(3);
    for (const auto& [number, changed] : {std::pair{3, Lines{Numbered(1), Numbered(3), Numbered(5)}},
                                          {3, Lines{Numbered(1), Numbered(5)}},
                                          {1, Lines{Numbered(4), Numbered(1)}}}) {
        game.collection.PuzzleNumber = number;
        game.folder.Write("collection.tdw", Joined(changed));
        game.ExpectDelete();
        game.world.Expect(
            "Another program has changed the file:\r\n" + game.PathOfCollection() + "\r\nNothing was deleted.",
            kInformation);
        game.Run(mnudelete_Click);
        EXPECT_EQ(game.folder.Read("collection.tdw"), Joined(changed));
        EXPECT_EQ(game.Numbers(), Lines{number == 3 ? "5.1" : "4.1"}) << "it is loaded afresh";
    }
    game.Run(TakeImported, game.board.puzzle, "grid.txt");
    game.Run(mnudelete_Click);
    EXPECT_FALSE(CanDelete(game)) << "an imported puzzle is in no file";
    game.Load(1);
    game.world.Expect("puzzle 1 not found", kInformation);
    game.Run(OpenChosen, game.folder.Write("bad.txt", "garbage\n"));
    EXPECT_FALSE(CanDelete(game)) << "nor is an empty board";
}

TEST(AppendPuzzle, TellsOfATornRecordAtTheEnd) {
    EditGame game(2);
    const std::string path = game.folder.Write("torn.txt", Joined({Numbered(1)}) + " 7, 7, 3;D;1..");
    game.world.ExpectPick(kAppendPick, path);
    game.world.Expect("Puzzle#2 appended to file " + path, kInformation);
    game.Run(mnuappend_Click);
    EXPECT_EQ(game.folder.Read("torn.txt"), Joined({Numbered(1), Numbered(2)}));
    EXPECT_EQ(game.world.Status(), "A puzzle that was cut off while it was written was taken off the end of torn.txt");
}

TEST(WaitingForAFile, IsToldAfterAMomentAndGivenUpAfterAWhile) {
    TestGame game;
    const MayWait mayWait = WaitingFor(game, "/a/b.tdw");
    for (const auto& [at, waits, seen] :
         {std::tuple{299, true, ""},
          {300, true, "status: Waiting for another program that changes b.tdw ..., repaint"},
          {14999, true, ""},
          {15000, false, ""}}) {
        game.world.milliseconds = at;
        EXPECT_EQ(mayWait(), waits);
        EXPECT_EQ(game.world.Seen(), seen);
    }
    game.windowNumber = 2;
    EXPECT_EQ(WorkFile(game, "temp.txt"), "temp-2.txt");
}

TEST(ExportPuzzle, WritesNumbersAlone) {
    EditGame game(1, {Record({"1-2", "|.I", "3=4"})});
    const std::string path = game.folder.Path("grid");
    game.folder.Write("grid.txt", "old");
    for (const int answer : {kNo, kYes}) {
        game.world.ExpectPick(kExportPick, path);
        game.world.Expect("OverWrite file: " + path + ".txt ?", "system yesno", answer);
        if (answer == kYes) game.world.Expect("Puzzle exported to file:\r\n" + path + ".txt", kInformation);
        game.collection.leftOpen = true;
        game.Run(mnuexport_Click);
        EXPECT_EQ(game.folder.Read("grid.txt"), answer == kYes ? "1.2\r\n...\r\n3.4\r\n" : "old");
        EXPECT_EQ(game.collection.leftOpen, answer == kNo);
    }
}

TEST(Maintenance, ConvertsAndShufflesIntoFilesBesideTheCollection) {
    TestGame game;
    game.collection.leftOpen = true;
    game.collection.CollectionPath = game.folder.Write("old.x.dat", "first\nD\n 1, 3, 0\n1.1\n#\nlast");
    game.world.Expect(game.folder.Path("old-newformat.txt done"), "system ok");
    game.Run(Command3_Click);
    EXPECT_EQ(game.folder.Read("old-newformat.txt"), " 1, 3, 0;D;1.1,\r\n");
    EXPECT_FALSE(game.collection.leftOpen);
    const std::string gone = game.collection.CollectionPath = game.folder.Path("gone.dat");
    game.world.Expect("This collection is not of the older layout:\r\n" + gone, kInformation);
    game.Run(Command3_Click);
    game.world.Expect("The collection could not be shuffled:\r\n" + gone + ": No such file or directory", "system ok");
    game.Run(Command5_Click);
    EXPECT_EQ(game.world.Seen(), "box, box, busy, progress: 0 of 0, not busy, status: , box");
}

}  // namespace
}  // namespace tidewalk::test
