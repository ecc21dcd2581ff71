// SPDX-License-Identifier: MIT
#include "booklet/front_pages.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "booklet/print_text.h"
#include "model/numbers.h"
#include "solver/count_solutions.h"
#include "techniques/explain.h"

namespace tidewalk {

namespace {

constexpr double kTitleSize = 30;  ///< in points, and so are the others
constexpr double kAuthorSize = 14;
constexpr double kContentsSize = 11;
constexpr double kSmallestSize = 7;
constexpr int kStepsShown = 4;  ///< of the way to the example's solution, in a picture
constexpr int kLargestEmblemCell = 560;

constexpr std::string_view kRules[] = {
    "The number of an island, 1 to 8, is the number of bridges that end there.",
    "A bridge joins two islands of the same row or the same column in a straight line.",
    "Two islands can be joined by one bridge or by two, never by more.",
    "A bridge crosses no other bridge and passes over no island.",
    "When all is done, the bridges join all the islands into one group."};

double Middle(const Surface::Area& body) {
    return (body.left + body.right) / 2;
}

/// Draws a board of this cell whose upper edge has its middle at (middle, top).
void DrawBoardAt(const Puzzle& puzzle, Surface& surface, int cell, double middle, double top, IslandShape shape,
                 bool withBridges) {
    constexpr int kPen = 4;
    Surface::Area drawn;
    DrawPrintedBoard(puzzle, surface, BoardOfCell(cell, middle - puzzle.Cols * cell / 2.0, top, shape, kPen),
                     withBridges, drawn);
}

/// The title in as many lines as it needs, in letters that let it end within a third of the body. Returns where the
/// next line begins.
double PrintTitle(Surface& surface, const Surface::Area& body, double top, const std::string& title) {
    constexpr double kSizes[] = {kTitleSize, 24, 18, 14, kContentsSize, 9};
    const double width = body.right - body.left;
    const double end = body.top + (body.bottom - body.top) / 3;
    std::vector<std::string> lines;
    double size = 0;
    for (const double smaller : kSizes) {
        size = smaller;
        surface.SetFontSize(size);
        lines = Wrapped(surface, title, width);
        const auto fits = [&](const std::string& line) { return surface.TextExtent(line).width <= width; };
        const double height = static_cast<double>(lines.size()) * surface.TextExtent(title).height;
        if (top + height <= end && std::all_of(lines.begin(), lines.end(), fits)) break;
    }
    const double height = surface.TextExtent(title).height;
    for (std::size_t i = 0; i < lines.size() && top + height <= end; ++i) {
        const bool cut = i + 1 < lines.size() && top + 2 * height > end;
        top += PrintLine(surface, Middle(body), top, cut ? lines[i] + " ..." : lines[i], size, size, width);
    }
    return top;
}

/// Draws a puzzle in the middle of the room: the cover's own where it is small and can be read, else the example.
void DrawEmblem(const Cover& cover, Surface& surface, const Surface::Area& room) {
    constexpr double kShare = 0.7;
    const auto cellOf = [&room](const Puzzle& puzzle) {
        return std::min({kLargestEmblemCell, static_cast<int>((room.right - room.left) * kShare / puzzle.Cols),
                         static_cast<int>((room.bottom - room.top) * kShare / puzzle.Rows)});
    };
    constexpr int kLargestEmblem = 12;  ///< rows or columns; larger boards are no ornament
    const int side = cover.emblem.MaxDim();
    const bool readable = side > 0 && side <= kLargestEmblem && cellOf(cover.emblem) >= kSmallestPuzzleCell;
    const Puzzle emblem = readable ? cover.emblem : ExamplePuzzle();
    const int cell = cellOf(emblem);
    const double top = (room.top + room.bottom - emblem.Rows * cell) / 2;
    DrawBoardAt(emblem, surface, cell, Middle(room), top, cover.shape, false);
}

/// The page of the rules in letters of one size.
class RulesPage {
 public:
    RulesPage(Surface& surface, const Surface::Area& body, IslandShape shape, double points)
        : surface_(surface), body_(body), shape_(shape), points_(points), y_(body.top) {}

    /// Draws the page, or only finds out how far down it reaches.
    void Lay(bool draws) {
        draws_ = draws;
        Heading("The rules");
        for (const std::string_view rule : kRules)
            Paragraph("\u2022", rule);
        Gap();
        Boards();
        Gap();
        Heading("How the example is solved");
        int number = 0;
        for (const Step& step : Path())
            Paragraph(NumText(++number) + ".", step.text);
    }

    double Bottom() const { return y_; }

 private:
    double Twips(double lines) const { return lines * points_ * kTwipsPerPoint; }
    void Gap() { y_ += Twips(1); }

    void Heading(const std::string& text) {
        constexpr double kLarger = 1.5;
        surface_.SetKind(Kind::Heading);
        surface_.SetFontSize(points_ * kLarger);
        const Surface::Extent extent = surface_.TextExtent(text);
        if (draws_) surface_.Print(Middle(body_) - extent.width / 2, y_, text, kBlack);
        y_ += extent.height + Twips(0.5);
    }

