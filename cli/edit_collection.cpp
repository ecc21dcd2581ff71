// SPDX-License-Identifier: MIT
// The commands "append", "delete", "export" and "import", which move single puzzles.
#include <filesystem>
#include <optional>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"
#include "cli/record_output.h"
#include "cli/report.h"
#include "cli/temporary_files.h"
#include "model/collection_file.h"
#include "model/line_reader.h"
#include "model/paths.h"
#include "model/plain_grid.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Appends the puzzle to the collection and reports where it went.
int AppendTo(Console& console, const std::string& target, const Puzzle& puzzle, bool json) {
    AppendedRecords output(console, target);
    const int number = output.Add(PuzzleRecord(puzzle), Numbering::Count);
    output.Finish();
    if (target == kStandard) return ExitCodeOf(console, 0);
    // A stream has no lines to count.
    const bool counted = number > 0;
    ReportOnce(console, json, "puzzle " + (counted ? std::to_string(number) + " appended to " : "written to ") + target,
               {{"file", target}, {"number", counted ? JsonValue(number) : JsonValue(nullptr)}});
    // What is done is done, whatever signal came meanwhile.
    return kDone;
}

/// What is wrong with a grid file; "" when the grid was read and is a puzzle.
std::string FaultOfGrid(GridResult result, const Puzzle& puzzle, const ImportOptions& options) {
    switch (result) {
        case GridResult::NotFound:
            return "Grid " + std::to_string(options.number) + " not found";
        case GridResult::Failed:
            return "Error reading grid from: " + options.grid;
        case GridResult::Read:
            break;
    }
    return puzzle.IslandCount() == 0 ? "there are no islands in the grid" : "";
}

}  // namespace

int AppendPuzzle(Console& console, const AppendOptions& options) {
    const std::optional<Puzzle> puzzle = ReadOnePuzzle(console, options.file, options.number);
    if (!puzzle) return ExitCodeOf(console, 1);
    if (JudgeStored(*puzzle) == StoredSolution::CutShort) SayOfPuzzle(console, options.file, options.number, kCutShort);
    return AppendTo(console, options.target, *puzzle, options.json);
}

int DeletePuzzle(Console& console, const DeleteOptions& options) {
    std::error_code error;
    const bool isOther =
        std::filesystem::exists(options.file, error) && !std::filesystem::is_regular_file(options.file, error);
    if (isOther || IsStream(options.file)) {
        Say(console, options.file + ": a puzzle can be deleted from a file only");
        return kWrongUsage;
    }
    const Deleted deleted =
        DeleteLine(options.file, options.number, std::nullopt, "", WaitingFor(console, options.file));
    switch (deleted.outcome) {
        case Deleted::Outcome::Done:
            break;
        case Deleted::Outcome::OnlyLine:
            Say(console, options.file + ": there is only one puzzle in this file");
            return kFailed;
        case Deleted::Outcome::NoSuchLine:
        case Deleted::Outcome::OtherLine:
            SayIfMissing(console, options.file, {options.number, options.number}, deleted.left);
            return kFailed;
    }
    console.isDone = true;
    ReportOnce(console, options.json,
               "puzzle " + std::to_string(options.number) + " deleted from " + options.file + ", " +
                   std::to_string(deleted.left) + " left",
               {{"file", options.file}, {"number", options.number}, {"left", deleted.left}});
    // The puzzle is gone, whatever signal came meanwhile: who reads of a stop would delete another one.
    return kDone;
}

int ExportGrid(Console& console, const ExportOptions& options) {
    const std::optional<Puzzle> puzzle = ReadOnePuzzle(console, options.file, options.number);
    if (!puzzle) return ExitCodeOf(console, 1);
    const auto write = [&](std::ostream& out) {
        for (const std::string& row : PlainGrid(*puzzle))
            out << row << kLineEnd;
    };
    if (AreOneFile(options.file, options.grid)) {
        Say(console, options.grid + ": the grid must not replace its own collection");
        return kFailed;
    }
    if (IsStream(options.grid)) {
        StreamOutput output(console, options.grid);
        write(output.Stream());
        output.Flush();
        if (options.grid == kStandard) return ExitCodeOf(console, 0);
    } else if (!options.force && FileLength(options.grid) > 0) {
        Say(console, options.grid + ": the file is there already; --force replaces it");
        return kFailed;
    } else {
        ReplaceFile(options.grid, write);
    }
    ReportOnce(console, options.json, "puzzle " + std::to_string(options.number) + " exported to " + options.grid,
               {{"file", options.grid}, {"number", options.number}});
    return kDone;
}

int ImportGrid(Console& console, const ImportOptions& options) {
    const InputFile file(console, options.grid);
    if (console.Stopped()) return ExitCodeOf(console, 1);
    Puzzle puzzle;
    const GridResult result = ReadGridFrom(file.Path(), options.number, puzzle);
    if (const std::string fault = FaultOfGrid(result, puzzle, options); !fault.empty()) {
        Say(console, options.grid + ": " + fault);
        return kFailed;
    }
    return AppendTo(console, options.target, puzzle, options.json);
}

}  // namespace tidewalk
