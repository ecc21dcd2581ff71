// SPDX-License-Identifier: MIT
// The commands "append", "delete", "export" and "import", which move puzzles between files.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"
#include "cli/record_output.h"
#include "cli/report.h"
#include "cli/temporary_files.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/grid_reader.h"
#include "model/grid_tally.h"
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

/// Says why the grids must not be written there; true when they may.
bool MayWriteGrids(Console& console, const ExportOptions& options) {
    if (AreOneFile(options.file, options.grid)) {
        Say(console, options.grid + ": the grid must not replace its own collection");
        return false;
    }
    if (IsStream(options.grid) || options.force || FileLength(options.grid) == 0) return true;
    Say(console, options.grid + ": the file is there already; --force replaces it");
    return false;
}

int ExportGrid(Console& console, const ExportOptions& options, int number) {
    const std::optional<Puzzle> puzzle = ReadOnePuzzle(console, options.file, number);
    if (!puzzle) return ExitCodeOf(console, 1);
    if (!MayWriteGrids(console, options)) return kFailed;
    const auto write = [&](std::ostream& out) { out << GridText(*puzzle, options.form); };
    if (IsStream(options.grid)) {
        StreamOutput output(console, options.grid);
        write(output.Stream());
        output.Flush();
        if (options.grid == kStandard) return ExitCodeOf(console, 0);
    } else {
        ReplaceFile(options.grid, write);
    }
    ReportOnce(console, options.json, "puzzle " + std::to_string(number) + " exported to " + options.grid,
               {{"file", options.grid}, {"number", number}});
    return kDone;
}

/// "12 puzzles", "1 puzzle".
std::string PuzzlesText(std::int64_t count) {
    return std::to_string(count) + (count == 1 ? " puzzle" : " puzzles");
}

int ExportRange(Console& console, const ExportOptions& options) {
    if (!MayWriteGrids(console, options)) return kFailed;
    ReplacedRecords output(console, options.grid);
    CollectionLines lines(console, options.file);
    int failures = 0;
    int written = 0;
    for (NumberedLine line; lines.NextWithin(options.range, line);) {
        const std::optional<Puzzle> puzzle = ParsePuzzleRecord(line.text);
        if (puzzle) {
            // The line end behind the grid's own makes the empty line between two.
            output.Add(GridText(*puzzle, options.form));
            ++written;
        } else {
            ++failures;
            SayOfPuzzle(console, options.file, line.number, kNoRecord);
        }
    }
    if (!console.Stopped()) failures += SayIfMissing(console, options.file, options.range, lines.Number());
    if (console.Stopped() || written == 0) return ExitCodeOf(console, failures);
    output.Finish();
    if (options.grid == kStandard) return ExitCodeOf(console, failures);
    ReportOnce(console, options.json, PuzzlesText(written) + " exported to " + options.grid,
               {{"file", options.grid}, {"written", written}});
    return failures == 0 ? kDone : kFailed;
}

/// Why grid `number` of a file cannot be taken; "" when it can.
std::string FaultOfGrid(GridResult result, const FoundGrid& grid, const ImportOptions& options, int number) {
    switch (result) {
        case GridResult::NotFound:
            return "Grid " + std::to_string(number) + " not found";
        case GridResult::Failed:
            return "Error reading grid from: " + options.grid;
        case GridResult::Read:
            break;
    }
    return grid.puzzle.IslandCount() == 0 ? "there are no islands in the grid" : "";
}

/// Says what else is in a file of which nobody told the grid.
void SayOfOtherGrids(Console& console, const ImportOptions& options, const std::string& path) {
    GridTally tally;
    std::string first;
    try {
        GridReader reader(path, kGlance, UntilStopSignal(console));
        for (FoundGrid grid; reader.Next(grid) && !reader.CutShort();)
            tally.Add(grid);
        if (reader.CutShort()) first = "the first ";
    } catch (const FileError&) {
        // What cannot be read behind the grid that was asked for is none of its business.
    }
    if (tally.Grids() > 1)
        Say(console, options.grid + ": " + first + tally.Words() + "; --grid takes another one, --all takes all");
}

void SayNoPuzzle(Console& console, const ImportOptions& options, const FoundGrid& grid, const std::string& more) {
    Say(console, options.grid + ": line " + std::to_string(grid.line) + ": not a puzzle" + more);
}

/// Messages call the file at `path` by the name in the options.
int ImportGrid(Console& console, const ImportOptions& options, const std::string& path) {
    const int number = options.number.value_or(1);
    FoundGrid grid;
    const GridResult result = ReadGridFrom(path, number, grid, UntilStopSignal(console));
    if (console.Stopped()) return ExitCodeOf(console, 1);
    if (const std::string fault = FaultOfGrid(result, grid, options, number); !fault.empty()) {
        Say(console, options.grid + ": " + fault);
        if (!options.number) SayOfOtherGrids(console, options, path);
        return kFailed;
    }
    if (!grid.isPuzzle) SayNoPuzzle(console, options, grid, ", taken as it is");
    const int code = AppendTo(console, options.target, grid.puzzle, options.json);
    if (!options.number) SayOfOtherGrids(console, options, path);
    return code;
}

int ImportAll(Console& console, const ImportOptions& options, const std::string& path) {
    AppendedRecords output(console, options.target);
    GridReader reader(path, GridReader::kWithoutEnd, UntilStopSignal(console));
    GridTally tally;
    for (FoundGrid grid; !console.Stopped() && reader.Next(grid);) {
        tally.Add(grid);
        if (grid.isPuzzle) {
            output.Add(PuzzleRecord(grid.puzzle));
        } else {
            SayNoPuzzle(console, options, grid, "");
        }
    }
    output.Finish();
    const int failures = tally.Puzzles() < std::max<std::int64_t>(tally.Grids(), 1) ? 1 : 0;
    if (tally.Grids() == 0) Say(console, options.grid + ": there are no grids in the file");
    if (options.target == kStandard || console.Stopped()) return ExitCodeOf(console, failures);
    ReportOnce(console, options.json,
               PuzzlesText(tally.Puzzles()) + " appended to " + options.target + ": " + tally.Words(),
               {{"file", options.target}, {"written", tally.Puzzles()}, {"grids", tally.Grids()}});
    return failures == 0 ? kDone : kFailed;
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

int ExportGrids(Console& console, const ExportOptions& options) {
    const PuzzleRange& range = options.range;
    return range.first == range.last ? ExportGrid(console, options, range.first) : ExportRange(console, options);
}

int ImportGrids(Console& console, const ImportOptions& options) {
    if (AreOneFile(options.grid, options.target)) {
        Say(console, options.target + ": the puzzles must not go into the file of their grids");
        return kFailed;
    }
    const InputFile file(console, options.grid);
    if (console.Stopped()) return ExitCodeOf(console, 1);
    return options.all ? ImportAll(console, options, file.Path()) : ImportGrid(console, options, file.Path());
}

}  // namespace tidewalk
