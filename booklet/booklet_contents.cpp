// SPDX-License-Identifier: MIT
#include "booklet/booklet_contents.h"

#include <algorithm>
#include <tuple>

#include "solver/valid_solution.h"
#include "techniques/grade.h"

namespace tidewalk {

namespace {

/// More choices than the grade of a puzzle that people solve ever took; beyond, it stays unknown.
constexpr int kMostChoices = 200000;

/// The puzzle with the bridges of a solution, or none where none was found before `mayGoOn` said no.
Puzzle WithSolution(const Puzzle& puzzle, const MayGoOn& mayGoOn) {
    if (IsValidSolution(puzzle)) return puzzle;
    const Archipelago board(puzzle);
    const auto found = FindSolutions(board, 1, mayGoOn);
    if (!found || found->empty()) return WithoutLinks(puzzle);
    return WithBridges(puzzle, board, found->front());
}

MayGoOn UpTo(int choices) {
    return [left = choices]() mutable { return --left >= 0; };
}

/// What sets the place of an entry.
std::tuple<int, int, int> KeyOf(const BookletEntry& entry, BookletDesign::Order order) {
    switch (order) {
        case BookletDesign::Order::Size:
            return {entry.size.rows * entry.size.cols, std::max(entry.size.rows, entry.size.cols), entry.number};
        case BookletDesign::Order::Grade:
            return {entry.score ? 0 : 1, entry.score.value_or(0), entry.number};
        case BookletDesign::Order::Number:
            break;
    }
    return {0, 0, entry.number};
}

}  // namespace

std::optional<BookletContents> ReadBookletContents(const std::string& collection, const PuzzleRange& range, bool graded,
                                                   const ContentsStep& step) {
    BookletContents contents;
    LineIndex lines;
    const int last = std::min(range.last, lines.Count(collection));
    for (int number = range.first; number <= last; ++number) {
        const int done = number - range.first;
        bool stopped = !step(done);
        const MayGoOn mayGoOn = [&, within = UpTo(kMostChoices)] {
            stopped = stopped || !step(done);
            return !stopped && within();
        };
        if (stopped) return std::nullopt;
        const auto puzzle = ReadPuzzle(lines, collection, number);
        if (!puzzle) {
            contents.unreadable.push_back(number);
            continue;
        }
        BookletEntry entry{number, puzzle->Size(), std::nullopt, WithSolution(*puzzle, mayGoOn).LinkCount() > 0};
        if (graded) entry.score = AssessPuzzle(*puzzle, mayGoOn).score;
        if (stopped) return std::nullopt;
        contents.entries.push_back(entry);
    }
    return contents;
}

void SortEntries(std::vector<BookletEntry>& entries, BookletDesign::Order order) {
    std::sort(entries.begin(), entries.end(),
              [order](const BookletEntry& a, const BookletEntry& b) { return KeyOf(a, order) < KeyOf(b, order); });
}

std::optional<Puzzle> ReadSolvedPuzzle(LineIndex& lines, const std::string& collection, int number) {
    const auto puzzle = ReadPuzzle(lines, collection, number);
    if (!puzzle) return std::nullopt;
    return WithSolution(*puzzle, UpTo(kMostChoices));
}

}  // namespace tidewalk
