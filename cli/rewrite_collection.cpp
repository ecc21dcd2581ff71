// SPDX-License-Identifier: MIT
// The commands "shuffle" and "convert", which write a whole collection anew.
#include <algorithm>
#include <filesystem>
#include <vector>

#include "cli/commands.h"
#include "cli/descriptor_buffers.h"
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

/// Reads the converted collection and says which of its lines are no puzzles. Messages call the collection `file`.
Converted CountRecords(Console& console, const std::string& file, const SystemFile& converted) {
    FileInput input(converted, file);
    LineReader lines(input, file);
    Converted counts;
    std::vector<int> unreadable;
    for (std::string line; lines.Next(line, kLongestRecord + 1);) {
        ++counts.lines;
        // A record of today's layout that is taken for a header brings its own semicolons.
        const bool isHeaderKindAndRows = std::count(line.begin(), line.end(), ';') == 2;
        if (!isHeaderKindAndRows || !ParsePuzzleRecord(line)) unreadable.push_back(counts.lines);
    }
    counts.puzzles = counts.lines - static_cast<int>(unreadable.size());
    if (counts.puzzles == 0) return counts;
    for (const int number : unreadable)
        SayOfPuzzle(console, file, number, "it did not become a puzzle record");
    return counts;
}

/// Converts to a file of its own, so that nothing is replaced before it is known to be worth it.
SystemFile Convert(Console& console, const std::string& path) {
    const Input input(console, path);
    LineReader lines(input.Buffer(), path);
    SystemFile converted = TemporaryFile();
    FileOutput output(converted);
    std::ostream out(&output);
    ConvertLayout(lines, out);
    out.flush();
    if (!out) Fail("the conversion of " + path, output.Failure());
    return converted;
}

/// Shuffles with a progress bar; false when that was stopped. What comes only once goes to the standard output.
bool ShuffleWithProgress(Console& console, const ShuffleOptions& options, const std::string& output,
                         ShuffleCounts& counts) {
    Progress progress(console, output == kStandard);
    const auto step = [&](const ShuffleCounts& now) {
        const bool writing = now.written > 0;
        progress.Show(writing ? static_cast<double>(now.written) / static_cast<double>(now.Kept()) : -1,
                      std::to_string(writing ? now.written : now.lines) + (writing ? " written" : " lines read"));
        return !console.Stopped();
    };
    RandomSource random = options.seed ? RandomSource(*options.seed) : RandomSource();
    if (output != kStandard) return ShuffleLines(options.file, output, random, counts, step);
    const InputFile input(console, options.file);
    if (console.Stopped() || !ShuffleLines(input.File(), options.file, console.out, random, counts, step)) return false;
    console.out << std::flush;
    return true;
}

}  // namespace

int ShuffleCollection(Console& console, const ShuffleOptions& options) {
    const std::string output = IsStream(options.file) ? kStandard : ShuffledName(FullPath(options.file));
    if (output.empty()) return RefuseName(console, options.file);
    ShuffleCounts counts;
    if (!ShuffleWithProgress(console, options, output, counts)) return ExitCodeOf(console, 1);
    if (output == kStandard) return ExitCodeOf(console, 0);
    ReportOnce(console, options.json,
               output + ": " + std::to_string(counts.written) + " lines written, " + std::to_string(counts.duplicates) +
                   " duplicates left out",
               {{"file", output}, {"written", counts.written}, {"duplicates", counts.duplicates}});
    // What is written is written, whatever signal came meanwhile.
    return kDone;
}

int ConvertCollection(Console& console, const ConvertOptions& options) {
    const std::string output = IsStream(options.file) ? kStandard : ConvertedPath(FullPath(options.file));
    if (output.empty()) return RefuseName(console, options.file);
    const SystemFile converted = Convert(console, options.file);
    if (console.Stopped()) return ExitCodeOf(console, 1);
    const Converted counts = CountRecords(console, options.file, converted);
    if (counts.puzzles == 0) {
        Say(console, options.file + ": there is no puzzle of the older layout in it");
        return kFailed;
    }
    const int failures = counts.lines - counts.puzzles;
    if (output == kStandard) {
        CopyTo(console.out, converted, options.file, UntilStopSignal(console));
        return ExitCodeOf(console, failures);
    }
    ReplaceFile(output, [&](std::ostream& file) { CopyTo(file, converted, options.file, [] { return true; }); });
    ReportOnce(console, options.json, output + ": " + std::to_string(counts.lines) + " puzzles written",
               {{"file", output}, {"written", counts.lines}});
    // What is written is written, whatever signal came meanwhile.
    return failures == 0 ? kDone : kFailed;
}

}  // namespace tidewalk
