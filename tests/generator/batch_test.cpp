// SPDX-License-Identifier: MIT
#include "generator/batch.h"

#include <gtest/gtest.h>

#include "generator/new_puzzle.h"
#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "support/layout_checker.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    for (std::size_t end = 0; (end = bytes.find("\r\n", at)) != std::string::npos; at = end + 2)
        lines.push_back(bytes.substr(at, end - at));
    return lines;
}

struct BatchGame : TestGame {
    BatchGame(const std::string& count, const std::string& rows, const std::string& cols)
        : TestGame({kSmallPuzzle, kSmallPuzzle}), request{count, rows, cols, folder.Path("out.txt")} {
        Load(2);
        window.statusTexts.clear();
        batchWindow.typed = request;
    }

    void ExpectQuestion(int answer) {
        prompts.Expect("Create " + request.count + " " + request.rows + "x" + request.cols +
                           " puzzles\r\nOutput file: " + request.outputFile + "\r\n\r\nProceed?",
                       "vbquestion+vbyesno", answer);
    }
    void ExpectCreated() {
        prompts.Expect("Created " + request.count + " puzzles in file:\r\n" + request.outputFile, "vbinformation+vbok",
                       1);
    }

    void ExpectOldPuzzle() const {
        EXPECT_EQ(CollectionPath, folder.Path("collection.tdw"));
        EXPECT_EQ(PuzzleNumber, 2);
        EXPECT_EQ(IslandGrid(1, 3), 4);
        EXPECT_FALSE(JobRuns(*this));
        EXPECT_TRUE(pictures.enabled);
        EXPECT_FALSE(pictures.frozen);
        EXPECT_EQ(window.pointer, Pointer::Default);
        EXPECT_EQ(window.progressTotal, 0);
    }

    std::vector<std::string> Output() const { return LinesOf(folder.Read("out.txt")); }

    BatchRequest request;
};

TEST(Form3, OkAsksForACountASizeAndAFile) {
    TestGame game;
    const auto accepts = [&](BatchRequest request) { return Form3_Command1_Click(game, request); };
    const char* const kWrong = "Incorrect Number or Size of Puzzles";
    for (const BatchRequest& bad : {BatchRequest{"0", "9", "9", "a"},
                                    {"", "9", "9", "a"},
                                    {"-3", "9", "9", "a"},
                                    {"5", "6", "9", "a"},
                                    {"5", "9", "26", "a"},
                                    {"5", "", "9", ""}}) {
        game.prompts.Expect(kWrong, "vbok+vbcritical", 1);
        EXPECT_FALSE(accepts(bad));
    }
    for (const char* file : {"", "  ", "folder/"}) {
        game.prompts.Expect("Specify an output file", "vbok+vbcritical", 1);
        EXPECT_FALSE(accepts({"5", "7", "25", file}));
    }
    const auto fileOf = [&](const char* file) {
        BatchRequest request{"5", "7", "25", file};
        EXPECT_TRUE(Form3_Command1_Click(game, request));
        return request.outputFile;
    };
    EXPECT_EQ(fileOf(" out "), "out.txt");
    EXPECT_EQ(fileOf("out.tdw"), "out.tdw");
    EXPECT_EQ(fileOf("some.folder/out"), "some.folder/out.txt");
}

TEST(Form3, TheChosenFileGoesIntoTheRequest) {
    TestGame game;
    BatchRequest request{"5", "7", "7", "before"};
    game.filePicker.Answer("");
    Form3_gf1_Click(game, request);
    EXPECT_EQ(request.outputFile, "before");
    game.filePicker.Answer("/some.where/out");
    Form3_gf1_Click(game, request);
    EXPECT_EQ(request.outputFile, "/some.where/out.txt");
    EXPECT_EQ(game.filePicker.requests[0].title, "Select an output Puzzle file");
    EXPECT_EQ(game.filePicker.requests[0].patterns, "*.txt");
    EXPECT_EQ(game.filePicker.requests[0].mode, FileRequest::Mode::Save);
}

TEST(Batch, AppendsAsManyPuzzlesAsAskedFor) {
    BatchGame game("5", "8", "11");
    game.folder.Write("out.txt", std::string(kSmallPuzzle) + "\r\n");
    game.ExpectQuestion(kYes);
    game.ExpectCreated();
    mnucreatemany_Click(game);
    const auto lines = game.Output();
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[0], kSmallPuzzle);
    for (std::size_t i = 1; i < lines.size(); ++i)
        EXPECT_EQ(FaultOfRecord(lines[i], 8, 11), "") << lines[i];
    EXPECT_EQ(game.window.statusTexts[0], "Creating puzzle 1 of 5");
    EXPECT_EQ(game.window.statusTexts[4], "Creating puzzle 5 of 5");
    game.ExpectOldPuzzle();
}

