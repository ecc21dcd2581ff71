// SPDX-License-Identifier: MIT
#include "generator/shuffle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "model/job.h"
#include "model/load_puzzle.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

std::vector<std::string> LinesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    for (std::size_t end = 0; (end = bytes.find("\r\n", at)) != std::string::npos; at = end + 2) {
        lines.push_back(bytes.substr(at, end - at));
    }
    EXPECT_EQ(at, bytes.size()) << "the last line has an end, too";
    return lines;
}

struct ShuffleGame : TestGame {
    explicit ShuffleGame(const std::string& bytes) { CollectionPath = folder.Write("some.puzzles.txt", bytes); }

    void ExpectDone() { prompts.ExpectSystemBox(Output() + " randomized", SystemButtons::Ok, 1); }
    std::string Output() const { return folder.Path("some.puzzles-noduprandom.txt"); }
    std::string Result() const { return folder.Read("some.puzzles-noduprandom.txt"); }
};

TEST(Shuffle, KeepsEveryDistinctLineOnce) {
    const std::string odd("b\0\xFFy", 4);
    const std::string spacious(100000, ' ');
    ShuffleGame game("a\r\n" + odd + "\n\n\r\na\n" + spacious + "x\nA\r\n" + odd + "\r\nlast\rpart");
    game.ExpectDone();
    Command5_Click(game);
    auto lines = LinesOf(game.Result());
    std::sort(lines.begin(), lines.end());
    std::vector<std::string> expected{"", "A", "a", odd, spacious + "x", "last\rpart"};
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(lines, expected);
    EXPECT_FALSE(JobRuns(game));
    EXPECT_EQ(game.window.pointer, Pointer::Default);
}

TEST(Shuffle, OrderChangesWithTheSeedAlone) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i)
        bytes += "line " + std::to_string(i) + "\r\n";
    const auto shuffled = [&](std::uint64_t seed) {
        ShuffleGame game(bytes);
        game.random.UseSeed(seed);
        game.ExpectDone();
        Command5_Click(game);
        return game.Result();
    };
    EXPECT_EQ(shuffled(5), shuffled(5));
    EXPECT_NE(shuffled(5), shuffled(6));
    EXPECT_NE(shuffled(5), bytes);
}

TEST(Shuffle, ManyLinesTakeLittleTime) {
    std::string bytes;
    for (int i = 0; i < 200000; ++i)
        bytes += "a rather long beginning that all lines share " + std::to_string(i / 2) + "\n";
    ShuffleGame game(bytes);
    game.ExpectDone();
    const auto start = std::chrono::steady_clock::now();
    Command5_Click(game);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(LinesOf(game.Result()).size(), 100000U);
}

TEST(Shuffle, CancelKeepsAnOlderOutput) {
    std::string bytes;
    for (int i = 0; i < 50000; ++i)
        bytes += std::to_string(i) + "\n";
    ShuffleGame game(bytes);
    game.folder.Write("some.puzzles-noduprandom.txt", "old");
    game.clock.step = 100;
    for (const int moment : {1, 5, 250, 300}) {
        int polls = 0;
        game.events.happen = [&] {
            if (++polls == moment) game.CancelFlag = YesValue;
        };
        Command5_Click(game);
        EXPECT_GE(polls, moment);
        EXPECT_EQ(game.Result(), "old");
    }
    const auto files = std::distance(std::filesystem::directory_iterator("."), std::filesystem::directory_iterator());
    EXPECT_EQ(files, 2) << "nothing is left beside the output";
}

TEST(Shuffle, APuzzleLoadedMeanwhileDoesNoHarm) {
    std::string bytes;
    for (int i = 0; i < 20000; ++i)
        bytes += std::to_string(i) + "\n";
    ShuffleGame game(bytes);
    const std::string other = game.folder.Write("other.txt", std::string(kSmallPuzzle) + "\n");
    game.clock.step = 100;
    game.events.happen = [&] {
        LoadPuzzle(game, other, 1);
        EXPECT_TRUE(JobRuns(game));
    };
    game.ExpectDone();
    Command5_Click(game);
    EXPECT_EQ(LinesOf(game.Result()).size(), 20000U);
}

TEST(Shuffle, SaysWhatItCannotReadOrWrite) {
    ShuffleGame game("a\n");
    game.CollectionPath = game.folder.Path("missing.txt");
    game.prompts.ExpectSystemBox(
        "The collection could not be shuffled:\r\n" + game.CollectionPath + ": No such file or directory",
        SystemButtons::Ok, 1);
    Command5_Click(game);
    EXPECT_FALSE(std::filesystem::exists("missing-noduprandom.txt"));

    game.CollectionPath = "nodot";
    Command5_Click(game);
}

TEST(Shuffle, WaitsForAnotherJob) {
    ShuffleGame game("a\n");
    const Job job(game);
    game.prompts.Expect("Cancel Autosolve first", "vbinformation+vbok", 1);
    Command5_Click(game);
}

}  // namespace
}  // namespace tidewalk::test
