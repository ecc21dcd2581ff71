// SPDX-License-Identifier: MIT
// The judge of a game finds what it is there for.
#include "support/invariants.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/test_game.h"

namespace tidewalk::test {
namespace {

TEST(CheckInvariants, ALoadedPuzzleIsWholeAndEveryDamageIsSeen) {
    const std::vector<std::function<void(Game&)>> damages{
        [](Game& game) { game.BridgeState.Set(game.CellId(1, 3), game.CellId(3, 3), 3); },
        [](Game& game) { game.BridgeState.Set(game.CellId(1, 3), game.CellId(3, 7), 1); },
        [](Game& game) { game.BridgeState.Set(game.CellId(1, 1), game.CellId(1, 2), 1); },
        [](Game& game) { game.BridgeState.Set(kMaxCells, kMaxCells - 1, 1); },
        [](Game& game) {
            game.UndoList.push_front({1, kMaxCells + 1, 0});
        },
        [](Game& game) {
            game.UndoList.push_front({1, 2, 3});
        },
        [](Game& game) { game.Rows = kMaxSide + 1; },
        [](Game& game) { game.CellId(2, 2) = 1; },
        [](Game& game) { game.CellSize = 100; },
        [](Game& game) { game.HoverRow = game.Rows + 1; },
        [](Game& game) { game.BusyFlag = YesValue; },
        [](Game& game) { game.CollectionPath.clear(); },
    };
    for (std::size_t i = 0; i < damages.size(); ++i) {
        TestGame game({kSmallPuzzle});
        game.Load(1);
        game.BridgeState.Set(game.CellId(1, 3), game.CellId(1, 7), 2);
        EXPECT_EQ(CheckInvariants(game), "");
        damages[i](game);
        EXPECT_NE(CheckInvariants(game), "") << "damage " << i;
    }
}

}  // namespace
}  // namespace tidewalk::test
