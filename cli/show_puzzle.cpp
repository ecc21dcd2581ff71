// SPDX-License-Identifier: MIT
// The command "show": a puzzle drawn with characters, or as a picture in SVG.
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/puzzle_facts.h"
#include "cli/report.h"
#include "cli/terminal_picture.h"
#include "drawing/puzzle_svg.h"

namespace tidewalk {

namespace {

/// The style that was asked for; what was left open, as the terminal has it. Pipes and files get small cells and no
/// colour, whatever the terminal is.
TerminalStyle StyleFor(const Console& console, const ShowOptions& options, const Puzzle& puzzle) {
    const bool wantsColour =
        options.colour == Colouring::Always || (options.colour == Colouring::Auto && console.outShowsColour);
    // The line of the next prompt is to be seen, too.
    const bool hasRoom = console.outIsTerminal && console.outColumns >= LargeDrawingWidth(puzzle) &&
                         console.outRows > LargeDrawingHeight(puzzle);
    return {options.solution, options.largeCells.value_or(hasRoom && !options.json), options.ascii,
            wantsColour && !options.json};
}

/// The lines with LF between them.
std::string InOneText(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i)
        text += (i == 0 ? "" : "\n") + lines[i];
    return text;
}

/// The name of the file with its folder, by which the window calls it, too.
std::string WithFolder(const std::string& file) {
    std::error_code error;
    const auto path = std::filesystem::absolute(file, error).lexically_normal();
    return error ? file : path.string();
}

void PrintSvg(Console& console, const ShowOptions& options, const Puzzle& puzzle) {
    const std::string file = options.file == kStandard ? "standard input" : WithFolder(options.file);
    const std::string title = PrintTitle(options.solution ? "Solution#" : "Puzzle#", options.number, file);
    const RenderMode mode = options.solution ? RenderMode::Solution : RenderMode::Puzzle;
    console.out << PuzzleSvg(puzzle, PictureRequest(mode, title, RenderRequest().lineWidth)) << std::flush;
}

void PrintDrawing(Console& console, const ShowOptions& options, const Puzzle& puzzle) {
    const std::vector<std::string> lines = TerminalPicture(puzzle, StyleFor(console, options, puzzle));
    JsonFields fields = SizeFields(puzzle);
    fields.insert(fields.begin(), {"number", options.number});
    fields.emplace_back("islands", puzzle.IslandCount());
    fields.emplace_back("drawing", lines);
    ReportOnce(console, options.json, InOneText(lines), fields);
}

}  // namespace

int ShowPuzzle(Console& console, const ShowOptions& options) {
    const std::optional<Puzzle> puzzle = ReadOnePuzzle(console, options.file, options.number);
    if (!puzzle) return ExitCodeOf(console, 1);
    if (options.svg) {
        PrintSvg(console, options, *puzzle);
    } else {
        PrintDrawing(console, options, *puzzle);
    }
    const bool lacksSolution = options.solution && puzzle->LinkCount() == 0;
    if (lacksSolution) SayOfPuzzle(console, options.file, options.number, "there are no stored bridges");
    return ExitCodeOf(console, lacksSolution ? 1 : 0);
}

}  // namespace tidewalk
