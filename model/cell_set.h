// SPDX-License-Identifier: MIT
// A set of cell ids that is visited in ascending order.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "model/check.h"
#include "model/grid.h"

namespace tidewalk {

/// A set of cell ids 0..625: one bit each, so that copying it is a few words and finding the next member a few steps.
class CellSet {
 public:
    void Insert(CellNumber id) { Word(id) |= Bit(id); }
    void Erase(CellNumber id) { Word(id) &= ~Bit(id); }
    bool Contains(CellNumber id) const { return (words_[Index(id)] & Bit(id)) != 0; }
    void Clear() { words_.fill(0); }

    void InsertAll(const CellSet& other) {
        for (std::size_t i = 0; i < words_.size(); ++i)
            words_[i] |= other.words_[i];
    }

    /// The smallest member that is at least `from`, or 0 when there is none (0 itself is never found).
    CellNumber NextFrom(CellNumber from) const {
        if (from < 1) from = 1;
        if (from > kMaxCells) return 0;
        std::size_t index = Index(from);
        std::uint64_t word = words_[index] & (~std::uint64_t{0} << (from % 64));
        while (word == 0) {
            if (++index == words_.size()) return 0;
            word = words_[index];
        }
        return static_cast<CellNumber>(index * 64) + std::countr_zero(word);
    }

    CellNumber First() const { return NextFrom(1); }
    bool Empty() const { return First() == 0; }

    bool operator==(const CellSet&) const = default;

 private:
    static std::size_t Index(CellNumber id) {
        CheckIndex(id >= 0 && id <= kMaxCells);
        return static_cast<std::size_t>(id) / 64;
    }
    static std::uint64_t Bit(CellNumber id) { return std::uint64_t{1} << (id % 64); }
    std::uint64_t& Word(CellNumber id) { return words_[Index(id)]; }

    std::array<std::uint64_t, kMaxCells / 64 + 1> words_{};
};

}  // namespace tidewalk
