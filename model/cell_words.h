// SPDX-License-Identifier: MIT
// The small types that stand for the solver's texts: crossing marks, neighbour lists and lists of joined islands.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/check.h"
#include "model/grid.h"

namespace tidewalk {

/// What runs over a cell: nothing, a horizontal bridge, a vertical one; `X` is an island that can grow no further
/// bridge.
enum class Cross : std::uint8_t { Free, H, V, X };

/// The mark's text: "", "h", "v" or "X".
std::string_view Text(Cross mark);

/// A list of at most `Capacity` cell ids in the order in which they were added. It never allocates.
template <int Capacity>
class IdList {
 public:
    int Count() const { return count_; }
    bool Empty() const { return count_ == 0; }
    void Clear() { count_ = 0; }

    /// The `i`-th id, counted from 0.
    CellNumber operator[](int i) const {
        CheckIndex(i >= 0 && i < count_);
        return ids_[static_cast<std::size_t>(i)];
    }

    bool Contains(CellNumber id) const {
        for (const CellNumber member : *this) {
            if (member == id) return true;
        }
        return false;
    }

    /// Appends `id`; a list that is full stays as it is.
    void Append(CellNumber id) {
        CheckIndex(id >= 0 && id <= kMaxCells);
        if (count_ < Capacity) ids_[count_++] = static_cast<std::uint16_t>(id);
    }

    /// Removes `id` wherever it stands; the others keep their order.
    void Remove(CellNumber id) {
        std::uint8_t kept = 0;
        for (int i = 0; i < count_; ++i) {
            if (ids_[i] != id) ids_[kept++] = ids_[i];
        }
        count_ = kept;
    }

    const std::uint16_t* begin() const { return ids_.data(); }
    const std::uint16_t* end() const { return ids_.data() + count_; }

    bool operator==(const IdList& other) const {
        if (count_ != other.count_) return false;
        for (int i = 0; i < count_; ++i) {
            if (ids_[i] != other.ids_[i]) return false;
        }
        return true;
    }

 private:
    std::array<std::uint16_t, Capacity> ids_{};
    std::uint8_t count_ = 0;
};

/// The islands that an island can still be bridged to, at most one a direction, in the order in which the directions
/// are scanned: lower column, higher column, lower row, higher row.
using NeighbourList = IdList<4>;

/// The islands that an island is joined to, in the order in which they were joined. Its text has another form.
struct JoinedList : IdList<4> {};

/// The list as four characters an entry, the id in three digits and a blank: "012 045 ".
std::string Text(const NeighbourList& list);

/// The list as a blank, the id and a comma each: " 12, 7,".
std::string Text(const JoinedList& list);

/// Reads the text form of a neighbour list; nothing when it has another form or more than four entries.
std::optional<NeighbourList> ParseNeighbourList(std::string_view text);

/// Reads the text form of a list of joined islands; nothing when it has another form.
std::optional<JoinedList> ParseJoinedList(std::string_view text);

}  // namespace tidewalk
