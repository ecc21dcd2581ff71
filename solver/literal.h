// SPDX-License-Identifier: MIT
// What can be said of the bridges of a span: that there are at least so many, or fewer.
#pragma once

#include <cstddef>

#include "solver/archipelago.h"

namespace tidewalk {

/// "At least so many bridges" of 1 or 2, or its opposite.
class Literal {
 public:
    static Literal AtLeast(int span, int bridges) { return Literal((span * kMostBridges + bridges - 1) * 2); }
    static Literal Below(int span, int bridges) { return !AtLeast(span, bridges); }

    Literal operator!() const { return Literal(code_ ^ 1); }
    bool operator==(const Literal&) const = default;

    int Span() const { return code_ / (kMostBridges * 2); }
    int Bridges() const { return code_ / 2 % kMostBridges + 1; }
    bool IsAtLeast() const { return code_ % 2 == 0; }

    /// A place of its own in a table for every literal, from 0.
    std::size_t Index() const { return static_cast<std::size_t>(code_); }
    /// A place in a table for a literal and its opposite together, from 0.
    std::size_t Variable() const { return static_cast<std::size_t>(code_ / 2); }

 private:
    explicit Literal(int code) : code_(code) {}

    int code_;
};

/// How many places tables by `Variable` and by `Index` have.
inline std::size_t VariableCount(int spans) {
    return static_cast<std::size_t>(spans) * kMostBridges;
}
inline std::size_t LiteralCount(int spans) {
    return VariableCount(spans) * 2;
}

}  // namespace tidewalk
