// SPDX-License-Identifier: MIT
// A whole board as a picture of any size.
#pragma once

#include <QPixmap>

#include "board/board.h"
#include "options/options.h"

namespace tidewalk {

/// Large cells with the same margin on all sides, for a board that is scaled afterwards.
BoardLayout WholeBoardLayout(BoardSize size);

/// The scale at which the board, laid out so, fits into this room; the scale is 1 for the layout's own twips.
double ScaleInto(const Board& board, QSizeF room);

/// The board at this scale, without what lies over it, in the pixels of a screen of this pixel ratio.
QPixmap DrawWholeBoard(const Board& board, const Options& options, double scale, double ratio);

}  // namespace tidewalk
