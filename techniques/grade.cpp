// SPDX-License-Identifier: MIT
#include "techniques/grade.h"

#include <algorithm>

#include "techniques/explain.h"

namespace tidewalk {

namespace {

/// A contradiction after so many rounds is still within one island's reach: the round of the ends and their neighbours,
/// and that of what these see.
constexpr int kNearRounds = 2;

// Where a path with such a technique as its hardest starts. From 1 a puzzle is "Easy", from 6 "Hard", from 11 "VHard".
constexpr int kFromConnections = 1;
constexpr int kToConnections = 5;
constexpr int kFromNear = 6;
constexpr int kFromFar = 11;
constexpr int kFromTrial = 21;

}  // namespace

void Efforts::Add(const Deduction& deduction) {
    switch (deduction.technique) {
        case Technique::CutOff:
            ++cutOffs;
            break;
        case Technique::WayOut:
            ++waysOut;
            break;
        case Technique::Suppose:
            ++(deduction.supposition->contradiction.reach <= kNearRounds ? near : far);
            break;
        case Technique::Trial:
            ++trials;
            break;
        case Technique::Last:
        case Technique::Least:
        case Technique::NoMore:
            break;
    }
}

int ScoreOf(const Efforts& efforts) {
    const int suppositions = efforts.near + 2 * efforts.far;
    if (efforts.trials > 0) return kFromTrial + 5 * (efforts.trials - 1) + suppositions;
    if (efforts.far > 0) return kFromFar + suppositions - 2;
    if (efforts.near > 0) return kFromNear + suppositions - 1;
    const int connections = efforts.cutOffs + 2 * efforts.waysOut;
    if (connections == 0) return 0;
    return std::min(kToConnections, kFromConnections + connections / 3);
}

std::optional<int> GradeBoard(const Archipelago& board, const SpanBridges& only, const MayGoOn& mayGoOn) {
    Efforts efforts;
    const bool whole =
        WalkPath(board, &only, mayGoOn, [&](const Position&, const Deduction& deduction) { efforts.Add(deduction); });
    if (!whole) return std::nullopt;
    return ScoreOf(efforts);
}

Assessment AssessSolutions(const Archipelago& board, const std::optional<std::vector<SpanBridges>>& found,
                           const MayGoOn& mayGoOn) {
    Assessment assessment;
    if (!found) return assessment;
    assessment.solutions = static_cast<int>(found->size());
    if (found->size() == 1) assessment.score = GradeBoard(board, found->front(), mayGoOn);
    return assessment;
}

Assessment AssessPuzzle(const Puzzle& puzzle, const MayGoOn& mayGoOn) {
    constexpr int kSeveral = 2;
    const Archipelago board(puzzle);
    return AssessSolutions(board, FindSolutions(board, kSeveral, mayGoOn), mayGoOn);
}

}  // namespace tidewalk
