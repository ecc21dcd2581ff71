// SPDX-License-Identifier: MIT
#include "model/convert_layout.h"

#include <cerrno>
#include <fstream>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr int kMostRows = 1000;  ///< a puzzle without an end is ended there

/// The lines of a file but the last.
class UsableLines {
 public:
    explicit UsableLines(const std::string& path) : lines_(path), hasNext_(lines_.Next(next_)) {}

    /// The next line, or false when only the last line of the file is left.
    bool Take(std::string& line) {
        line.swap(next_);
        const bool usable = hasNext_ && lines_.Next(next_);
        hasNext_ = usable;
        return usable;
    }

 private:
    LineReader lines_;
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

}  // namespace

std::string ConvertedPath(const std::string& collectionPath) {
    const std::size_t dot = collectionPath.find('.');
    return dot == std::string::npos ? "" : collectionPath.substr(0, dot) + "-newformat.txt";
}

void ConvertLayout(const std::string& from, const std::string& to) {
    UsableLines lines(from);
    DemandWritable(to);
    errno = 0;
    std::ofstream out(to, std::ios::binary);
    if (!out) Fail(to, errno);
    std::string kind;
    std::string header;
    bool more = lines.Take(header);
    while (more && lines.Take(kind) && lines.Take(header)) {
        std::string record = header + ";" + KindOf(kind) + ";";
        more = TakeRows(lines, record);
        out << record << kLineEnd;
    }
    out.close();
    if (!out) Fail(to, errno);
}

}  // namespace tidewalk
