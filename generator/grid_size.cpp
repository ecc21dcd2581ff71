// SPDX-License-Identifier: MIT
#include "generator/grid_size.h"

#include "model/numbers.h"

namespace tidewalk {

namespace {

int DrawRandomSide(RandomSource& random) {
    return random.Draw(kMaxSide - kMinSide) + kMinSide;
}

}  // namespace

WantedSize ParseGridSize(std::string_view text) {
    const std::string size = LowerCase(Trim(text));
    if (size.empty()) return {true, {}};
    const std::size_t x = size.find('x');
    if (x == std::string::npos) return {false, {RoundedVal(size), RoundedVal(size)}};
    return {false, {RoundedVal(std::string_view(size).substr(0, x)), RoundedVal(std::string_view(size).substr(x + 1))}};
}

bool IsCreatableSize(BoardSize size) {
    return size.rows >= kMinSide && size.rows <= kMaxSide && size.cols >= kMinSide && size.cols <= kMaxSide;
}

BoardSize DrawRandomSize(RandomSource& random) {
    const int rows = DrawRandomSide(random);
    return {rows, DrawRandomSide(random)};
}

BoardSize SizeOf(const WantedSize& wanted, RandomSource& random) {
    return wanted.random ? DrawRandomSize(random) : wanted.size;
}

}  // namespace tidewalk
