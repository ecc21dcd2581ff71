// SPDX-License-Identifier: MIT
#include "generator/add_islands.h"

#include <algorithm>
#include <array>
#include <optional>

#include "model/cell_words.h"
#include "solver/archipelago.h"

namespace tidewalk {

namespace {

/// A step to the next cell, by its direction.
constexpr std::array<CellPlace, 4> kSteps{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};

constexpr CellPlace Next(CellPlace place, CellPlace step) {
    return {place.row + step.row, place.col + step.col};
}

using Directions = IdList<4>;

/// Islands and bridges cell by cell.
class Cells {
 public:
    explicit Cells(const Puzzle& solved) : size_(solved.Size()) {
        for (CellNumber id = 1; id <= solved.CellCount(); ++id) {
            if (solved.IslandAt(id) > 0) SetIsland(solved.PlaceOf(id));
        }
        for (const Link& link : solved.LinkList) {
            if (link.Bridges() > 0) LayBetween(solved.PlaceOf(link.first), solved.PlaceOf(link.second), link.Bridges());
        }
    }

    int Islands() const { return islands_; }
    int Loops() const { return pairs_ - (islands_ - 1); }

    /// Whether bridges run over a cell.
    bool IsCrossed(CellPlace place) const { return At(place).bridges > 0; }

    /// Whether an island may be set here: none stands here or beside it, and it is on a bridge or sees an island.
    bool MayTake(CellPlace place) const { return IsApart(place) && (IsCrossed(place) || !SeenFrom(place).Empty()); }

    /// How many cells beside this one could take no island any more if one stood here.
    int Blocks(CellPlace place) const {
        return static_cast<int>(std::count_if(kSteps.begin(), kSteps.end(), [&](CellPlace step) {
            return IsOnBoard(Next(place, step)) && IsApart(Next(place, step));
        }));
    }

    /// The directions in which a bridge from here would come to an island.
    Directions SeenFrom(CellPlace place) const {
        Directions seen;
        for (int direction = 0; direction < static_cast<int>(kSteps.size()); ++direction) {
            if (FirstThing(place, StepOf(direction)).isIsland) seen.Append(direction);
        }
        return seen;
    }

    /// Whether the cell lies in a line of the board's border that has no island yet.
    bool IsOnEmptyBorder(CellPlace place) const {
        const bool inRow = place.row == 1 || place.row == size_.rows;
        const bool inColumn = place.col == 1 || place.col == size_.cols;
        return (inRow && IsEmptyLine({place.row, 1}, {0, 1})) || (inColumn && IsEmptyLine({1, place.col}, {1, 0}));
    }

    /// Sets an island; a bridge that runs over the cell is parted.
    void SetIsland(CellPlace place) {
        pairs_ += IsCrossed(place) ? 1 : 0;
        At(place) = {true, 0, false};
        ++islands_;
    }

    /// Lays bridges to the island that is seen in this direction.
    void LayTowards(CellPlace place, int direction, int bridges) {
        CellPlace end = Next(place, StepOf(direction));
        while (!At(end).isIsland)
            end = Next(end, StepOf(direction));
        LayBetween(place, end, bridges);
    }

    Puzzle ToPuzzle() const;

 private:
    struct Cell {
        bool isIsland = false;
        int bridges = 0;      ///< those that run over it
        bool across = false;  ///< they run along the row
    };

    static CellPlace StepOf(int direction) { return kSteps[static_cast<std::size_t>(direction)]; }
    Cell& At(CellPlace place) { return cells_(place.row, place.col); }
    const Cell& At(CellPlace place) const { return cells_(place.row, place.col); }
    bool IsOnBoard(CellPlace place) const {
        return place.row >= 1 && place.row <= size_.rows && place.col >= 1 && place.col <= size_.cols;
    }

    bool IsApart(CellPlace place) const {
        return !At(place).isIsland && std::none_of(kSteps.begin(), kSteps.end(),
                                                   [&](CellPlace step) { return At(Next(place, step)).isIsland; });
    }

    bool IsEmptyLine(CellPlace place, CellPlace step) const {
        while (IsOnBoard(place) && !At(place).isIsland)
            place = Next(place, step);
        return !IsOnBoard(place);
    }

    void LayBetween(CellPlace a, CellPlace b, int bridges) {
        ++pairs_;
        const bool across = a.row == b.row;
        for (int row = std::min(a.row, b.row); row <= std::max(a.row, b.row); ++row) {
            for (int col = std::min(a.col, b.col); col <= std::max(a.col, b.col); ++col) {
                if (!cells_(row, col).isIsland) cells_(row, col) = {false, bridges, across};
            }
        }
    }

