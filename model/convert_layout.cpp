// SPDX-License-Identifier: MIT
#include "model/convert_layout.h"

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

constexpr int kMostRows = 1000;  ///< a puzzle without an end is ended there

/// The lines of a file but the last.
class UsableLines {
 public:
    explicit UsableLines(LineReader& lines) : lines_(lines), hasNext_(lines_.Next(next_)) {}

    /// The next line, or false when only the last line of the file is left.
    bool Take(std::string& line) {
        line.swap(next_);
        const bool usable = hasNext_ && lines_.Next(next_);
        hasNext_ = usable;
        return usable;
    }

 private:
    LineReader& lines_;
    std::string next_;
    bool hasNext_;
};

/// The first letter of the first word.
std::string KindOf(std::string_view line) {
    return std::string(Trim(line).substr(0, 1));
}

/// Reads the rows of a puzzle on to `record`; false when the file ended in them.
bool TakeRows(UsableLines& lines, std::string& record) {
    std::string line;
    for (int row = 0; row < kMostRows; ++row) {
        if (!lines.Take(line)) return false;
        if (line.starts_with('#')) break;
        record += line + ",";
    }
    return true;
}

/// Reads the next puzzle into `record`; false when there is none. `more` tells whether another one may follow.
bool TakePuzzle(UsableLines& lines, std::string& record, bool& more) {
    std::string kind;
    std::string header;
    if (!lines.Take(kind) || !lines.Take(header)) return false;
    record = header + ";" + KindOf(kind) + ";";
    more = TakeRows(lines, record);
    return true;
}

}  // namespace

std::string ConvertedPath(const std::string& collectionPath) {
    const std::string name = FileNameOf(collectionPath);
    const std::size_t dot = name.find('.');
    if (dot == std::string::npos) return "";
    return collectionPath.substr(0, collectionPath.size() - name.size() + dot) + "-newformat.txt";
}

void ConvertLayout(LineReader& from, std::ostream& out) {
    UsableLines lines(from);
    std::string record;
    bool more = lines.Take(record);
    while (more && TakePuzzle(lines, record, more))
        out << record << kLineEnd;
}

void ConvertCollection(const std::string& from, const std::string& to) {
    LineReader lines(from);
    ReplaceFile(to, [&](std::ostream& out) { ConvertLayout(lines, out); });
}

bool IsOlderLayout(const std::string& path) {
    try {
        LineReader reader(path);
        UsableLines lines(reader);
        std::string record;
        bool more = false;
        if (!lines.Take(record) || ParsePuzzleRecord(record)) return false;
        return TakePuzzle(lines, record, more) && ParsePuzzleRecord(record).has_value();
    } catch (const FileError&) {
        return false;
    }
}

}  // namespace tidewalk
