// SPDX-License-Identifier: MIT
// The command "show": a puzzle drawn with box characters.
#include <algorithm>
#include <optional>
#include <vector>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"
#include "cli/report.h"

namespace tidewalk {

namespace {

/// The picture, a character a field: one for each cell, and one between two cells of a row.
class Drawing {
 public:
    explicit Drawing(const Puzzle& puzzle) : puzzle_(puzzle) {
        const auto rows = static_cast<std::size_t>(puzzle.Rows);
        const auto fields = static_cast<std::size_t>(2 * puzzle.Cols - 1);
        fields_.assign(rows, std::vector<std::string>(fields, " "));
        for (CellNumber id = 1; id <= puzzle.CellCount(); ++id) {
            const auto [row, col] = puzzle.PlaceOf(id);
            const int number = puzzle.IslandAt(id);
            At(row, 2 * col) = number > 0 ? std::to_string(number) : kWater;
        }
    }

    void DrawBridge(const Link& link) {
        const auto [fromRow, fromCol] = puzzle_.PlaceOf(std::min(link.first, link.second));
        const auto [toRow, toCol] = puzzle_.PlaceOf(std::max(link.first, link.second));
        const bool isDouble = link.Bridges() == 2;
        if (fromRow == toRow) {
            for (int field = 2 * fromCol + 1; field < 2 * toCol; ++field)
                Stroke(fromRow, field, isDouble ? "═" : "─");
        } else {
            for (int row = fromRow + 1; row < toRow; ++row)
                Stroke(row, 2 * fromCol, isDouble ? "║" : "│");
        }
    }

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        for (const auto& row : fields_) {
            std::string line;
            for (const std::string& field : row)
                line += field;
            lines.push_back(std::move(line));
        }
        return lines;
    }

 private:
    static constexpr const char* kWater = "·";

    /// The field of column `col` has the number 2 * col.
    std::string& At(int row, int field) {
        return fields_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(field - 2)];
    }

    /// The first bridge over a field stays.
    void Stroke(int row, int field, const char* stroke) {
        std::string& there = At(row, field);
        if (there == kWater || there == " ") there = stroke;
    }

    const Puzzle& puzzle_;
    std::vector<std::vector<std::string>> fields_;
};

/// The lines with LF between them.
std::string InOneText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "\n") + line;
    return text;
}

}  // namespace

int ShowPuzzle(Console& console, const ShowOptions& options) {
    const std::optional<Puzzle> puzzle = ReadOnePuzzle(console, options.file, options.number);
    if (!puzzle) return ExitCodeOf(console, 1);
    Drawing drawing(*puzzle);
    if (options.solution) {
        for (const Link& link : puzzle->LinkList)
            drawing.DrawBridge(link);
    }
    JsonFields fields = SizeFields(*puzzle);
    fields.insert(fields.begin(), {"number", options.number});
    fields.emplace_back("islands", puzzle->IslandCount());
    fields.emplace_back("drawing", drawing.Lines());
    ReportOnce(console, options.json, InOneText(drawing.Lines()), fields);
    const bool lacksSolution = options.solution && puzzle->LinkCount() == 0;
    if (lacksSolution) SayOfPuzzle(console, options.file, options.number, "there are no stored bridges");
    return ExitCodeOf(console, lacksSolution ? 1 : 0);
}

}  // namespace tidewalk
