// SPDX-License-Identifier: MIT
#include "cli/puzzle_facts.h"

#include <algorithm>

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
    const std::string size = SizeText(puzzle->Size());
    report.line = Padded(std::to_string(line.number), kNumberWidth) + "  " + Padded(size, kSizeWidth);
    report.fields = SizeFields(*puzzle);
    return puzzle;
}

BridgedPairs BridgesOf(const Puzzle& puzzle) {
    BridgedPairs laid;
    for (const Link& link : puzzle.LinkList) {
        if (link.Bridges() > 0) laid[std::minmax<int>(link.first, link.second)] += link.Bridges();
    }
    return laid;
}

BridgedPairs BridgesOf(const Archipelago& board, const SpanBridges& solution) {
    BridgedPairs laid;
    for (int span = 0; span < board.SpanCount(); ++span) {
        const auto& ends = board.SpanAt(span).ends;
        const int count = solution[static_cast<std::size_t>(span)];
        if (count > 0) laid[{board.IsleAt(ends[0]).id, board.IsleAt(ends[1]).id}] = count;
    }
    return laid;
}

std::vector<std::string> BridgeTexts(const BridgedPairs& bridges) {
    std::vector<std::string> texts;
    texts.reserve(bridges.size());
    for (const auto& [islands, count] : bridges) {
        texts.push_back(std::to_string(islands.first) + "-" + std::to_string(islands.second) + ":" +
                        std::to_string(count));
    }
    return texts;
}

MayGoOn WithinBounds(const Console& console) {
    constexpr int kMostChoices = 100000;
    return
        [mayGoOn = UntilStopSignal(console), choices = 0]() mutable { return ++choices <= kMostChoices && mayGoOn(); };
}

JsonFields FieldsOf(const Assessment& assessment) {
    const auto valueOf = [](const std::optional<int>& number) {
        return number ? JsonValue(*number) : JsonValue(nullptr);
    };
    const JsonValue grade =
        assessment.score ? JsonValue(std::string(DifficultyName(*assessment.score))) : JsonValue(nullptr);
    return {{"grade", grade}, {"score", valueOf(assessment.score)}, {"solutions", valueOf(assessment.solutions)}};
}

void AddAssessment(PuzzleReport& report, const Assessment& assessment) {
    constexpr int kGradeWidth = 5;
    constexpr const char* kSolutions[] = {"no solution", "one solution", "several solutions"};
    const std::string grade = assessment.score ? std::string(DifficultyName(*assessment.score)) : "-";
    report.line += "  " + Padded(grade, -kGradeWidth) + "  " +
                   (assessment.solutions ? kSolutions[*assessment.solutions] : "undecided");
    for (JsonFields::value_type& field : FieldsOf(assessment))
        report.fields.push_back(std::move(field));
}

}  // namespace tidewalk
