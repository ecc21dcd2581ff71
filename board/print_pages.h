// SPDX-License-Identifier: MIT
// Puzzles as pictures, and printing them, a page each.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "drawing/render_puzzle.h"
#include "game/output.h"
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

/// The content of page `number`, counted from 0; nothing for a page that stays empty.
using PageSource = std::function<std::optional<PuzzlePage>(int number)>;

/// Draws one page: the puzzle, and its solution beneath.
void DrawPage(const PuzzlePage& content, int lineWidth, Surface& page, const Surface::Area& printable);

enum class PrintEnd { Printed, Cancelled, Failed };

/// Draws so many pages and ends the document. `mayGoOn` is asked before each. After `Failed` the document tells why.
PrintEnd PrintPages(PrintDocument& document, int pages, int lineWidth, const PageSource& source,
                    const MayGoOn& mayGoOn);

/// The page of puzzle `number` of the collection; nothing when it cannot be read.
std::optional<PuzzlePage> PageOf(const std::string& collection, int number);

}  // namespace tidewalk
