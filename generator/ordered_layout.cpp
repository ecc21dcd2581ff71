// SPDX-License-Identifier: MIT
#include "generator/ordered_layout.h"

#include <algorithm>

#include "generator/add_islands.h"
#include "generator/fit_figures.h"
#include "generator/refine.h"
#include "generator/solved_layout.h"

namespace tidewalk {

namespace {

/// One of the numbers that the figures hold; `least` when they hold none.
int DrawWithin(const Figures& figures, RandomSource& random) {
    return figures.least + random.Draw(std::max(1, figures.most - figures.least + 1));
}

/// A character with just one number of loops, one for which `wanted` asks, and an upper bound of doubles within those
/// that are wanted. Without it all puzzles of an order would be at the edge of its figures.
Character Narrowed(const Character& wanted, BoardSize size, RandomSource& random) {
    constexpr int kAllDouble = 100;
    Character drawn = wanted;
    if (wanted.loops) {
        const int loops = DrawWithin(Common(*wanted.loops, {0, MostLoops(size)}), random);
        drawn.loops = Figures{loops, loops};
    }
    if (wanted.doubles) drawn.doubles->most = DrawWithin(Common(*wanted.doubles, {0, kAllDouble}), random);
    return drawn;
}

/// A layout of as many islands as the character says, grown from one island.
Puzzle SetLayout(BoardSize size, const Character& character, RandomSource& random) {
    Puzzle start(size);
    // The order is fixed: that of two draws in one call would be the compiler's choice.
    const int col = random.Draw(size.cols) + 1;
    const int row = random.Draw(size.rows) + 1;
    start.SetIsland(start.CellId(row, col), 1);
    const Figures islands = Common(PartsOf(*character.density, start.CellCount()), IslandsToOrder(size));
    return AddIslands(start, DrawWithin(islands, random), character.loops ? character.loops->least : 0, random);
}

/// A small board grows too few islands for a way that is hard.
Puzzle WithMoreIslands(const Puzzle& grown, RandomSource& random) {
    constexpr int kEnough = 30;
    const int islands = grown.IslandCount();
    return AddIslands(grown, std::max(islands, std::min(islands + islands / 2, kEnough)), 0, random);
}

/// Many loops need more islands than grow.
Puzzle WithRoomForLoops(const Puzzle& grown, int loops, RandomSource& random) {
    constexpr int kIslandsPerLoop = 4;
    return AddIslands(
        grown, std::max(grown.IslandCount(), std::min(loops * kIslandsPerLoop, IslandsToOrder(grown.Size()).most)),
        loops, random);
}

/// Changes the layout until it is what was ordered, as far as that comes about.
void Refine(SolvedLayout& layout, const PuzzleOrder& order, RandomSource& random, const MayGoOn& mayGoOn) {
    if (!FitFigures(layout, order.character, random)) return;
    if (order.grade) {
        MakeGrade(layout, *order.grade, order.character, random, mayGoOn);
    } else if (order.oneSolution) {
        MakeUnique(layout, order.character, random, mayGoOn);
    }
}

}  // namespace

bool NeedsOrderedLayout(const PuzzleOrder& order) {
    return order.character != Character() || order.grade == Grade::VHard;
}

CreatedPuzzle CreateOrdered(SolverBoard& board, BoardSize size, const PuzzleOrder& order, RandomSource& random,
                            const MayGoOn& mayGoOn) {
    const Character drawn = Narrowed(order.character, size, random);
    CreatedPuzzle created;
    if (drawn.density) {
        created.solved = true;
        created.puzzle = SetLayout(size, drawn, random);
        if (created.puzzle.IslandCount() < PartsOf(*drawn.density, created.puzzle.CellCount()).least) return created;
    } else {
        created = CreatePuzzle(board, size, random, mayGoOn);
        if (!created.solved) return created;
        if (drawn.loops) created.puzzle = WithRoomForLoops(created.puzzle, drawn.loops->least, random);
        if (order.grade == Grade::VHard) created.puzzle = WithMoreIslands(created.puzzle, random);
    }
    SolvedLayout layout(created.puzzle);
    FitFigures(layout, drawn, random);
    Refine(layout, order, random, mayGoOn);
    created.puzzle = layout.ToPuzzle();
    return created;
}

}  // namespace tidewalk
