// SPDX-License-Identifier: MIT
#include "solver/balance.h"

#include <vector>

namespace tidewalk {

namespace {

/// Colours the islands that open spans join, one such group after the other.
class Colouring {
 public:
    Colouring(const Archipelago& board, const BoundTrail& trail)
        : board_(board), trail_(trail), colours_(board.isles.size(), 0) {}

    bool IsColoured(int isle) const { return ColourOf(isle) != 0; }

    /// Colours all islands of a group, of which none is coloured; false when it is not balanced.
    bool IsGroupBalanced(int first) {
        bool twoColours = true;
        int total = 0;
        int difference = 0;
        Colour(first, 1);
        while (!waiting_.empty()) {
            const int isle = waiting_.back();
            waiting_.pop_back();
            total += Need(isle);
            difference += ColourOf(isle) * Need(isle);
            for (const int span : board_.IsleAt(isle).spans) {
                if (!trail_.IsOpen(span)) continue;
                const int other = board_.SpanAt(span).Other(isle);
                if (!IsColoured(other)) Colour(other, -ColourOf(isle));
                twoColours = twoColours && ColourOf(other) != ColourOf(isle);
            }
        }
        return twoColours ? difference == 0 : total % 2 == 0;
    }

 private:
    int ColourOf(int isle) const { return colours_[static_cast<std::size_t>(isle)]; }

    void Colour(int isle, int colour) {
        colours_[static_cast<std::size_t>(isle)] = static_cast<signed char>(colour);
        waiting_.push_back(isle);
    }

    /// What an island needs over open spans.
    int Need(int isle) const {
        int need = board_.IsleAt(isle).number;
        for (const int span : board_.IsleAt(isle).spans)
            need -= trail_.IsOpen(span) ? 0 : trail_.Low(span);
        return need;
    }

    const Archipelago& board_;
    const BoundTrail& trail_;
    std::vector<signed char> colours_;  ///< 1, -1, or 0 for none yet
    std::vector<int> waiting_;
};

}  // namespace

bool IsBalanced(const Archipelago& board, const BoundTrail& trail) {
    Colouring colouring(board, trail);
    for (int isle = 0; isle < board.IsleCount(); ++isle) {
        if (!colouring.IsColoured(isle) && !colouring.IsGroupBalanced(isle)) return false;
    }
    return true;
}

}  // namespace tidewalk
