// SPDX-License-Identifier: MIT
#include "booklet/booklet_contents.h"

#include <algorithm>
#include <tuple>

#include "model/numbers.h"
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

/// "7x7 to 12x12", or one size.
std::string SizesText(const std::vector<BookletEntry>& entries) {
    const auto smaller = [](const BookletEntry& a, const BookletEntry& b) {
        return a.size.rows * a.size.cols < b.size.rows * b.size.cols;
    };
    const auto [least, most] = std::minmax_element(entries.begin(), entries.end(), smaller);
    if (least == entries.end()) return "";
    std::string from = SizeText(least->size);
    const std::string to = SizeText(most->size);
    if (from == to) return from;
    return from + (smaller(*least, *most) ? " to " : " and ") + to;
}

/// "5, 9 and 12 others": so many of the numbers as one reads.
std::string SomeOf(const std::vector<int>& numbers) {
    constexpr std::size_t kMostNamed = 8;
    const std::size_t named = std::min(numbers.size(), kMostNamed);
    std::vector<std::string> words;
    for (std::size_t i = 0; i < named; ++i)
        words.push_back(NumText(numbers[i]));
    const auto others = static_cast<int>(numbers.size() - named);
    if (others > 0) words.push_back(NumText(others) + (others == 1 ? " other" : " others"));
    return Listed(words);
}

}  // namespace

std::string ContentsText(const std::vector<BookletEntry>& entries) {
    const auto count = static_cast<int>(entries.size());
    return NumText(count) + (count == 1 ? " puzzle, " : " puzzles, ") + SizesText(entries);
}

std::vector<std::string> RemarksOn(const BookletContents& contents, const BookletDesign& design) {
    std::vector<std::string> remarks;
    const auto add = [&remarks](const std::string& words, const std::vector<int>& numbers) {
        if (!numbers.empty()) remarks.push_back(words + SomeOf(numbers));
    };
    std::vector<int> unsolved;
    for (const BookletEntry& entry : contents.entries) {
        if (!entry.solved) unsolved.push_back(entry.number);
    }
    add("Lines that are no puzzles and were left out: ", contents.unreadable);
    if (design.solutions != BookletDesign::Solutions::None) add("Puzzles without a solution: ", unsolved);
    return remarks;
}

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
        BookletEntry entry{number, puzzle->Size(), std::nullopt, WithSolution(*puzzle, mayGoOn).LinkCount() > 0,
                           Fingerprint(*puzzle)};
        if (graded) entry.score = AssessPuzzle(*puzzle, mayGoOn).score;
        if (stopped) return std::nullopt;
        contents.entries.push_back(entry);
    }
    return contents;
}

std::uint64_t Fingerprint(const Puzzle& puzzle) {
    // FNV-1a, over the size and the number of every cell.
    std::uint64_t hash = 14695981039346656037U;
    const auto add = [&hash](int value) { hash = (hash ^ static_cast<std::uint64_t>(value)) * 1099511628211U; };
    add(puzzle.Rows);
    add(puzzle.Cols);
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
        add(puzzle.IslandAt(id));
    return hash;
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
