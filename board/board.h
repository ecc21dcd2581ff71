// SPDX-License-Identifier: MIT
// The board: the puzzle on the screen, and what the player has done on it.
#pragma once

#include <string>

#include "board/bridge_table.h"
#include "board/guide.h"
#include "board/history.h"
#include "board/layout.h"
#include "board/pair_marks.h"
#include "model/cell_words.h"
#include "model/puzzle.h"

namespace tidewalk {

/// The board's state. It is drawn by `RedrawBoard` and changed by the handlers of the mouse, the keyboard and the
/// menus.
struct Board {
    Puzzle puzzle;
    PerCell<NeighbourList> OpenNeighbours;  ///< by island: whom it could still be bridged to when a solve ended

    BoardLayout layout;
    double magnification = 1;  ///< of the layout, on the screen; 1 where 96 pixels show an inch
    bool fits = true;          ///< the magnification is such that the board fills its container
    int FittedCellSize = 0;    ///< the cell size with which the last loaded puzzle fitted its container, 0 before that

    BridgeTable BridgeState;
    PairMarks Marks;
    History history;
    std::string playNote;  ///< what is to be said of the play that was kept for the puzzle, "" for nothing
    int loadCount = 0;     ///< how often the puzzle was replaced as a whole

    int HoverRow = 0;  ///< the cell that a click is for; 0 or -1 for none
    int HoverCol = 0;
    int AnchorRow = 0;  ///< the selected island; 0 or -1 for none
    int AnchorCol = 0;
    int FocusRow = 0;  ///< the island with the keyboard's focus; 0 for none
    int FocusCol = 0;
    int DragOffsetX = 0;  ///< the pointer less the board's corner when the left button went down, in twips
    int DragOffsetY = 0;

    bool startsAfresh = false;  ///< the puzzle that comes next comes without what was played on it
    bool solved = false;        ///< the player's bridges are a true solution
    bool focusShows = false;    ///< the last move on the board was made with a key
    bool dragging = false;      ///< the offsets are those of the button that is down now
    bool pressIsOver = false;   ///< the left button is still down, but called off or moving the board: no click
    bool otherIsOver = false;   ///< another button is down that called it off, and does nothing else

    /// A press of the left button on an island, which may become a bridge drawn to another one.
    struct {
        CellNumber island = 0;  ///< 0 for none
        Point at;               ///< the pointer in the container, in twips
        bool drawing = false;   ///< the pointer has gone too far for a click
    } press;

    /// The rubber band from the selected island to the pointer, in twips on the board.
    struct {
        bool visible = false;
        Point from;
        Point to;
    } Line1;

    /// The frame around the island that a check found wrong.
    struct {
        bool visible = false;
        CellPlace cell;
    } Shape1;

    /// Two islands that the list of moves points at; 0 for none.
    struct PointedPair {
        CellNumber a = 0;
        CellNumber b = 0;
        bool operator==(const PointedPair&) const = default;
    } pointed;

    Guide guide;

    /// The guide, or null when a move has made it out of date.
    const Guide* ShownGuide() const { return guide.revision == history.Revision() ? &guide : nullptr; }
    /// The bridges that the board shows: the player's, or those of an explained step.
    const BridgeTable& ShownBridges() const;

    /// Where the island of a cell lies, in twips.
    Point At(CellNumber id) const { return layout.At(puzzle.PlaceOf(id)); }
};

/// The selected island, or 0.
CellNumber SelectedIsland(const Board& board);

/// The island with the keyboard's focus, or 0.
CellNumber FocusedIsland(const Board& board);

/// Forgets the cell under the pointer and the selected island.
void DropSelection(Board& board);

/// The rubber band of a selected island lies over the same cells after a new layout as it did in the one `before`.
void FollowLayout(Board& board, const BoardLayout& before);

/// Puts a puzzle on the board. Bridges, moves and selection were made on another one and are gone. The layout stays.
void TakePuzzle(Board& board, const Puzzle& puzzle);

}  // namespace tidewalk
