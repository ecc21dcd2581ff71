// SPDX-License-Identifier: MIT
// New puzzles: one for the board, and many for a file.
#include "generator/new_puzzle.h"

#include <filesystem>

#include "generator/batch.h"
#include "model/load_puzzle.h"
#include "solver/count_solutions.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A game on puzzle 2 of its collection.
struct NewGame : TestGame {
    explicit NewGame(const std::string& size = "7") : TestGame({kSmallPuzzle, kSmallPuzzle}) {
        Load(2);
        world.texts[WindowText::BoardSize] = size;
    }

    /// Asks for these puzzles in a batch, in a file that lies beside the collection.
    void RunBatch(const std::string& count, const std::string& rows, const std::string& cols, bool done = false,
                  int answer = kYes) {
        world.batch = [=, this](BatchRequest& request) {
            EXPECT_EQ(request.order, ReadOrder(world, OrderedFor::File));
            return request = {count, rows, cols, "out.txt", order}, true;
        };
        world.Expect("Create " + count + " " + rows + "x" + cols + " puzzles\r\nOutput file: out.txt\r\n\r\nProceed?",
                     "vbquestion+vbyesno", answer);
        if (done) world.Expect("Created " + count + " puzzles in file:\r\nout.txt" + lastLine, kInformation);
        Run(mnucreatemany_Click);
    }

    /// Lets this happen as soon as the status line shows `status`.
    void When(const std::string& status, std::function<void()> what) {
        world.step = 100;
        world.happen = [this, status, what = std::move(what)]() mutable {
            if (world.Status() == status && what) std::exchange(what, nullptr)();
        };
    }

    OrderChoice order;     ///< of the batch
    std::string lastLine;  ///< of the message that ends it
};

/// Size, number of solutions and grade of a record: "8x11 1 Easy".
std::string FactsOf(const std::string& record) {
    const Puzzle puzzle = ParsePuzzleRecord(record).value();
    const Assessment facts = AssessPuzzle(puzzle, WithoutEnd);
    return NumText(puzzle.Rows) + "x" + NumText(puzzle.Cols) + " " + NumText(facts.solutions.value()) + " " +
           std::string(facts.score ? DifficultyName(*facts.score) : "");
}

TEST(NewPuzzle, BecomesTheCurrentPuzzleAndTheOnlyOneOfItsFile) {
    NewGame game("9x12");
    game.world.container = {9000, 7000};
    game.collection.leftOpen = true;
    game.When(" Creating 9x12 puzzle ...", [&] {
        EXPECT_EQ(game.board.puzzle, Puzzle({9, 12})) << "the board is empty meanwhile";
        EXPECT_EQ(game.board.layout.CellSize, 643);
        EXPECT_FALSE(game.world.enabled);
    });
    game.Run(mnunewpuzx_Click);
    EXPECT_EQ(game.collection.CollectionPath, "temp.txt");
    const Lines lines = LinesOf(game.folder.Read("temp.txt"));
    EXPECT_EQ(FaultOfRecord(lines.at(0), {9, 12}), "");
    game.world.texts[WindowText::BoardSize] = "7";
    game.Run(cmdnew1_Click);
    EXPECT_EQ(game.board.puzzle.Size(), (BoardSize{7, 7}));
    EXPECT_EQ(game.collection.PuzzleCount, 1);
}

TEST(NewPuzzle, AnEmptyBoxGivesRandomSides) {
    NewGame game("8x8");
    game.Run(GridSize_MouseDown, MouseButton::Right);
    game.Run(cmdnew1_Click);
    EXPECT_NE(game.board.puzzle.Rows, game.board.puzzle.Cols);
}

TEST(NewPuzzle, SizesOutOfRangeAreRefused) {
    for (const char* size : {"6", "8x26", "big"}) {
        NewGame game(size);
        game.world.Expect("Puzzle size must be 7 to  25", kCritical);
        game.Run(cmdnew1_Click);
        EXPECT_EQ(game.world.Seen(), "box");
    }
}

