// SPDX-License-Identifier: MIT
// The commands "shuffle" and "convert", which write a whole collection anew.
#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

#include "cli/collection_lines.h"
#include "cli/commands.h"
#include "cli/report.h"
#include "cli/temporary_files.h"
#include "generator/shuffle_lines.h"
#include "model/convert_layout.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"

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
    CollectionLines lines(console, path);
    NumberedLine line;
    std::vector<int> unreadable;
    while (lines.Next(line)) {
        // A record of today's layout that is taken for a header brings its own semicolons.
        const bool isHeaderKindAndRows = std::count(line.text.begin(), line.text.end(), ';') == 2;
        if (!isHeaderKindAndRows || !ParsePuzzleRecord(line.text)) unreadable.push_back(line.number);
    }
    const Converted counts{lines.Number(), lines.Number() - static_cast<int>(unreadable.size())};
    if (counts.puzzles == 0) return counts;
    for (const int number : unreadable)
        SayOfPuzzle(console, file, number, "it did not become a puzzle record");
    return counts;
}

/// Shuffles with a progress bar; false when that was stopped.
bool ShuffleWithProgress(Console& console, const std::string& input, const std::string& output, RandomSource random,
                         ShuffleCounts& counts) {
    Progress progress(console, false);
    const auto step = [&](const ShuffleCounts& now) {
        const bool writing = now.written > 0;
        progress.Show(writing ? static_cast<double>(now.written) / static_cast<double>(now.Kept()) : -1,
                      std::to_string(writing ? now.written : now.lines) + (writing ? " written" : " lines read"));
        return !console.Stopped();
    };
    return !console.Stopped() && ShuffleLines(input, output, random, counts, step);
}

}  // namespace

int ShuffleCollection(Console& console, const ShuffleOptions& options) {
    const bool piped = options.file == kStandard;
    const std::string name = piped ? "" : ShuffledName(FullPath(options.file));
    if (!piped && name.empty()) return RefuseName(console, options.file);
    const InputFile input(console, options.file);
    std::optional<TemporaryFile> passedOn;
    const std::string output = piped ? passedOn.emplace().Path() : name;
    ShuffleCounts counts;
    if (!ShuffleWithProgress(console, input.Path(), output, options.seed ? RandomSource(*options.seed) : RandomSource(),
                             counts)) {
        return ExitCodeOf(console, 1);
    }
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
    {
        LineReader lines(input.Path());
        std::ofstream out(converted.Path(), std::ios::binary);
        ConvertLayout(lines, out);
        out.close();
        if (!out) Fail(converted.Path(), EIO);
    }
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
    // What is written is written, whatever signal came meanwhile.
    return counts.lines == counts.puzzles ? kDone : kFailed;
}

}  // namespace tidewalk
