// SPDX-License-Identifier: MIT
// The commands "shuffle" and "convert", which write a whole collection anew.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <vector>

#include "cli/commands.h"
#include "cli/line_reader.h"
#include "cli/report.h"
#include "cli/temporary_files.h"
#include "generator/shuffle.h"
#include "model/convert_layout.h"
#include "model/load_puzzle.h"
#include "model/replace_file.h"
#include "program/headless.h"

namespace tidewalk {

namespace {

/// The path that an output's name is made from. It is cut at dots, which those of "./" and "../" must not be.
std::string FullPath(const std::string& path) {
    return std::filesystem::absolute(path).lexically_normal().string();
}

/// Says that no name for the output can be made.
int RefuseName(Console& console, const std::string& file) {
    Say(console, file + ": the name has no \".\", so that no name for the output can be made of it");
    return kFailed;
}

/// What a conversion made.
struct Converted {
    int lines = 0;
    int puzzles = 0;  ///< lines that can be read as puzzles
};

/// Reads the converted collection and says which of its lines are no puzzles.
Converted CountRecords(Console& console, const std::string& file, const std::string& path) {
    LineReader lines(console, path);
    NumberedLine line;
    std::vector<int> unreadable;
    const auto puzzle = std::make_unique<Puzzle>();
    while (lines.Next(line)) {
        // A record of today's layout that is taken for a header brings its own semicolons.
        const bool isHeaderKindAndRows = std::count(line.text.begin(), line.text.end(), ';') == 2;
        if (!isHeaderKindAndRows || !ReadPuzzleRecord(line.text, *puzzle)) unreadable.push_back(line.number);
    }
    const Converted counts{lines.Number(), lines.Number() - static_cast<int>(unreadable.size())};
    if (counts.puzzles == 0) return counts;
    for (const int number : unreadable)
        SayOfPuzzle(console, file, number, "it did not become a puzzle record");
    return counts;
}

}  // namespace

int ShuffleCollection(Console& console, const ShuffleOptions& options) {
    const bool piped = options.file == kStandard;
    const std::string name = piped ? "" : ShuffledName(FullPath(options.file));
    if (!piped && name.empty()) return RefuseName(console, options.file);
    const InputFile input(console, options.file);
    const TemporaryFile passed;
    const std::string output = piped ? passed.Path() : name;
    Progress progress(console, false);
    const auto game = std::make_unique<HeadlessGame>();
    if (options.seed) game->random.UseSeed(*options.seed);
    ShuffleCounts counts;
    const auto step = [&](const ShuffleCounts& now) {
        const bool writing = now.written > 0;
        progress.Show(writing ? static_cast<double>(now.written) / static_cast<double>(now.Kept()) : -1,
                      std::to_string(writing ? now.written : now.lines) + (writing ? " written" : " lines read"));
        return !console.Stopped();
    };
    const bool complete = !console.Stopped() && ShuffleLines(input.Path(), output, game->random, counts, step);
    progress.Hide();
    if (!complete) return ExitCodeOf(console, 1);
    if (piped) {
        CopyToOutput(console, output);
    } else {
        ReportOnce(console, options.json,
                   output + ": " + std::to_string(counts.written) + " lines written, " +
                       std::to_string(counts.duplicates) + " that were there twice dropped",
                   {{"file", output}, {"written", counts.written}, {"duplicates", counts.duplicates}});
    }
    return ExitCodeOf(console, 0);
}

int ConvertCollection(Console& console, const ConvertOptions& options) {
    const bool piped = options.file == kStandard;
    const std::string output = piped ? "" : ConvertedPath(FullPath(options.file));
    if (!piped && output.empty()) return RefuseName(console, options.file);
    const InputFile input(console, options.file);
    const TemporaryFile converted;
    const auto game = std::make_unique<HeadlessGame>();
    ConvertLayout(*game, input.Path(), converted.Path());
    if (console.Stopped()) return ExitCodeOf(console, 1);
    const Converted counts = CountRecords(console, options.file, converted.Path());
    if (counts.puzzles == 0) {
        Say(console, options.file + ": there is no puzzle of the older layout in it");
        return kFailed;
    }
    if (piped) {
        CopyToOutput(console, converted.Path());
    } else {
        ReplaceFile(output,
                    [&](std::ostream& file) { file << std::ifstream(converted.Path(), std::ios::binary).rdbuf(); });
        ReportOnce(console, options.json, output + ": " + std::to_string(counts.lines) + " puzzles written",
                   {{"file", output}, {"written", counts.lines}});
    }
    return ExitCodeOf(console, counts.lines - counts.puzzles);
}

}  // namespace tidewalk
