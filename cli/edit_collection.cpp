// SPDX-License-Identifier: MIT
// The commands "append", "delete", "export" and "import", which move single puzzles.
#include <algorithm>
#include <memory>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/puzzle_facts.h"
#include "cli/record_output.h"
#include "cli/report.h"
#include "cli/temporary_files.h"
#include "model/collection_edit.h"
#include "model/load_puzzle.h"
#include "model/paths.h"
#include "model/read_grid_file.h"
#include "model/replace_file.h"
#include "model/write_puzzle_record.h"
#include "program/headless.h"

namespace tidewalk {

namespace {

/// Appends the puzzle to the collection and reports where it went.
int AppendTo(Console& console, const std::string& target, const Puzzle& puzzle, bool json) {
    AppendedRecords(console, target).Add(PuzzleRecord(puzzle));
    if (target == kStandard) return ExitCodeOf(console, 0);
    const auto game = std::make_unique<HeadlessGame>();
    const int number = CountLines(*game, target);
    ReportOnce(console, json, "puzzle " + std::to_string(number) + " appended to " + target,
               {{"file", target}, {"number", number}});
    return ExitCodeOf(console, 0);
}

/// The message that a player would have seen, in one line.
std::string InOneLine(std::string message) {
    for (std::size_t at = 0; (at = message.find("\r\n", at)) != std::string::npos;)
        message.replace(at, 2, " ");
    return message;
}

}  // namespace

int AppendPuzzle(Console& console, const AppendOptions& options) {
    const auto puzzle = std::make_unique<Puzzle>();
    if (!ReadOnePuzzle(console, options.file, options.number, *puzzle)) return ExitCodeOf(console, 1);
    return AppendTo(console, options.target, *puzzle, options.json);
}

int DeletePuzzle(Console& console, const DeleteOptions& options) {
    const InputFile file(console, options.file);
    const auto game = std::make_unique<HeadlessGame>();
    const int count = CountLines(*game, file.Path());
    if (SayIfMissing(console, options.file, {options.number, options.number}, count) > 0) return kFailed;
    if (count == 1) {
        Say(console, options.file + ": there is only one puzzle in this file");
        return kFailed;
    }
    const TemporaryFile work;
    const int left = DeleteLine(*game, file.Path(), options.number, work.Path());
    ReportOnce(console, options.json,
               "puzzle " + std::to_string(options.number) + " deleted from " + options.file + ", " +
                   std::to_string(left) + " left",
               {{"file", options.file}, {"number", options.number}, {"left", left}});
    return ExitCodeOf(console, 0);
}

int ExportGrid(Console& console, const ExportOptions& options) {
    constexpr const char* kLineEnd = "\r\n";
    const auto puzzle = std::make_unique<Puzzle>();
    if (!ReadOnePuzzle(console, options.file, options.number, *puzzle)) return ExitCodeOf(console, 1);
    const auto write = [&](std::ostream& out) {
        for (const std::string& row : PlainGrid(*puzzle))
            out << row << kLineEnd;
    };
    if (options.grid == kStandard) {
        write(console.out);
        console.out << std::flush;
        return ExitCodeOf(console, 0);
    }
    if (!options.force && FileLength(options.grid) > 0) {
        Say(console, options.grid + ": the file is there already; --force replaces it");
        return kFailed;
    }
    ReplaceFile(options.grid, write);
    ReportOnce(console, options.json, "puzzle " + std::to_string(options.number) + " exported to " + options.grid,
               {{"file", options.grid}, {"number", options.number}});
    return ExitCodeOf(console, 0);
}

int ImportGrid(Console& console, const ImportOptions& options) {
    const InputFile file(console, options.grid);
    if (console.Stopped()) return ExitCodeOf(console, 1);
    const auto game = std::make_unique<HeadlessGame>();
    if (ReadGridFile(*game, file.Path(), options.number) == YesValue) {
        Say(console, options.grid + ": " + InOneLine(game->LastMessage()));
        return kFailed;
    }
    if (IslandCount(*game) == 0) {
        Say(console, options.grid + ": there are no islands in the grid");
        return kFailed;
    }
    return AppendTo(console, options.target, *game, options.json);
}

}  // namespace tidewalk
