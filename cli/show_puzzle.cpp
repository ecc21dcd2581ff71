// SPDX-License-Identifier: MIT
// The command "show": a puzzle drawn with box characters.
#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include "cli/commands.h"
#include "cli/line_reader.h"
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
        for (CellNumber id = 1; id <= puzzle.CellCount; ++id) {
            const auto [row, col] = puzzle.PlaceOf(id);
            const int number = puzzle.IslandAt(id);
            At(row, 2 * col) = number > 0 ? std::to_string(number) : kWater;
        }
    }

    void DrawBridge(const Link& link) {
        const auto [fromRow, fromCol] = puzzle_.PlaceOf(std::min(link.first, link.second));
        const auto [toRow, toCol] = puzzle_.PlaceOf(std::max(link.first, link.second));
        const bool isDouble = link.state == 0;
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

}  // namespace

int ShowPuzzle(Console& console, const ShowOptions& options) {
    const auto puzzle = std::make_unique<Puzzle>();
    if (!ReadOnePuzzle(console, options.file, options.number, *puzzle)) return ExitCodeOf(console, 1);
    const bool lacksSolution = options.solution && puzzle->LinkCount() == 0;
    Drawing drawing(*puzzle);
    if (options.solution) {
        for (int i = 1; i <= puzzle->LinkCount(); ++i)
            drawing.DrawBridge(puzzle->LinkList[i]);
    }
    if (options.json) {
        Json object{{"number", options.number}};
        AddSize(object, *puzzle);
        object["islands"] = IslandCount(*puzzle);
        object["drawing"] = drawing.Lines();
        PrintLine(console, JsonText(object));
    } else {
        for (const std::string& line : drawing.Lines())
            PrintLine(console, line);
    }
    if (lacksSolution) SayOfPuzzle(console, options.file, options.number, "there are no stored bridges");
    return ExitCodeOf(console, lacksSolution ? 1 : 0);
}

}  // namespace tidewalk
