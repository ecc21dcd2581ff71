// SPDX-License-Identifier: MIT
#include "generator/fit_figures.h"

#include <numeric>
#include <utility>
#include <vector>

namespace tidewalk {

namespace {

/// All spans of the layout in a drawn order.
std::vector<int> DrawnOrder(const SolvedLayout& layout, RandomSource& random) {
    std::vector<int> spans(layout.Bridges().size());
    std::iota(spans.begin(), spans.end(), 0);
    for (int left = static_cast<int>(spans.size()); left > 1; --left)
        std::swap(spans[static_cast<std::size_t>(left - 1)], spans[static_cast<std::size_t>(random.Draw(left))]);
    return spans;
}

bool FitLoops(SolvedLayout& layout, const Figures& loops, RandomSource& random) {
    if (loops.Hold(layout.Loops())) return true;
    for (const int span : DrawnOrder(layout, random)) {
        if (layout.Loops() < loops.least && layout.At(span) == 0 && layout.IsFree(span)) {
            layout.Set(span, random.Draw(kMostBridges) + 1);
        } else if (layout.Loops() > loops.most && layout.At(span) > 0 && layout.IsSpare(span)) {
            layout.Set(span, 0);
        }
    }
    return loops.Hold(layout.Loops());
}

bool FitDoubles(SolvedLayout& layout, const Figures& hundredths, RandomSource& random) {
    const Figures doubles = PartsOf(hundredths, layout.Pairs());
    if (doubles.Hold(layout.Doubles())) return true;
    for (const int span : DrawnOrder(layout, random)) {
        if (layout.Doubles() < doubles.least && layout.At(span) == 1) {
            layout.Set(span, kMostBridges);
        } else if (layout.Doubles() > doubles.most && layout.At(span) == kMostBridges) {
            layout.Set(span, 1);
        }
    }
    return doubles.Hold(layout.Doubles());
}

}  // namespace

bool FitFigures(SolvedLayout& layout, const Character& character, RandomSource& random) {
    if (character.loops && !FitLoops(layout, *character.loops, random)) return false;
    return !character.doubles || FitDoubles(layout, *character.doubles, random);
}

}  // namespace tidewalk
