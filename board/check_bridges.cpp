// SPDX-License-Identifier: MIT
#include "board/check_bridges.h"

#include "model/job.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

std::string CountLine(CellPlace place, int number, int bridges) {
    return Format(place.row, "00") + " " + Format(place.col, "00") + " " + Format(number, "000") +
           " links=" + Format(bridges, "00");
}

}  // namespace

int CountBridges(const Game& game, CellNumber id) {
    // Only cells of its row and its column can be joined to an island.
    const auto [row, col] = game.PlaceOf(id);
    int count = 0;
    for (int other = 1; other <= game.Cols; ++other)
        count += game.BridgeState(id, game.CellId(row, other));
    for (int other = 1; other <= game.Rows; ++other) {
        if (other != row) count += game.BridgeState(id, game.CellId(other, col));
    }
    return count;
}

std::optional<CellPlace> CheckBridgeCounts(Game& game) {
    game.List1.Clear();
    for (CellNumber id = 1; id <= game.CellCount; ++id) {
        const int number = game.IslandAt(id);
        if (number <= 0) continue;
        const int bridges = CountBridges(game, id);
        game.List1.Add(CountLine(game.PlaceOf(id), number, bridges));
        if (bridges != number) return game.PlaceOf(id);
    }
    return std::nullopt;
}

void cmdverify_Click(Game& game) {
    if (JobRuns(game)) return;
    if (const auto wrong = CheckBridgeCounts(game)) {
        const CellNumber id = game.CellId(wrong->row, wrong->col);
        game.Shape1.frame.left = game.IslandX[id] - game.HalfCell;
        game.Shape1.frame.top = game.IslandY[id] - game.HalfCell;
        game.Shape1.visible = true;
        game.pictures.ShowOverlay();
        game.pictures.EnableTimer1(true);
        game.window.SetText(Control::pb, "Not done yet");
    } else {
        game.prompts.Show("All Done!", "vbhappy+vbok");
        game.events.DoEvents();
    }
}

void Timer1_Timer(Game& game) {
    game.pictures.EnableTimer1(false);
    game.Shape1.visible = false;
    game.pictures.ShowOverlay();
}

}  // namespace tidewalk
