// SPDX-License-Identifier: MIT
// The seams of what is asked or shown in windows of its own: a file, a batch, a range to print, a booklet, solutions.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "booklet/booklet_contents.h"
#include "drawing/sheet.h"
#include "game/order_choices.h"
#include "model/grid_reader.h"

namespace tidewalk {

/// What the file-name picker is to ask.
struct FileRequest {
    enum class Mode { Open, Save };

    std::string title;
    std::string patterns;     ///< "*.tdw;*.txt;*.dat"
    std::string patternName;  ///< "Tidewalk Files"
    std::string startFolder;
    Mode mode = Mode::Open;
    std::string ending = {};  ///< what the picker gives a name to save that has none: "txt"
    std::string name = {};    ///< the name that stands there at first, without a folder
};

/// Asks for a file name.
class FilePicker {
 public:
    virtual ~FilePicker() = default;

    /// The chosen path, or "" when the player thinks better of it. Never asks about overwriting.
    virtual std::string Pick(const FileRequest& request) = 0;
};

/// A batch of new puzzles: the texts as they were typed, and what was chosen.
struct BatchRequest {
    std::string count;
    std::string rows;
    std::string cols;
    std::string outputFile;
    OrderChoice order = {};
};

/// Puzzles of a collection to print, as far as the player has come with saying which.
struct PrintRequest {
    std::string collection;
    std::string first;  ///< the first puzzle, as typed
    std::string last;
    int puzzleCount = 0;                ///< in the collection, as last counted
    std::vector<std::string> printers;  ///< to choose from
    std::string printer;                ///< the chosen one
};

/// What is known of the puzzles of a booklet.
struct KnownPuzzles {
    BookletContents contents;
    bool graded = false;  ///< grades were looked for, too
};

/// Puzzles of a collection to make a booklet of, and what it is to be.
struct BookletRequest : PrintRequest {
    SheetFormat format;
    BookletDesign design;
    /// What the window has found out about just these puzzles, so that nobody has to do so again. Nothing at first.
    std::shared_ptr<const KnownPuzzles> known;
};

/// Two islands between which two solutions have different bridges.
struct Difference {
    CellNumber a = 0;
    CellNumber b = 0;
    std::string text;  ///< where that is, and which bridges lie there in either
};

/// Solutions of a puzzle to look at.
struct FoundSolutions {
    std::string caption;                  ///< what there is to be said of them
    std::vector<Puzzle> solutions;        ///< one, or two different ones: the puzzle with the bridges as links
    std::vector<Difference> differences;  ///< none with one solution
};

/// Grids of which one is to be chosen.
struct GridChoice {
    std::string caption;  ///< what they are and where they come from
    std::vector<FoundGrid> grids;
};

/// The windows that a command waits for.
class Questions {
 public:
    virtual ~Questions() = default;

    /// Asks for a batch of new puzzles, with the order in `request` to begin with. True when OK was accepted; `request`
    /// then holds what was typed.
    virtual bool AskBatch(BatchRequest& request) = 0;

    /// Asks for puzzles to print, beginning with `request`. True when OK was accepted.
    virtual bool AskPrint(PrintRequest& request) = 0;

    /// Asks for a booklet, beginning with `request`. True when Print was accepted.
    virtual bool AskBooklet(BookletRequest& request) = 0;

    /// Asks for a puzzle of the open collection. Its number; 0 when the player thinks better of it.
    virtual int ChoosePuzzle() = 0;

    /// Asks for one of the grids that fit a board. Its number, from 1; 0 when the player thinks better of it.
    virtual int ChooseGrid(const GridChoice& choice) = 0;

    /// Shows solutions until the player has seen enough.
    virtual void ShowSolutions(const FoundSolutions& found) = 0;
};

}  // namespace tidewalk
