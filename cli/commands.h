// SPDX-License-Identifier: MIT
// The commands of the console program, one function each.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "generator/puzzle_order.h"
#include "model/plain_grid.h"
#include "model/puzzle_range.h"
#include "techniques/hint.h"

namespace tidewalk {

// A file name of "-" is the standard input or output. Each function returns the program's exit code and throws
// FileError when a file that it cannot do without cannot be read or written.

struct ListOptions {
    std::string file;
    PuzzleRange range;
    bool grades = false;
    int jobs = 1;
    bool json = false;
};
/// Prints a line for each of the puzzles: number, size, islands, bridges and the state of its stored solution; on
/// demand its grade and number of solutions, too.
int ListPuzzles(Console& console, const ListOptions& options);

struct SolveOptions {
    std::string file;
    PuzzleRange range;
    std::optional<std::string> out;  ///< where the solved records go
    std::optional<int> maxTrials;    ///< a puzzle that needs more is given up; 0 is the rules alone
    int jobs = 1;
    bool links = false;
    bool json = false;
};
/// Solves puzzles and prints what each took.
int SolvePuzzles(Console& console, const SolveOptions& options);

struct CheckOptions {
    std::string file;
    PuzzleRange range;
    double seconds = 0;  ///< the time for counting the solutions of one puzzle; 0 leaves none
    int jobs = 1;
    bool json = false;
};
/// Judges the stored bridges of puzzles and tells whether each has exactly one solution.
int CheckPuzzles(Console& console, const CheckOptions& options);

struct CreateOptions {
    std::string size;
    int first = 1;  ///< the number of the first puzzle of the run that is made
    int count = 1;
    std::optional<std::uint64_t> seed;
    PuzzleOrder order;
    std::string out;
    int jobs = 1;
    bool json = false;
};
/// Makes a part of a run of puzzles and appends them to a file. Puzzle k of a run follows from the seed, k, the size
/// and the order alone.
int CreatePuzzles(Console& console, const CreateOptions& options);

struct ExplainOptions {
    std::string file;
    PuzzleRange range;
    int jobs = 1;
    bool json = false;
};
/// Tells the way to the solution of each of the puzzles, step by step.
int ExplainPuzzles(Console& console, const ExplainOptions& options);

struct HintOptions {
    std::string file;
    int number = 1;
    std::vector<PlayedPair> played;  ///< the position
    bool json = false;
};
/// Tells the next step from a position, or what is wrong with it.
int GiveHint(Console& console, const HintOptions& options);

/// Whether a drawing in the terminal has colours; `Auto` leaves it to the terminal.
enum class Colouring { Auto, Always, Never };

struct ShowOptions {
    std::string file;
    int number = 1;
    bool solution = false;
    bool svg = false;  ///< a picture in SVG in place of characters
    Colouring colour = Colouring::Auto;
    std::optional<bool> largeCells;  ///< nothing leaves it to the terminal's width
    bool ascii = false;
    bool json = false;
};
/// Draws a puzzle with characters, or as a picture in SVG.
int ShowPuzzle(Console& console, const ShowOptions& options);

struct ShuffleOptions {
    std::string file;
    std::optional<std::uint64_t> seed;
    bool json = false;
};
/// Writes the distinct lines of a collection in random order to a file beside it.
int ShuffleCollection(Console& console, const ShuffleOptions& options);

struct ConvertOptions {
    std::string file;
    bool json = false;
};
/// Writes a collection of the older layout as one of today's to a file beside it.
int ConvertCollection(Console& console, const ConvertOptions& options);

struct AppendOptions {
    std::string file;
    int number = 1;
    std::string target;
    bool json = false;
};
/// Appends a puzzle of one collection to another.
int AppendPuzzle(Console& console, const AppendOptions& options);

struct DeleteOptions {
    std::string file;
    int number = 1;
    bool json = false;
};
/// Takes a puzzle out of its collection.
int DeletePuzzle(Console& console, const DeleteOptions& options);

struct ExportOptions {
    std::string file;
    PuzzleRange range;
    std::string grid = kStandard;
    GridForm form = GridForm::Plain;
    bool force = false;
    bool json = false;
};
/// Writes the bare numbers of puzzles; of several with an empty line behind each.
int ExportGrids(Console& console, const ExportOptions& options);

struct ImportOptions {
    std::string grid;
    std::optional<int> number;  ///< of the grid; the first if it is not told
    bool all = false;           ///< every puzzle among the grids instead
    std::string target;
    bool json = false;
};
/// Appends bare grids to a collection as puzzles without a stored solution.
int ImportGrids(Console& console, const ImportOptions& options);

}  // namespace tidewalk
