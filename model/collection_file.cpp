// SPDX-License-Identifier: MIT
#include "model/collection_file.h"

#include <cerrno>
#include <fstream>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/paths.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// True when the file holds something and that does not end with a line's end.
bool LacksLineEnd(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return file.seekg(-1, std::ios::end) && file.get() != '\n';
}

}  // namespace

int CountLines(const std::string& path) {
    int count = 0;
    try {
        for (LineReader lines(path); lines.Skip();)
            ++count;
    } catch (const FileError&) {
        return 0;
    }
    return count;
}

bool ReadCollectionLine(const std::string& path, int number, std::string& line) {
    LineReader lines(path);
    for (int at = 1; at < number; ++at) {
        if (!lines.Skip()) return false;
    }
    return number >= 1 && lines.Next(line);
}

std::optional<Puzzle> ReadPuzzle(const std::string& path, int number) {
    std::string line;
    try {
        if (!ReadCollectionLine(path, number, line)) return std::nullopt;
    } catch (const FileError&) {
        return std::nullopt;
    }
    return ParsePuzzleRecord(line);
}

void AppendRecord(const std::string& path, std::string_view record) {
    DemandWritable(path);
    // A record that is appended must not become the tail of another one.
    const bool endLine = LacksLineEnd(path);
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::app);
    if (endLine) file << kLineEnd;
    file << record << kLineEnd;
    file.close();
    if (!file) Fail(path, errno);
}

void WritePuzzleRecord(const std::string& path, const Puzzle& puzzle, WriteMode mode) {
    const std::string record = PuzzleRecord(puzzle);
    if (mode == WriteMode::Append) return AppendRecord(path, record);
    ReplaceFile(path, [&](std::ostream& out) { out << record << kLineEnd; });
}

int DeleteLine(const std::string& path, int number, const std::string& workFile) {
    LineReader lines(path);
    DemandWritable(workFile);
    errno = 0;
    std::ofstream copy(workFile, std::ios::binary);
    if (!copy) Fail(workFile, errno);
    int kept = 0;
    std::string line;
    for (int at = 1; lines.Next(line); ++at) {
        if (at == number) continue;
        copy << line << kLineEnd;
        ++kept;
    }
    copy.close();
    if (!copy) Fail(workFile, errno);
    ReplaceFile(path, [&](std::ostream& out) {
        if (FileLength(workFile) > 0) out << std::ifstream(workFile, std::ios::binary).rdbuf();
    });
    return kept;
}

}  // namespace tidewalk
