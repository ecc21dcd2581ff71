// SPDX-License-Identifier: MIT
#include "generator/character.h"

#include <algorithm>
#include <cstdint>

namespace tidewalk {

namespace {

constexpr int kHundred = 100;

}  // namespace

Figures Common(const Figures& a, const Figures& b) {
    return {std::max(a.least, b.least), std::min(a.most, b.most)};
}

Figures PartsOf(const Figures& hundredths, int whole) {
    const std::int64_t least = (std::int64_t{hundredths.least} * whole + kHundred - 1) / kHundred;
    const std::int64_t most = std::min(std::int64_t{hundredths.most} * whole / kHundred, std::int64_t{whole});
    // Whatever is above the whole is as good as one more.
    return {static_cast<int>(std::min(least, std::int64_t{whole} + 1)), static_cast<int>(most)};
}

int FewestIslands(BoardSize size) {
    // Of 10,000 boards of each size from 7x7 to 25x25, grown without any wish, the middle one has cells * (99 - longer
    // side) / 500 islands, with no more than 2 islands of difference: 10 on 7x7, 38 on 15x15, 91 on 25x25, 25 on 7x25.
    // These 2 are given in addition, so that no size falls below its half.
    constexpr int kSlope = 99;
    constexpr int kScale = 500;
    constexpr int kDifference = 2;
    const int scaled = size.rows * size.cols * (kSlope - std::max(size.rows, size.cols)) + kDifference * kScale;
    return (scaled + 2 * kScale - 1) / (2 * kScale);
}

Figures IslandsToOrder(BoardSize size) {
    return {FewestIslands(size), size.rows * size.cols * kMostDensity / kHundred};
}

int MostLoops(BoardSize size) {
    constexpr int kCellsPerLoop = 10;
    return size.rows * size.cols / kCellsPerLoop;
}

bool CanBeOrdered(const Character& character, BoardSize size) {
    const auto meets = [](const std::optional<Figures>& wanted, const Figures& possible) {
        return !wanted || !Common(*wanted, possible).Empty();
    };
    const bool hasIslands =
        !character.density || !Common(PartsOf(*character.density, size.rows * size.cols), IslandsToOrder(size)).Empty();
    return hasIslands && meets(character.loops, {0, MostLoops(size)}) && meets(character.doubles, {0, kHundred});
}

}  // namespace tidewalk
