// SPDX-License-Identifier: MIT
#include "cli/terminal_picture.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tidewalk {

namespace {

constexpr int kLargeStep = 4;

/// What a field of the drawing shows. Where bridges cross, the first one stays.
enum class Look { Blank, Water, Bridge, DoubleBridge, Island };

/// The sequences that begin each look on a terminal: faint water, bridges in colours that are read on light and dark
/// grounds, and islands as bold numbers on blocks of the text's own colour.
constexpr std::array<std::string_view, 5> kLookBegins{"", "\x1B[2m", "\x1B[36m", "\x1B[35m", "\x1B[1;7m"};
constexpr std::string_view kLookEnds = "\x1B[0m";

struct Field {
    std::string_view glyph = " ";
    Look look = Look::Blank;
};

/// The characters of the strokes.
struct Strokes {
    std::string_view water;
    std::array<std::string_view, 2> across;  ///< of a single and of a double bridge
    std::array<std::string_view, 2> down;
};
constexpr Strokes kBoxStrokes{"·", {"─", "═"}, {"│", "║"}};
constexpr Strokes kAsciiStrokes{".", {"-", "="}, {"|", "\""}};

class Drawing {
 public:
    Drawing(const Puzzle& puzzle, const TerminalStyle& style)
        : puzzle_(puzzle),
          style_(style),
          strokes_(style.ascii ? kAsciiStrokes : kBoxStrokes),
          reach_(style.large ? 1 : 0) {
        const int rows = YOf(puzzle.Rows) + 1;
        const int columns = XOf(puzzle.Cols) + reach_ + 1;
        fields_.assign(static_cast<std::size_t>(rows), std::vector<Field>(static_cast<std::size_t>(columns)));
        for (CellNumber id = 1; id <= puzzle.CellCount(); ++id)
            DrawCell(id);
    }

    void DrawBridge(const Link& link) {
        if (link.Bridges() == 0) return;
        const auto [fromRow, fromCol] = puzzle_.PlaceOf(std::min(link.first, link.second));
        const auto [toRow, toCol] = puzzle_.PlaceOf(std::max(link.first, link.second));
        const std::size_t kind = link.Bridges() == 2 ? 1 : 0;
        const Look look = link.Bridges() == 2 ? Look::DoubleBridge : Look::Bridge;
        if (fromRow == toRow) {
            for (int x = XOf(fromCol) + reach_ + 1; x < XOf(toCol) - reach_; ++x)
                Stroke(YOf(fromRow), x, {strokes_.across.at(kind), look});
        } else {
            for (int y = YOf(fromRow) + 1; y < YOf(toRow); ++y)
                Stroke(y, XOf(fromCol), {strokes_.down.at(kind), look});
        }
    }

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const std::vector<Field>& row : fields_)
            lines.push_back(LineOf(row));
        return lines;
    }

 private:
    /// The middle of a cell's column and row, in fields from 0.
    int XOf(int col) const { return (col - 1) * (style_.large ? kLargeStep : 2) + reach_; }
    int YOf(int row) const { return (row - 1) * (style_.large ? 2 : 1); }

    Field& At(int y, int x) { return fields_[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]; }

    void DrawCell(CellNumber id) {
        constexpr std::string_view kDigits = "0123456789";
        const auto [row, col] = puzzle_.PlaceOf(id);
        const int number = puzzle_.IslandAt(id);
        const int y = YOf(row);
        const int x = XOf(col);
        At(y, x) = {strokes_.water, Look::Water};
        if (number <= 0) return;
        At(y, x) = {kDigits.substr(static_cast<std::size_t>(number), 1), Look::Island};
        if (!style_.large) return;
        At(y, x - 1) = {style_.colour ? " " : "(", Look::Island};
        At(y, x + 1) = {style_.colour ? " " : ")", Look::Island};
    }

    void Stroke(int y, int x, const Field& stroke) {
        Field& there = At(y, x);
        if (there.look == Look::Water || there.look == Look::Blank) there = stroke;
    }

    /// Nothing that cannot be seen stands at the end of a line.
    std::string LineOf(const std::vector<Field>& row) const {
        const auto isSeen = [](const Field& field) { return field.look != Look::Blank; };
        const auto end = std::find_if(row.rbegin(), row.rend(), isSeen).base();
        std::string line;
        Look look = Look::Blank;
        for (auto field = row.begin(); field != end; ++field) {
            if (style_.colour && field->look != look) {
                if (look != Look::Blank) line += kLookEnds;
                line += kLookBegins.at(static_cast<std::size_t>(field->look));
                look = field->look;
            }
            line += field->glyph;
        }
        if (look != Look::Blank) line += kLookEnds;
        return line;
    }

    const Puzzle& puzzle_;
    const TerminalStyle& style_;
    const Strokes& strokes_;
    int reach_;  ///< of an island to both sides of its digit, in fields
    std::vector<std::vector<Field>> fields_;
};

}  // namespace

int LargeDrawingWidth(const Puzzle& puzzle) {
    return puzzle.Cols * kLargeStep - 1;
}

int LargeDrawingHeight(const Puzzle& puzzle) {
    return puzzle.Rows * 2 - 1;
}

std::vector<std::string> TerminalPicture(const Puzzle& puzzle, const TerminalStyle& style) {
    Drawing drawing(puzzle, style);
    if (style.bridges) {
        for (const Link& link : puzzle.LinkList)
            drawing.DrawBridge(link);
    }
    return drawing.Lines();
}

}  // namespace tidewalk