TEST(Batch, NoChangesNothing) {
    BatchGame game("5", "8", "11");
    game.ExpectQuestion(kNo);
    mnucreatemany_Click(game);
    EXPECT_FALSE(std::filesystem::exists("out.txt"));
    game.ExpectOldPuzzle();

    game.batchWindow.accepted = false;
    mnucreatemany_Click(game);
    game.ExpectOldPuzzle();
}

TEST(Batch, CancelCutsOnlyOnePuzzleShort) {
    BatchGame game("12", "7", "9");
    game.clock.step = 100;
    game.events.happen = [&] {
        EXPECT_TRUE(JobRuns(game));
        EXPECT_TRUE(!game.pictures.enabled || game.events.count == 1);
        if (game.events.count % 7 == 0) cmdcancel_Click(game);
    };
    game.ExpectQuestion(kYes);
    game.ExpectCreated();
    mnucreatemany_Click(game);
    const auto lines = game.Output();
    ASSERT_EQ(lines.size(), 12U);
    for (const std::string& line : lines)
        EXPECT_EQ(FaultOfLayout(line, 7, 9), "") << line;
    game.ExpectOldPuzzle();
    EXPECT_EQ(game.window.texts[Control::pb], "");
}

TEST(Batch, APuzzleLoadedMeanwhileIsTheCurrentOneAfterwards) {
    BatchGame game("6", "9", "8");
    game.clock.step = 100;
    game.events.happen = [&] {
        if (game.events.count % 11 == 0 && game.events.count < 120) game.Load(1);
    };
    game.ExpectQuestion(kYes);
    game.ExpectCreated();
    mnucreatemany_Click(game);
    const auto lines = game.Output();
    ASSERT_EQ(lines.size(), 6U);
    for (const std::string& line : lines)
        EXPECT_EQ(FaultOfRecord(line, 9, 8), "") << line;
    EXPECT_EQ(game.PuzzleNumber, 1);
    EXPECT_EQ(game.Rows, 7);
}

TEST(Batch, AFileThatCannotBeWrittenEndsIt) {
    BatchGame game("5", "8", "8");
    std::filesystem::create_directory("out.txt");
    game.ExpectQuestion(kYes);
    game.prompts.Expect("The puzzles could not all be written:\r\n" + game.request.outputFile +
                            ": Is a directory\r\n\r\n0 of 5 puzzles were written.",
                        "vbcritical+vbok", 1);
    mnucreatemany_Click(game);
    game.ExpectOldPuzzle();
}

TEST(Batch, AClosedWindowStopsItAtOnce) {
    BatchGame game("1000000", "25", "25");
    game.clock.step = 100;
    game.events.happen = [&] { game.ending = game.events.count >= 500; };
    game.ExpectQuestion(kYes);
    mnucreatemany_Click(game);
    EXPECT_EQ(game.events.count, 500);
    EXPECT_FALSE(game.Output().empty());
}

TEST(Batch, WaitsForAnotherJob) {
    BatchGame game("5", "8", "8");
    const Job job(game);
    game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
    mnucreatemany_Click(game);
    game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
    Command4_Click(game);
    EXPECT_EQ(game.batchWindow.timesAsked, 0);
}

TEST(Command4, Makes1200PuzzlesOfRandomSizes) {
    BatchGame game("", "", "");
    game.prompts.ExpectSystemBox("done", SystemButtons::Ok, 1);
    Command4_Click(game);
    const auto lines = LinesOf(game.folder.Read("rand1.txt"));
    ASSERT_EQ(lines.size(), 1200U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string& status = game.window.statusTexts[i];
        const int rows = std::stoi(status.substr(0, 2));
        const int cols = std::stoi(status.substr(2, 2));
        ASSERT_EQ(status.substr(4), Str(static_cast<int>(i) + 1) + " of 1200");
        ASSERT_TRUE(rows >= 7 && rows <= 24 && cols >= 7 && cols <= 24) << status;
        ASSERT_EQ(FaultOfLayout(lines[i], rows, cols), "") << lines[i];
    }
    game.ExpectOldPuzzle();
}

}  // namespace
}  // namespace tidewalk::test