    /// The first island or bridge on the way from a cell, or the water beyond the border.
    const Cell& FirstThing(CellPlace place, CellPlace step) const {
        do {
            place = Next(place, step);
        } while (IsOnBoard(place) && !At(place).isIsland && !IsCrossed(place));
        return At(place);
    }

    BoardSize size_;
    int islands_ = 0;
    int pairs_ = 0;
    Grid<Cell> cells_;
};

Puzzle Cells::ToPuzzle() const {
    Puzzle puzzle(size_);
    PerCell<int> totals;
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const CellPlace from = puzzle.PlaceOf(id);
        if (!At(from).isIsland) continue;
        for (const CellPlace step : {CellPlace{0, 1}, CellPlace{1, 0}}) {
            CellPlace end = Next(from, step);
            const Cell& beside = At(end);
            if (beside.bridges == 0 || beside.across != (step.col == 1)) continue;
            while (!At(end).isIsland)
                end = Next(end, step);
            puzzle.LinkList.push_back(MakeLink(id, puzzle.CellId(end), kMostBridges - beside.bridges));
            totals[id] += beside.bridges;
            totals[puzzle.CellId(end)] += beside.bridges;
        }
    }
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
        puzzle.SetIsland(id, totals[id]);
    return puzzle;
}

/// Sets one island after the other.
class IslandSetter {
 public:
    IslandSetter(const Puzzle& solved, int islands, int loops, RandomSource& random)
        : size_(solved.Size()), cells_(solved), islands_(islands), loops_(loops), random_(random) {}

    Puzzle Run() {
        while (cells_.Islands() < islands_) {
            const auto place = DrawPlace();
            if (!place) break;
            SetAt(*place);
        }
        return cells_.ToPuzzle();
    }

 private:
    /// Whether there are fewer loops than there should be by now.
    bool LacksLoops() const { return cells_.Loops() * islands_ < loops_ * cells_.Islands(); }

    /// How many places are drawn to choose from. On a crowded board an island must not take much room from others, on
    /// any other one it may stand anywhere.
    int Choices() const {
        constexpr int kUncrowded = 28;  // islands in every hundred cells
        constexpr int kChoicesPerHundredth = 3;
        constexpr int kChoicesForLoops = 4;
        const int density = 100 * islands_ / (size_.rows * size_.cols);
        return std::max(kChoicesPerHundredth * (density - kUncrowded), LacksLoops() ? kChoicesForLoops : 1);
    }

    /// How good a place is: what it gives in loops and takes from other islands. A board reaches its border first.
    int WorthOf(CellPlace place) const {
        constexpr int kOfBorder = 10;
        const int loops = LacksLoops() ? cells_.SeenFrom(place).Count() - (cells_.IsCrossed(place) ? 0 : 1) : 0;
        return (cells_.IsOnEmptyBorder(place) ? kOfBorder : 0) + loops - cells_.Blocks(place);
    }

    /// The best of some places that are drawn; nothing when there seems to be none left.
    std::optional<CellPlace> DrawPlace() {
        constexpr int kDrawsPerCell = 4;
        std::optional<CellPlace> best;
        int most = 0;
        int choices = Choices();
        for (int draws = kDrawsPerCell * size_.rows * size_.cols; draws > 0 && choices > 0; --draws) {
            const CellPlace place{random_.Draw(size_.rows) + 1, random_.Draw(size_.cols) + 1};
            if (!cells_.MayTake(place)) continue;
            --choices;
            const int worth = WorthOf(place);
            if (best && worth <= most) continue;
            best = place;
            most = worth;
        }
        return best;
    }

    void SetAt(CellPlace place) {
        Directions seen = cells_.SeenFrom(place);
        const bool mustJoin = !cells_.IsCrossed(place);
        cells_.SetIsland(place);
        for (bool joins = mustJoin; !seen.Empty() && (joins || LacksLoops()); joins = false) {
            const CellNumber direction = seen[random_.Draw(seen.Count())];
            cells_.LayTowards(place, direction, random_.Draw(kMostBridges) + 1);
            seen.Remove(direction);
        }
    }

    BoardSize size_;
    Cells cells_;
    int islands_;
    int loops_;
    RandomSource& random_;
};

}  // namespace

Puzzle AddIslands(const Puzzle& solved, int islands, int loops, RandomSource& random) {
    return IslandSetter(solved, islands, loops, random).Run();
}

}  // namespace tidewalk
