// SPDX-License-Identifier: MIT
// The commands "explain" and "hint": the way to the solution, and the next step on it.
#include <optional>
#include <utility>
#include <vector>

#include "cli/collection_lines.h"
#include "cli/collection_run.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"
#include "cli/report.h"
#include "techniques/hint.h"
#include "techniques/sentences.h"

namespace tidewalk {

namespace {

/// Pairs of islands by their cells, each with a number of bridges.
JsonNumbers Triples(const Archipelago& board, const std::vector<SpanBound>& bounds) {
    JsonNumbers triples;
    for (const SpanBound& bound : bounds) {
        const Span& span = board.SpanAt(bound.span);
        triples.push_back({board.IsleAt(span.ends[0]).id, board.IsleAt(span.ends[1]).id, bound.bridges});
    }
    return triples;
}

JsonFields FieldsOf(const Archipelago& board, const Step& step) {
    const Deduction& deduction = step.deduction;
    std::vector<int> islands;
    for (const int isle : deduction.isles)
        islands.push_back(board.IsleAt(isle).id);
    JsonFields fields;
    fields.emplace_back("technique", std::string(TechniqueId(deduction.technique)));
    fields.emplace_back("rule", deduction.rule ? JsonValue(std::string(RuleName(*deduction.rule))) : nullptr);
    fields.emplace_back("level", LevelOf(deduction.technique));
    fields.emplace_back("islands", islands);
    fields.emplace_back("must", Triples(board, deduction.must));
    fields.emplace_back("cannot", Triples(board, deduction.cannot));
    fields.emplace_back("text", step.text);
    return fields;
}

JsonObjects FieldsOf(const Archipelago& board, const std::vector<Step>& steps) {
    JsonObjects objects;
    for (const Step& step : steps)
        objects.push_back(FieldsOf(board, step));
    return objects;
}

/// "last, 1-1 connect: The 1 at row 2, ...".
std::string LineOf(const Step& step) {
    std::string line(TechniqueId(step.deduction.technique));
    if (step.deduction.rule) line += ", " + std::string(RuleName(*step.deduction.rule));
    return line + ": " + step.text;
}

/// Adds the way to the solution, a line a step or in JSON; of a puzzle with several solutions as far as it leads.
void AddPath(PuzzleReport& report, const Puzzle& puzzle, bool json, const MayGoOn& mayGoOn) {
    constexpr int kStepWidth = 10;
    const Archipelago board(puzzle);
    const auto found = FindSolutions(board, kSeveral, mayGoOn);
    std::vector<Step> steps;
    Efforts efforts;
    bool solved = false;
    if (found && !found->empty()) {
        const SpanBridges* const only = found->size() == 1 ? &found->front() : nullptr;
        solved = WalkPath(board, only, mayGoOn, [&](const Position& position, const Deduction& deduction) {
            efforts.Add(deduction);
            steps.push_back({deduction, Sentence(position, deduction)});
        });
    }
    Assessment assessment;
    if (found) assessment.solutions = static_cast<int>(found->size());
    if (solved && found->size() == 1) assessment.score = ScoreOf(efforts);
    AddAssessment(report, assessment);
    if (json) {
        report.fields.emplace_back("solved", solved);
        report.fields.emplace_back("steps", FieldsOf(board, steps));
        return;
    }
    for (std::size_t i = 0; i < steps.size(); ++i)
        report.line += "\n" + Padded(std::to_string(i + 1), kStepWidth) + "  " + LineOf(steps[i]);
}

/// What is said of a hint without a step; "" of one with a step.
std::string WithoutStep(HintKind kind) {
    switch (kind) {
        case HintKind::NoSolution:
            return "the puzzle has no solution";
        case HintKind::Several:
            return "the puzzle has several solutions";
        case HintKind::Nothing:
            return "no next step was found";
        case HintKind::Finished:
            return "the puzzle is solved";
        case HintKind::Step:
        case HintKind::Mistake:
            break;
    }
    return "";
}

JsonNumbers PairsOf(const std::vector<PlayedPair>& played) {
    JsonNumbers pairs;
    for (const PlayedPair& pair : played)
        pairs.push_back({pair.a, pair.b});
    return pairs;
}

std::string TextOf(const Archipelago& board, const Hint& hint) {
    std::string text = WithoutStep(hint.kind);
    if (hint.kind == HintKind::Step) text = LineOf(hint.steps.front());
    for (const PlayedPair& wrong : hint.mistakes)
        text += (text.empty() ? "mistake: " : "\nmistake: ") + MistakeText(board, wrong);
    return text;
}

/// The first pair of the position whose islands do not see each other, as it was given; "" when all do.
std::string PairOutOfSight(const Archipelago& board, const std::vector<PlayedPair>& played) {
    for (const PlayedPair& pair : played) {
        if (SpanBetween(board, pair.a, pair.b) < 0) return std::to_string(pair.a) + "-" + std::to_string(pair.b);
    }
    return "";
}

}  // namespace

int ExplainPuzzles(Console& console, const ExplainOptions& options) {
    return ReportOnCollection(console, {options.file, options.range, options.jobs, options.json},
                              [&](const NumberedLine& line) {
                                  PuzzleReport report;
                                  const std::optional<Puzzle> puzzle = BeginReport(line, report);
                                  if (puzzle) AddPath(report, *puzzle, options.json, WithinBounds(console));
                                  return report;
                              });
}

int GiveHint(Console& console, const HintOptions& options) {
    const std::optional<Puzzle> puzzle = ReadOnePuzzle(console, options.file, options.number);
    if (!puzzle) return ExitCodeOf(console, 1);
    const Archipelago board(*puzzle);
    if (const std::string pair = PairOutOfSight(board, options.played); !pair.empty()) {
        Say(console, pair + ": these are no two islands that see each other");
        return kWrongUsage;
    }
    const auto found = FindSolutions(board, kSeveral, WithinBounds(console));
    const Hint hint = FindHint(board, found, options.played, HintStep::Any, WithinBounds(console));
    JsonFields fields = SizeFields(*puzzle);
    fields.insert(fields.begin(), {"number", options.number});
    for (JsonFields::value_type& field : FieldsOf(AssessSolutions(board, found, WithinBounds(console))))
        fields.push_back(std::move(field));
    fields.emplace_back("solved", hint.kind == HintKind::Finished);
    fields.emplace_back("steps", FieldsOf(board, hint.steps));
    if (!hint.mistakes.empty()) fields.emplace_back("mistake", PairsOf(hint.mistakes));
    ReportOnce(console, options.json, TextOf(board, hint), fields);
    const bool answered =
        hint.kind == HintKind::Step || hint.kind == HintKind::Mistake || hint.kind == HintKind::Finished;
    return ExitCodeOf(console, answered ? 0 : 1);
}

}  // namespace tidewalk
