// SPDX-License-Identifier: MIT
// Hints press by press, explanations step by step, and what is said of the puzzle on the board.
#include <gtest/gtest.h>

#include "board/board_commands.h"
#include "board/show_board.h"
#include "solver/auto_solve.h"
#include "support/test_game.h"
#include "techniques/assess_board.h"
#include "techniques/explain_board.h"
#include "techniques/give_hint.h"
#include "techniques/show_guide.h"

namespace tidewalk::test {
namespace {

/// A game with one puzzle on the board, written row by row.
struct Guided : TestGame {
    explicit Guided(const Rows& rows) : TestGame({Record(rows)}) { Load(1); }

    std::string Hint() {
        Run(mnuhint_Click);
        return GuidanceText(*this);
    }
    void Lay(CellNumber a, CellNumber b, int bridges) {
        board.history.Push({{a, b, 0}, 1});
        board.BridgeState.Set(a, b, bridges);
        RedrawBoard(*this, false);
    }
};

TEST(Hint, FramesThenTellsThenLaysAsMoves) {
    Guided game({"3.3.1", ".....", "2...1"});
    EXPECT_EQ(game.Hint(), "The last bridges: look at the framed islands.\n\nPress Hint again to be told why.");
    EXPECT_EQ(game.board.ShownGuide()->islands, (std::vector<CellNumber>{3, 1, 5}));
    EXPECT_TRUE(game.board.ShownGuide()->pairs.empty());
    EXPECT_EQ(
        game.Hint(),
        "The 3 at row 1, column 3 needs three bridges, and its neighbours can take just as many: two to the 3 on its "
        "left and one to the 1 on its right.\n\nPress Hint once more to lay the bridges.");
    EXPECT_EQ(game.board.ShownGuide()->pairs,
              (std::vector<MarkedPair>{{1, 3, 2, PairMark::Lay}, {3, 5, 1, PairMark::Lay}}));
    EXPECT_TRUE(game.board.history.UndoList().empty());
    EXPECT_EQ(game.Hint(), "The bridges are laid. Undo takes them back, move by move.");
    EXPECT_EQ(game.board.BridgeState(1, 3) * 10 + game.board.BridgeState(5, 3), 21);
    game.Run(cmdundo_Click);
    game.Run(cmdundo_Click);
    EXPECT_TRUE(game.board.BridgeState.InBothOrders().empty());
    EXPECT_EQ(GuidanceText(game), "") << "a move makes it out of date";
}

TEST(Hint, ShowsWhatIsWrongOneByOne) {
    Guided game({"1.2.1"});
    game.Lay(1, 3, 2);
    game.Lay(1, 5, 1);
    EXPECT_EQ(game.Hint().substr(0, 42), "No solution holds all the bridges on the b");
    EXPECT_EQ(game.Hint(),
              "The solution has fewer than two bridges between the 1 at row 1, column 1 and the 2 at row "
              "1, column 3.");
    EXPECT_EQ(game.board.ShownGuide()->pairs, (std::vector<MarkedPair>{{1, 3, 2, PairMark::Wrong}}));
    EXPECT_EQ(game.Hint(), "No bridge joins the 1 at row 1, column 1 and the 1 at row 1, column 5 in the solution.");
    EXPECT_EQ(game.Hint().substr(0, 12), "The solution");
}

TEST(Hint, TellsOfPuzzlesWithoutANextStep) {
    EXPECT_EQ(Guided({"3.3"}).Hint(), "This puzzle has no solution.");
    Guided several({"3.3", "...", "3.3"});
    EXPECT_EQ(several.Hint(), "This puzzle has several solutions. Explain tells what they have in common.");
    several.Run(mnuexplain_Click);
    several.Run(ShowExplainedStep, static_cast<int>(several.guidance.steps.size()));
    EXPECT_EQ(GuidanceText(several),
              "This puzzle has several solutions. No further step was found that all of them share.");
    Guided game({"2.2"});
    game.Lay(1, 3, 2);
    EXPECT_EQ(game.Hint(), "The puzzle is solved.");
    game.Run(ShowExplainedStep, 0);
    EXPECT_EQ(game.board.ShownGuide()->position, std::nullopt) << "nothing is explained";
    TestGame empty;
    empty.world.Expect("There is no puzzle to solve", kInformation);
    empty.Run(mnuhint_Click);
    empty.world.Expect("There is no puzzle to solve", kInformation);
    empty.Run(mnuexplain_Click);
}

TEST(Explain, ShowsEachPositionAndLeavesThePlayersBridges) {
    Guided game({"3.3.1", ".....", "2...1"});
    game.Lay(1, 11, 2);
    const BridgeTable played = game.board.BridgeState;
    game.Run(mnuexplain_Click);
    const int count = static_cast<int>(game.guidance.steps.size());
    for (int step = 0; step <= count; ++step) {
        game.Run(ShowExplainedStep, step);
        EXPECT_EQ(GuidanceText(game),
                  step < count ? game.guidance.steps[static_cast<std::size_t>(step)].text : "The puzzle is solved.");
        EXPECT_EQ(game.world.picture.calls, game.FreshPicture(false));
        EXPECT_EQ(game.board.ShownBridges().InBothOrders().empty(), step == 0);
    }
    game.Run(ShowExplainedStep, count + 1);
    EXPECT_EQ(game.guidance.step, count);
    EXPECT_EQ(game.board.BridgeState, played);
    game.Run(cmdundo_Click);
    EXPECT_EQ(&game.board.ShownBridges(), &game.board.BridgeState) << "a move brings them back to sight";
    game.Run(EndExplanation);
    EXPECT_TRUE(game.guidance.steps.empty());
}

TEST(Hint, EndsWithAutoSolve) {
    Guided game({"3.3.1", ".....", "2...1"});
    EXPECT_NE(game.Hint(), "");
    game.Run(mnuautosol_Click);
    EXPECT_EQ(GuidanceText(game), "");
    EXPECT_TRUE(game.board.guide.islands.empty());
}

TEST(Assessment, IsShownWhenItIsKnownAndThePuzzleStillThere) {
    Guided game({"3.3.1", ".....", "2...1"});
    EXPECT_EQ(game.world.Text(WindowText::Assessment), "3x5");
    const auto late = game.world.assessed;
    game.Load(1);
    late({1, 3});
    EXPECT_EQ(game.world.Text(WindowText::Assessment), "3x5");
    const std::pair<Assessment, const char*> cases[] = {{{1, 6}, "3x5, Hard, one solution"},
                                                        {{2, std::nullopt}, "3x5, several solutions"},
                                                        {{0, std::nullopt}, "3x5, no solution"},
                                                        {{}, "3x5, number of solutions unknown"}};
    for (const auto& [assessment, text] : cases) {
        game.world.assessed(assessment);
        EXPECT_EQ(game.world.Text(WindowText::Assessment), text);
    }
}

}  // namespace
}  // namespace tidewalk::test
