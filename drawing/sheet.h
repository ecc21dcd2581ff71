// SPDX-License-Identifier: MIT
// Sheets of paper.
#pragma once

#include "drawing/surface.h"

namespace tidewalk {

enum class Paper { A4, A5, Letter };

/// Which sheets a document is made of.
struct SheetFormat {
    Paper paper = Paper::A4;
    bool landscape = false;

    bool operator==(const SheetFormat&) const = default;
};

/// A sheet that lies as it is read, in twips.
struct Sheet {
    Surface::Extent size;
    Surface::Area printable;  ///< what a printer can print on, from the sheet's top left corner
};

}  // namespace tidewalk