TEST(NewPuzzle, AFileThatRefusesBringsTheOldPuzzleBackIfItIsThere) {
    NewGame game;
    std::filesystem::create_directory("temp.txt");
    for (const bool isThere : {true, false}) {
        if (!isThere) game.world.Expect("puzzle 2 not found", kInformation);
        game.world.Expect("Could not create new puzzle\r\ntemp.txt: Is a directory", kInformation);
        game.world.visible = false;
        game.Run(cmdnew1_Click);
        EXPECT_TRUE(game.world.visible);
        EXPECT_TRUE(
            game.world.Seen().ends_with("not busy, status: Could not create new puzzle, box, events, board on"));
        EXPECT_EQ(game.board.puzzle, isThere ? *ParsePuzzleRecord(kSmallPuzzle) : Puzzle({7, 7}));
        EXPECT_EQ(game.collection.CollectionPath, game.PathOfCollection());
        std::filesystem::remove("collection.tdw");
    }
}

TEST(NewPuzzle, IsMadeToOrderAndTellsHowManyWereTried) {
    NewGame game("9x8");
    KeepOrder(game.choices, OrderedFor::File, {false, Grade::VEasy, 3});
    for (const auto& [grade, facts] : {std::pair{Grade::Hard, "9x8 1 Hard"}, {Grade::VEasy, "9x8 1 VEasy"}}) {
        // A grade asks for one solution even where that is switched off.
        KeepOrder(game.choices, OrderedFor::Board, {false, grade, 0});
        int tried = 0;
        game.world.step = 100;
        game.world.happen = [&] { tried = std::max(tried, RoundedVal(game.world.Text(WindowText::Tried))); };
        game.Run(cmdnew1_Click);
        EXPECT_EQ(FactsOf(LinesOf(game.folder.Read("temp.txt")).at(0)), facts);
        EXPECT_EQ(tried > 1, grade == Grade::Hard) << tried;
        EXPECT_EQ(game.world.Text(WindowText::Tried), "");
    }
}

/// Draws with which two puzzles of 7x7 are tried and neither is very hard.
unsigned SeedOfNone() {
    for (unsigned seed = 1;; ++seed) {
        NewGame game;
        game.mostCandidates = 2;
        game.random.UseSeed(seed);
        game.world.AnswerAll(kOk);
        KeepOrder(game.choices, OrderedFor::Board, {true, Grade::VHard, 0});
        game.Run(cmdnew1_Click);
        if (game.world.Status() != "Puzzle created") return seed;
    }
}

TEST(NewPuzzle, SaysWhenNoneOfThoseTriedWasAsOrderedAndACancelCountsForAllOfThem) {
    const unsigned seed = SeedOfNone();
    NewGame game;
    game.mostCandidates = 2;
    game.random.UseSeed(seed);
    KeepOrder(game.choices, OrderedFor::Board, {true, Grade::VHard, 0});
    TakeImported(game, PuzzleFrom({"1-1"}), "grid.txt");
    for (const bool cancels : {false, true}) {
        game.world.texts[WindowText::BoardSize] = "7";
        const std::string none = cancels ? "" : "\r\nNone of the 2 puzzles tried was as ordered.";
        game.world.Expect("Could not create new puzzle" + none, kInformation);
        if (cancels) game.When(" Creating 7x7 puzzle ...", [&] { game.Run(cmdcancel_Click); });
        game.Run(cmdnew1_Click);
        EXPECT_EQ(game.Numbers(), (Lines{"1.1"})) << "an imported puzzle comes back";
        EXPECT_EQ(game.world.Status(), "Could not create new puzzle");
    }
}

TEST(BatchWindow, AsksForACountASizeAndAFile) {
    TestGame game;
    for (const BatchRequest& bad : {BatchRequest{"0", "9", "9", "a"},
                                    {"5", "6", "9", "a"},
                                    {"5", "9", "26", "a"},
                                    {"1", "7", "25", " "},
                                    {"1", "7", "25", "folder/"}}) {
        BatchRequest request = bad;
        game.world.Expect(bad.count == "1" ? "Specify an output file" : "Incorrect Number or Size of Puzzles",
                          "vbok+vbcritical");
        EXPECT_FALSE(game.Run(Form3_Command1_Click, request));
    }
    BatchRequest request{"1", "25", "7", " a.b/c "};
    EXPECT_TRUE(game.Run(Form3_Command1_Click, request));
    EXPECT_EQ(request.outputFile, "a.b/c.txt");
    for (const auto& [picked, file] : {std::pair{"", "a.b/c.txt"}, {"/some.where/out", "/some.where/out.txt"}}) {
        game.world.ExpectPick("Select an output Puzzle file|*.txt|Tidewalk Files|save", picked);
        game.Run(Form3_gf1_Click, request);
        EXPECT_EQ(request.outputFile, file);
    }
}

