// SPDX-License-Identifier: MIT
// What several commands tell of a puzzle.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/collection_lines.h"
#include "cli/report.h"
#include "model/puzzle.h"
#include "solver/archipelago.h"
#include "solver/count_solutions.h"
#include "techniques/grade.h"

namespace tidewalk {

/// What is said of a solution that was written without some of its bridges.
inline constexpr const char* kCutShort = "the record cannot hold a bridge between touching islands";

/// What the stored bridges are.
enum class StoredSolution {
    None,
    Valid,
    CutShort,  ///< right but for bridges between touching islands, which a record cannot hold
    Wrong
};

StoredSolution JudgeStored(const Puzzle& puzzle);

/// "none", "valid", "cut short" or "wrong".
std::string Word(StoredSolution stored);

/// Its rows and columns.
JsonFields SizeFields(const Puzzle& puzzle);

/// Reads the puzzle of a line and begins the report on it with its number and size, in columns. A line that is no
/// record is a fault, and nothing is returned.
std::optional<Puzzle> BeginReport(const NumberedLine& line, PuzzleReport& report);

/// How many bridges lie between two islands, by their cells, the lower one first; of islands with bridges alone.
using BridgedPairs = std::map<std::pair<int, int>, int>;

BridgedPairs BridgesOf(const Puzzle& puzzle);
BridgedPairs BridgesOf(const Archipelago& board, const SpanBridges& solution);

/// The bridges as "id-id:count", in order of the ids.
std::vector<std::string> BridgeTexts(const BridgedPairs& bridges);

/// Two solutions are several.
inline constexpr int kSeveral = 2;

/// Lets work on one puzzle go on until a signal asks the run to end, or so many choices that hardly any puzzle needs.
MayGoOn WithinBounds(const Console& console);

/// Grade, score and number of solutions; null where that is not known.
JsonFields FieldsOf(const Assessment& assessment);

/// Adds grade, score and number of solutions, in columns; what is not known is "-", in JSON null.
void AddAssessment(PuzzleReport& report, const Assessment& assessment);

}  // namespace tidewalk
