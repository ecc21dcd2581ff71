// SPDX-License-Identifier: MIT
// The start and the end of a run.
#include <filesystem>

#include "game/job.h"
#include "program/exit.h"
#include "program/first_collection.h"
#include "program/form_load.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// A configuration that names puzzle 3 of `collection`.
std::string Configuration(const std::string& collection) {
    return "dusk.col\r\n 3  1  300  12  1  2  3  4  0  0 \r\n" + collection + "\r\n";
}

/// A program folder with the schemes that ship and a collection of five puzzles.
struct StartGame : TestGame {
    StartGame() {
        std::filesystem::copy_file(TIDEWALK_DATA_DIR "/all.col", "all.col");
        folder.Write("puzzles.txt", Joined(Lines(5, kSmallPuzzle)));
        folder.Write("tide.cfg", Configuration("puzzles.txt"));
    }

    std::optional<std::string> Start(const std::string& file = "", std::optional<int> number = std::nullopt) {
        std::string program = folder.Path("");
        program.pop_back();
        AppFolder.clear();
        return Run(Form_Load, StartRequest{program, file, number});
    }
    std::string Place() const { return collection.CollectionPath + " " + std::to_string(collection.PuzzleNumber); }
};

TEST(Start, ShowsTheLastPuzzleInTheLastColours) {
    StartGame game;
    EXPECT_EQ(game.Start(), std::nullopt);
    EXPECT_EQ(game.Place(), "puzzles.txt 3");
    EXPECT_LT(RedOf(game.options.BoardBackground()), 99) << "the scheme is dusk";
    EXPECT_EQ(game.options.schemeNames.size(), LinesOf(game.folder.Read("all.col")).size() / 14);
    EXPECT_EQ(game.world.Seen(), "colours, number: 3");
    EXPECT_EQ(game.SolutionTempPath, game.folder.Path("TempPuzzleSolFile.tdw"));
}

TEST(Start, FallsBackToTheFirstPuzzleOfTheProgramFolder) {
    for (const bool first : {true, false}) {
        StartGame game;
        if (first) {
            std::filesystem::remove("tide.cfg");
            const std::string path = game.folder.Path("tide.cfg");
            game.world.Expect("Configuration file:\r\n" + path + "\r\ncould not be accessed, new file will be created",
                              "vbok");
        } else {
            game.folder.Write("tide.cfg", Configuration(game.folder.Write("empty.tdw", "")));
        }
        EXPECT_EQ(game.Start(), std::nullopt);
        EXPECT_EQ(game.Place(), game.folder.Path("puzzles.txt") + " 1");
    }
}

TEST(Start, WhatTheCommandLineAsksForComesFirst) {
    for (const int number : {0, 2, 6}) {
        StartGame game;
        const std::string other = game.folder.Write("other.tdw", Joined(Lines(2, kSmallPuzzle)));
        if (number == 6) game.world.Expect("puzzle 6 not found", kInformation);
        game.Start(other, number == 0 ? std::nullopt : std::optional(number));
        EXPECT_EQ(game.Place(), number == 0 ? other + " 1" : number == 2 ? other + " 2" : "puzzles.txt 3");
        EXPECT_GT(game.board.puzzle.IslandCount(), 0);
    }
}

TEST(Start, InANewFolderWritesTheDefaultsAndAShorterCollectionShowsItsLastPuzzle) {
    StartGame game;
    game.folder.Write("puzzles.txt", Joined(Lines(2, kSmallPuzzle)));
    game.world.choices["PalerFinished"] = "1";
    game.Start();
    EXPECT_EQ(game.Place(), "puzzles.txt 2");
    EXPECT_TRUE(game.options.ShowFinished);
    std::filesystem::remove("tide.cfg");
    game.Run(Form_Load, StartRequest{game.AppFolder, "", std::nullopt, true, 2});
    EXPECT_EQ(game.folder.Read("tide.cfg").substr(0, 12), "xp.col\r\n 1  ");
    EXPECT_EQ(game.windowNumber, 2);
}