TEST(Batch, AppendsValidPuzzlesAndACancelCutsOneShort) {
    NewGame game;
    game.folder.Write("out.txt", "first\r\n");
    game.When("Creating puzzle 2 of 3", [&] {
        EXPECT_TRUE(game.world.frozen && !game.world.enabled);
        EXPECT_EQ(game.world.picture.calls.size(), 1U);
        game.Run(cmdcancel_Click);
    });
    game.lastLine = "\r\n1 of them lacks what was asked for.";
    game.RunBatch("3", "8", "11", true);
    const Lines lines = LinesOf(game.folder.Read("out.txt"));
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0], "first");
    EXPECT_EQ(FaultOfRecord(lines[1], {8, 11}) + FaultOfRecord(lines[3], {8, 11}), "");
    EXPECT_EQ(lines[2].substr(0, 12), " 8, 11, 0;D;") << "a layout without bridges";
}

TEST(Batch, WritesAsManyAsAskedForAndTellsHowManyAreNotAsOrdered) {
    NewGame game;
    game.mostCandidates = 2;
    game.random.UseSeed(SeedOfNone());
    game.order = {false, Grade::VHard, 0};
    game.lastLine = "\r\n1 of them lacks what was asked for.";
    game.RunBatch("1", "7", "7", true);
    EXPECT_EQ(ReadOrder(game.choices, OrderedFor::File), game.order);
    game.mostCandidates = kMostCandidates;
    game.order = {true, {}, 0};
    game.lastLine = "";
    game.RunBatch("8", "13", "15", true);
    const Lines lines = LinesOf(game.folder.Read("out.txt"));
    ASSERT_EQ(lines.size(), 9U);
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(FactsOf(lines[i]).starts_with(i < 1 ? "7x7 " : "13x15 1 "), true) << lines[i];
}

TEST(Batch, StopsAsAWhole) {
    NewGame game;
    game.Run(mnustopbatch_Click);
    EXPECT_FALSE(BatchRuns(game) || game.job.StopFlag());
    game.When("Creating puzzle 2 of 3", [&] {
        game.world.Expect("Created 1 of 3 puzzles in file:\r\nout.txt", kInformation);
        EXPECT_TRUE(BatchRuns(game));
        game.Run(mnustopbatch_Click);
    });
    game.RunBatch("3", "8", "8");
    EXPECT_EQ(LinesOf(game.folder.Read("out.txt")).size(), 1U);
    game.RunBatch("2", "8", "8", true);
    EXPECT_EQ(LinesOf(game.folder.Read("out.txt")).size(), 3U) << "the next one is another matter";
}

TEST(Batch, WithoutConsentChangesNothing) {
    NewGame game;
    game.RunBatch("3", "8", "11", false, kNo);
    game.world.batch = [=](BatchRequest& request) { return request = {"3", "8", "8", "out.txt"}, false; };
    game.Run(mnucreatemany_Click);
    EXPECT_EQ(game.world.Seen(), "batch?, box, batch?");
}

TEST(Batch, AFileThatRefusesEndsIt) {
    NewGame game;
    game.When("Creating puzzle 3 of 5", [&] {
        std::filesystem::rename("out.txt", "done.txt");
        std::filesystem::create_directory("out.txt");
        game.world.Expect(
            "The puzzles could not all be written:\r\nout.txt: Is a directory\r\n\r\n"
            "2 of 5 puzzles were written.",
            kCritical);
    });
    game.RunBatch("5", "7", "7");
    EXPECT_EQ(LinesOf(game.folder.Read("done.txt")).size(), 2U);
    EXPECT_EQ(game.world.Status(), "");
}

TEST(RandomBatch, Makes1200PuzzlesOfRandomSizesWithOneSolution) {
    NewGame game;
    game.world.Expect("done", "system ok");
    game.Run(Command4_Click);
    const Lines lines = LinesOf(game.folder.Read("rand1.txt"));
    const std::string seen = game.world.Seen();
    ASSERT_EQ(lines.size(), 1200U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Puzzle puzzle = ParsePuzzleRecord(lines[i]).value();
        const std::string number = std::to_string(i + 1);
        const std::string status = Format(puzzle.Rows, "00") + Format(puzzle.Cols, "00") + " " + number + " of 1200";
        ASSERT_NE(seen.find("status: " + status + ","), std::string::npos) << lines[i];
        ASSERT_EQ(CountSolutions(puzzle, 2), 1) << lines[i];
    }
    EXPECT_TRUE(seen.ends_with("not busy, box, status: "));
}

}  // namespace
}  // namespace tidewalk::test
