// SPDX-License-Identifier: MIT
// The board on the screen and what the player has done on it.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/grid.h"
#include "model/surface.h"

namespace tidewalk {

/// The player's bridges between any two cells: 0, 1 or 2, the same in both orders of the pair.
class BridgeTable {
 public:
    int operator()(CellNumber a, CellNumber b) const { return states_[Place(a, b)]; }

    /// Sets both orders of the pair.
    void Set(CellNumber a, CellNumber b, int state) {
        states_[Place(a, b)] = static_cast<std::uint8_t>(state);
        states_[Place(b, a)] = static_cast<std::uint8_t>(state);
    }

    /// The bridges from `a` to each of the cells 0..625.
    std::span<const std::uint8_t> Row(CellNumber a) const {
        return std::span(states_).subspan(Place(a, 0), static_cast<std::size_t>(kMaxCells) + 1);
    }

    void Clear() { states_.assign(states_.size(), 0); }

 private:
    static std::size_t Place(CellNumber a, CellNumber b) {
        CheckIndex(a >= 0 && a <= kMaxCells && b >= 0 && b <= kMaxCells);
        return static_cast<std::size_t>(a) * (kMaxCells + 1) + static_cast<std::size_t>(b);
    }

    std::vector<std::uint8_t> states_ = std::vector<std::uint8_t>((kMaxCells + 1) * (kMaxCells + 1));
};

/// What stood between two islands before a move.
struct UndoRecord {
    CellNumber a = 0;
    CellNumber b = 0;
    int state = 0;  ///< 0, 1 or 2 bridges

    bool operator==(const UndoRecord&) const = default;
};

/// The record's line in the undo list: " 12, 15, 1".
std::string Text(const UndoRecord& record);

/// Reads such a line; nothing when it has another form or names a cell beyond 625 or a state beyond 2.
std::optional<UndoRecord> ParseUndoRecord(std::string_view text);

/// A rectangle on the board or in its container, in twips.
struct Frame {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

inline constexpr int kSmallestCell = 200;  ///< in twips
inline constexpr int kLargestCell = 700;   ///< in twips

struct BoardState {
    int CellSize = 250;      ///< the side of a cell in twips, 200..700 after every layout
    int FittedCellSize = 0;  ///< the cell size with which the last loaded puzzle fitted its container, 0 before that
    int HalfCell = 0;        ///< half a cell, in twips
    int DoubleGap = 0;       ///< between the two strokes of a double line, in twips
    int OriginX = 125;       ///< where the island of row 1, column 1 lies, in twips
    int OriginY = 125;
    PerCell<int> IslandX;  ///< where an island lies on the board, in twips
    PerCell<int> IslandY;
    int LineWidth = 1;  ///< the normal pen, in pixels

    Frame Picture1;  ///< the board in its container
    Colour Picture1BackColor = kWhite;

    BridgeTable BridgeState;
    std::deque<UndoRecord> UndoList;  ///< newest first
    std::uint64_t undoRevision = 0;   ///< changes with every change of the undo list

    int HoverRow = 0;  ///< the cell under the pointer; 0 or -1 for none
    int HoverCol = 0;
    int AnchorRow = 0;  ///< the selected island; 0 or -1 for none
    int AnchorCol = 0;
    int FocusRow = 0;  ///< the island with the keyboard's focus; 0 for none
    int FocusCol = 0;
    bool focusShows = false;  ///< the last move on the board was made with a key
    int DragOffsetX = 0;      ///< the pointer less the board's corner when the left button went down, in twips
    int DragOffsetY = 0;
    bool dragging = false;  ///< the offsets are those of the button that is down now

    /// The rubber band from the selected island to the pointer.
    struct {
        bool visible = false;
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
    } Line1;

    /// The frame around the island that a check found wrong.
    struct {
        bool visible = false;
        Frame frame;
    } Shape1;
};

}  // namespace tidewalk