TEST(Start, WithoutSchemesThereIsNone) {
    StartGame game;
    std::filesystem::remove("all.col");
    EXPECT_EQ(game.Start(), "The colour schemes could not be read:\n" + game.folder.Path("all.col") +
                                ": No such file or directory\n\nInstall Tidewalk again, or copy the file \"all.col\" "
                                "that came with it to this folder.");
    EXPECT_EQ(game.world.Seen(), "");
}

TEST(Start, WithoutAnyPuzzleMakesOne) {
    StartGame game;
    std::filesystem::remove("puzzles.txt");
    const std::string path = game.folder.Write("TempPuzzles.tdw", "an older file\r\n");
    game.world.Expect("puzzle 1 not found", kInformation);
    game.world.Expect("A new file will be created:\r\n" + path, "system ok");
    EXPECT_EQ(game.Start(), std::nullopt);
    EXPECT_EQ(game.Place(), path + " 1");
    const Lines lines = LinesOf(game.folder.Read("TempPuzzles.tdw"));
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(game.folder.Read("TempPuzzles-1.tdw"), "an older file\r\n");
    EXPECT_EQ(FaultOfRecord(lines[0], {8, 8}), "");
    EXPECT_EQ(game.world.Seen(), "colours, box, box, busy, progress: 0 of 0, not busy, number: 1");
}

TEST(FirstCollection, IsNotThereWhenItCannotBeWrittenOrTheWindowIsClosed) {
    for (const bool closed : {false, true}) {
        StartGame game;
        const std::string path = game.folder.Path("TempPuzzles.tdw");
        game.collection.leftOpen = true;
        game.world.Expect("A new file will be created:\r\n" + path, "system ok");
        if (closed) {
            game.world.step = 100;
            game.world.happen = [&] { Form_QueryUnload(game); };
        } else {
            std::filesystem::create_directories("TempPuzzles.tdw/inside");
            game.world.Expect(path + ": Is a directory", kCritical);
        }
        game.Run(MakeFirstCollection);
        EXPECT_EQ(game.board.puzzle == Puzzle({8, 8}), closed) << "what was made can be played all the same";
        EXPECT_EQ(std::filesystem::exists("TempPuzzles.tdw"), !closed);
        EXPECT_EQ(game.collection.PuzzleNumber, closed ? 0 : 1);
    }
}

TEST(Exit, TheButtonAsksAndSavesAndTheFrameDoesNeither) {
    StartGame game;
    game.Start();
    game.collection.PuzzleNumber = 5;
    game.world.Seen();
    game.world.Expect("Exit?", "vbYesNo+vbexit", kNo);
    game.Run(cmdexit_Click);
    EXPECT_FALSE(game.job.Ending());
    game.world.Expect("Exit?", "vbYesNo+vbexit", kYes);
    game.Run(cmdexit_Click);
    EXPECT_TRUE(game.job.Ending());
    EXPECT_EQ(game.world.Seen(), "box, box, end");
    EXPECT_EQ(game.folder.Read("tide.cfg").substr(0, 12), "dusk.col\r\n 5");

    StartGame working;
    const Job job(working, "AutoSolve");
    working.world.texts[WindowText::Status] = "Auto solving ...";
    working.world.Expect("Exit?", "vbYesNo+vbexit", kNo);
    working.Run(cmdexit_Click);
    EXPECT_EQ(working.world.Seen(), "status: AutoSolve would be cut short, box, status: Auto solving ...");

    StartGame other;
    other.Start();
    other.collection.PuzzleNumber = 5;
    other.world.Seen();
    other.Run(Form_QueryUnload);
    EXPECT_TRUE(other.job.Ending());
    other.world.Expect("Exit?", "vbYesNo+vbexit", kYes);
    other.Run(cmdexit_Click);
    EXPECT_EQ(other.world.Seen(), "end, box") << "closed while it was asking";
    EXPECT_EQ(other.folder.Read("tide.cfg"), Configuration("puzzles.txt"));
}

}  // namespace
}  // namespace tidewalk::test
