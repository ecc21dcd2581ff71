// SPDX-License-Identifier: MIT
// Puzzles as pictures, and printing them, a page each.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "drawing/render_puzzle.h"
#include "game/output.h"
#include "model/line_index.h"
#include "model/may_go_on.h"
#include "model/puzzle.h"

namespace tidewalk {

/// The picture that `request` asks for, in all its forms.
PuzzlePicture PictureOf(const Puzzle& puzzle, const RenderRequest& request);

/// What a page shows.
struct PuzzlePage {
    Puzzle puzzle;
    std::string title;
};

/// Draws one page: the puzzle, and its solution beneath.
void DrawPage(const PuzzlePage& content, int lineWidth, Surface& page, const Surface::Area& printable);

enum class PrintEnd { Printed, Cancelled, Failed };

/// Draws page `number`, counted from 0; a page on which nothing is drawn stays empty.
using DrawNumbered = std::function<void(int number, Surface& page, const Sheet& sheet)>;

/// Draws so many pages and ends the document. `mayGoOn` is asked before each, and before the end. After `Failed` the
/// document tells why.
PrintEnd PrintPages(PrintDocument& document, int pages, const DrawNumbered& draw, const MayGoOn& mayGoOn);

/// The page of puzzle `number` of the collection; nothing when it cannot be read.
std::optional<PuzzlePage> PageOf(LineIndex& lines, const std::string& collection, int number);

}  // namespace tidewalk
