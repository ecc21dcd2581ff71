// SPDX-License-Identifier: MIT
#include "support/invariants.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "model/job.h"

namespace tidewalk::test {

namespace {

/// Keeps what is wrong. A text is made only when it is needed: most of what is looked at is right.
class Findings {
 public:
    void Add(const std::string& what) { text_ += what + "\n"; }
    void Demand(bool holds, const char* what) {
        if (!holds) Add(what);
    }
    const std::string& Text() const { return text_; }

 private:
    std::string text_;
};

bool IsCell(CellNumber id) {
    return id >= 1 && id <= kMaxCells;
}

/// Before the first load there is no board; after it there is one that fits the tables.
void CheckSizes(const Game& game, Findings& found) {
    const bool none = game.Rows == 0 && game.Cols == 0;
    const bool fits = game.Rows >= 1 && game.Rows <= kMaxSide && game.Cols >= 1 && game.Cols <= kMaxSide;
    if (!none && !fits) {
        found.Add("the board measures " + std::to_string(game.Rows) + "x" + std::to_string(game.Cols));
    }
    found.Demand(game.CellCount >= 0 && game.CellCount <= kMaxCells, "the cells are too many");
}

void CheckLinks(const Game& game, Findings& found) {
    for (int i = 1; i <= game.LinkCount(); ++i) {
        const Link& link = game.LinkList[i];
        const bool fine = IsCell(link.first) && IsCell(link.second) && link.state <= 2;
        if (!fine) found.Add("link " + std::to_string(i) + " is " + Text(link));
    }
}

void CheckUndoList(const Game& game, Findings& found) {
    for (const UndoRecord& record : game.UndoList) {
        // A move that came from no selected island names the cell 0.
        const bool cells = record.a >= 0 && record.a <= kMaxCells && IsCell(record.b);
        if (!cells || record.state < 0 || record.state > 2) found.Add("the undo list has a line " + Text(record));
    }
}

void CheckNumbering(const Game& game, Findings& found) {
    found.Demand(game.CellCount == game.Rows * game.Cols, "the cells are not rows times columns");
    found.Demand(game.MaxDim == std::max(game.Rows, game.Cols), "the larger side is wrong");
    CellNumber id = 0;
    for (int row = 1; row <= game.Rows; ++row) {
        for (int col = 1; col <= game.Cols; ++col) {
            ++id;
            if (game.CellId(row, col) != id || game.PlaceOf(id) != CellPlace{row, col}) {
                found.Add("cell " + std::to_string(id) + " has another number");
            }
            const int number = game.IslandGrid(row, col);
            if (number < -1 || number > 9) found.Add("an island has the number " + std::to_string(number));
        }
    }
}

/// A bridge joins two islands of one row or column of the board that there is.
void CheckBridge(const Game& game, CellNumber a, CellNumber b, Findings& found) {
    const int state = game.BridgeState(a, b);
    const std::string name = std::to_string(state) + " from " + std::to_string(a) + " to " + std::to_string(b);
    if (state != game.BridgeState(b, a)) found.Add("a bridge counts in one direction only: " + name);
    if (state > 2) found.Add("so many bridges: " + name);
    if (a < 1 || b < 1 || a > game.CellCount || b > game.CellCount || a == b) {
        found.Add("a bridge leaves the board: " + name);
        return;
    }
    const CellPlace from = game.PlaceOf(a);
    const CellPlace to = game.PlaceOf(b);
    if (from.row != to.row && from.col != to.col) found.Add("a bridge is askew: " + name);
    if (game.IslandAt(a) < 1 || game.IslandAt(b) < 1) found.Add("a bridge ends in the water: " + name);
}

void CheckBridges(const Game& game, Findings& found) {
    constexpr auto kIds = static_cast<std::size_t>(kMaxCells) + 1;
    static constexpr std::array<std::uint8_t, kIds> kNone{};
    for (CellNumber a = 0; a <= kMaxCells; ++a) {
        // Nearly all cells have no bridge, and this is looked at after every click of thousands.
        if (std::memcmp(game.BridgeState.Row(a).data(), kNone.data(), kIds) == 0) continue;
        for (CellNumber b = 0; b <= kMaxCells; ++b) {
            if (game.BridgeState(a, b) != 0) CheckBridge(game, a, b, found);
        }
    }
}

void CheckLayout(const Game& game, Findings& found) {
    constexpr int kSmallest = 200;
    constexpr int kLargest = 700;
    if (game.CellSize < kSmallest || game.CellSize > kLargest) {
        found.Add("a cell measures " + std::to_string(game.CellSize));
    }
    found.Demand(game.Picture1.width >= 0 && game.Picture1.height >= 0, "the board has no size");
    const auto onBoard = [&](int row, int col) {
        return (row <= 0 && row >= -1 && col <= 0 && col >= -1) || game.OnBoard(row, col);
    };
    found.Demand(onBoard(game.HoverRow, game.HoverCol), "the pointer's cell is beside the board");
    found.Demand(onBoard(game.AnchorRow, game.AnchorCol), "the selected island is beside the board");
}

}  // namespace

std::string CheckInvariants(const Game& game) {
    Findings found;
    CheckSizes(game, found);
    CheckLinks(game, found);
    CheckUndoList(game, found);
    // A job that the end of the program has cut short leaves the grids as they were in the middle of it.
    if (game.ending) return found.Text();
    if (JobRuns(game)) {
        found.Demand(game.jobRunning, "the busy flag is left of a job that has ended");
        return found.Text();
    }
    CheckNumbering(game, found);
    CheckBridges(game, found);
    if (game.Rows > 0) CheckLayout(game, found);
    found.Demand(game.PuzzleNumber >= 0 && game.PuzzleCount >= 0, "the place in the collection is negative");
    found.Demand(game.PuzzleCount == 0 || !game.CollectionPath.empty(), "the puzzles come from no collection");
    return found.Text();
}

}  // namespace tidewalk::test
