// SPDX-License-Identifier: MIT
#include "cli/puzzle_facts.h"

#include "model/puzzle_record.h"
#include "solver/difficulty.h"
#include "solver/valid_solution.h"

namespace tidewalk {

StoredSolution JudgeStored(const Puzzle& puzzle) {
    if (puzzle.LinkCount() == 0) return StoredSolution::None;
    if (IsValidSolution(puzzle)) return StoredSolution::Valid;
    return LacksOnlyTouchingBridges(puzzle) ? StoredSolution::CutShort : StoredSolution::Wrong;
}

std::string Word(StoredSolution stored) {
    switch (stored) {
        case StoredSolution::None:
            return "none";
        case StoredSolution::Valid:
            return "valid";
        case StoredSolution::CutShort:
            return "cut short";
        case StoredSolution::Wrong:
            break;
    }
    return "wrong";
}

JsonFields SizeFields(const Puzzle& puzzle) {
    return {{"rows", puzzle.Rows}, {"cols", puzzle.Cols}};
}

std::optional<Puzzle> BeginReport(const NumberedLine& line, PuzzleReport& report) {
    constexpr int kNumberWidth = 6;
    constexpr int kSizeWidth = 5;
    report.number = line.number;
    report.part = line.part;
    std::optional<Puzzle> puzzle = ParsePuzzleRecord(line.text);
    if (!puzzle) {
        report.fault = kNoRecord;
        return puzzle;
    }
    const std::string size = std::to_string(puzzle->Rows) + "x" + std::to_string(puzzle->Cols);
    report.line = Padded(std::to_string(line.number), kNumberWidth) + "  " + Padded(size, kSizeWidth);
    report.fields = SizeFields(*puzzle);
    return puzzle;
}

MayGoOn WithinBounds(const Console& console) {
    constexpr int kMostChoices = 300000;
    return
        [mayGoOn = UntilStopSignal(console), choices = 0]() mutable { return ++choices <= kMostChoices && mayGoOn(); };
}

void AddAssessment(PuzzleReport& report, const Assessment& assessment) {
    constexpr int kGradeWidth = 5;
    constexpr const char* kSolutions[] = {"no solution", "one solution", "several solutions"};
    const std::string grade = assessment.score ? std::string(DifficultyName(*assessment.score)) : "-";
    report.line += "  " + Padded(grade, -kGradeWidth) + "  " +
                   (assessment.solutions ? kSolutions[*assessment.solutions] : "undecided");
    report.fields.emplace_back("grade", assessment.score ? JsonValue(grade) : JsonValue(nullptr));
    report.fields.emplace_back("score", assessment.score ? JsonValue(*assessment.score) : JsonValue(nullptr));
    report.fields.emplace_back("solutions",
                               assessment.solutions ? JsonValue(*assessment.solutions) : JsonValue(nullptr));
}

}  // namespace tidewalk