    /// A text with a mark or number before it.
    void Paragraph(const std::string& mark, std::string_view text) {
        constexpr double kMeasure = 42;  ///< the width of the column, in letters' heights
        const double width = std::min(body_.right - body_.left, Twips(kMeasure));
        const double left = Middle(body_) - width / 2;
        const double indent = Twips(1.6);
        surface_.SetKind(Kind::Other);
        surface_.SetFontSize(points_);
        if (draws_) surface_.Print(left, y_, mark, kBlack);
        for (const std::string& line : Wrapped(surface_, text, width - indent)) {
            if (draws_) surface_.Print(left + indent, y_, line, kBlack);
            y_ += surface_.TextExtent(line).height;
        }
        y_ += Twips(0.25);
    }

    /// The puzzle, how it stands on the way, and its solution.
    void Boards() {
        constexpr double kCell = 1.9;
        const Puzzle solved = ExamplePuzzle();
        const int cell = static_cast<int>(Twips(kCell));
        const double width = solved.Cols * cell + Twips(kCell * 2);
        const std::pair<Puzzle, std::string> stages[] = {
            {WithoutLinks(solved), "The puzzle"},
            {AfterSteps(kStepsShown), "After steps 1 to " + NumText(kStepsShown)},
            {solved, "The solution"}};
        double middle = Middle(body_) - width;
        surface_.SetFontSize(points_);
        const double caption = surface_.TextExtent("1").height + Twips(0.4);
        for (const auto& [puzzle, text] : stages) {
            if (draws_) {
                surface_.SetKind(Kind::Other);
                PrintLine(surface_, middle, y_, text, points_, kSmallestSize, width - Twips(1));
                DrawBoardAt(puzzle, surface_, cell, middle, y_ + caption, shape_, true);
            }
            middle += width;
        }
        y_ += caption + solved.Rows * cell;
    }

    static std::vector<Step> Path() {
        const Archipelago board(ExamplePuzzle());
        return ExplainPath(board, &FindSolutions(board, 1, WithoutEnd)->front(), WithoutEnd);
    }

    /// The example with the bridges of its first steps.
    static Puzzle AfterSteps(int count) {
        const Archipelago board(ExamplePuzzle());
        SpanBridges laid(static_cast<std::size_t>(board.SpanCount()));
        const std::vector<Step> steps = Path();
        for (int i = 0; i < count; ++i) {
            for (const SpanBound& bound : steps.at(static_cast<std::size_t>(i)).deduction.must)
                laid[static_cast<std::size_t>(bound.span)] = static_cast<std::uint8_t>(bound.bridges);
        }
        return WithBridges(ExamplePuzzle(), board, laid);
    }

    Surface& surface_;
    Surface::Area body_;
    IslandShape shape_;
    double points_;
    double y_;
    bool draws_ = false;
};

}  // namespace

void DrawCover(const Cover& cover, Surface& surface, const Surface::Area& body) {
    const double height = body.bottom - body.top;
    const double width = body.right - body.left;
    surface.SetKind(Kind::Title);
    double y = PrintTitle(surface, body, body.top + height / 8, cover.title.empty() ? "Bridges Puzzles" : cover.title);
    surface.SetKind(Kind::Heading);
    y += kAuthorSize * kTwipsPerPoint / 2;
    if (!cover.author.empty())
        y += PrintLine(surface, Middle(body), y, cover.author, kAuthorSize, kSmallestSize, width);
    const double contents = body.bottom - height / 12;
    DrawEmblem(cover, surface, {body.left, y, body.right, contents});
    surface.SetKind(Kind::Other);
    PrintLine(surface, Middle(body), contents, cover.contents, kContentsSize, kSmallestSize, width);
}

void DrawRules(IslandShape shape, Surface& surface, const Surface::Area& body) {
    constexpr int kLargestHalf = 24;  ///< half points
    for (int halfPoints = kLargestHalf;; --halfPoints) {
        const double points = halfPoints / 2.0;
        RulesPage measured(surface, body, shape, points);
        measured.Lay(false);
        if (measured.Bottom() > body.bottom && points > kSmallestSize) continue;
        return RulesPage(surface, body, shape, points).Lay(true);
    }
}

Puzzle ExamplePuzzle() {
    constexpr std::string_view kRows[] = {"3.4.2", ".....", "3...2", ".....", "4.4.2"};
    Puzzle puzzle({5, 5});
    for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
        const CellPlace place = puzzle.PlaceOf(id);
        const char cell = kRows[place.row - 1][static_cast<std::size_t>(place.col) - 1];
        if (cell != '.') puzzle.SetIsland(id, cell - '0');
    }
    const Archipelago board(puzzle);
    return WithBridges(puzzle, board, FindSolutions(board, 1, WithoutEnd)->front());
}

}  // namespace tidewalk
