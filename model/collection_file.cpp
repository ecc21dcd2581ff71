// SPDX-License-Identifier: MIT
#include "model/collection_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/numbers.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Takes `expected` off the beginning of `text`. What is left of a text that ends before is "", which is no mismatch.
bool TakeText(std::string_view& text, std::string_view expected) {
    const std::size_t common = std::min(text.size(), expected.size());
    if (text.substr(0, common) != expected.substr(0, common)) return false;
    text.remove_prefix(common);
    return true;
}

/// Takes a number as it is written, a blank and `most` digits or fewer, off the beginning of `text`.
bool TakeNumber(std::string_view& text, std::size_t most, int& number) {
    if (!TakeText(text, " ")) return false;
    std::size_t digits = 0;
    while (digits < text.size() && text[digits] >= '0' && text[digits] <= '9')
        ++digits;
    if (digits > most || (digits == 0 && !text.empty())) return false;
    number = RoundedVal(text.substr(0, digits));
    text.remove_prefix(digits);
    return true;
}

/// The last line of the file, if it has no end and may be a record; "" otherwise.
std::string UnendedLine(const SystemFile& file) {
    const std::uint64_t size = file.Size();
    const std::uint64_t from = size > kLongestRecord ? size - kLongestRecord : 0;
    const std::string tail = file.Read(from, static_cast<std::size_t>(size - from));
    const std::size_t lastEnd = tail.rfind('\n');
    if (lastEnd == std::string::npos) return from == 0 ? tail : "";
    return tail.substr(lastEnd + 1);
}

/// What a record that is appended has to begin with, so that it does not become the tail of another line.
std::string_view EndOfLastLine(const SystemFile& file) {
    const std::uint64_t size = file.Size();
    const char last = size == 0 ? '\n' : file.Read(size - 1, 1).front();
    return last == '\n' ? "" : last == '\r' ? "\n" : kLineEnd;
}

/// Adds the record at the end of the locked file, or throws with the file as it was before.
bool AppendTo(SystemFile& file, const std::string& path, std::string_view record) {
    const bool regular = file.IsRegular();
    const std::uint64_t before = regular ? file.Size() : 0;
    const std::string last = regular ? UnendedLine(file) : "";
    const bool torn = !last.empty() && IsTornRecord(last);
    if (torn && !file.CutTo(before - last.size())) Fail(path, errno);
    const std::uint64_t whole = torn ? before - last.size() : before;
    std::string bytes(regular ? EndOfLastLine(file) : "");
    bytes.append(record).append(kLineEnd);
    if (file.Append(bytes)) return torn;
    const int reason = errno;
    if (regular) file.CutTo(whole);
    Fail(path, reason);
}

}  // namespace

int CountLines(const std::string& path) {
    int count = 0;
    try {
        for (LineReader lines(path); count < std::numeric_limits<int>::max() && lines.Skip();)
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

bool IsTornRecord(std::string_view line) {
    int rows = 0;
    int ignored = 0;
    if (line.empty() || !TakeNumber(line, 2, rows) || !TakeText(line, ",") || !TakeNumber(line, 2, ignored) ||
        !TakeText(line, ",") || !TakeNumber(line, 4, ignored) || !TakeText(line, ";D;")) {
        return false;
    }
    return std::count(line.begin(), line.end(), ',') < rows || line.empty();
}

Appended AppendRecord(const std::string& path, std::string_view record, Numbering numbering, const MayWait& mayWait) {
    DemandWritable(path);
    std::error_code error;
    const bool isNew = !std::filesystem::exists(path, error);
    SystemFile file = OpenLocked(path, SystemFile::Mode::MakeOrChange, mayWait);
    Appended appended;
    try {
        appended.cutTail = AppendTo(file, path, record);
    } catch (const FileError&) {
        if (isNew && file.Size() == 0 && file.IsAt(path)) std::remove(path.c_str());
        throw;
    }
    if (numbering == Numbering::Count && file.IsRegular()) appended.number = CountLines(path);
    return appended;
}

void SyncCollection(const std::string& path) {
    auto file = SystemFile::Open(path, SystemFile::Mode::Change);
    if (!file || !file->Sync()) Fail(path, errno);
    SyncFolderOf(path);
}

void WritePuzzleRecord(const std::string& path, const Puzzle& puzzle, WriteMode mode, const MayWait& mayWait) {
    const std::string record = PuzzleRecord(puzzle);
    if (mode == WriteMode::Append) {
        AppendRecord(path, record, Numbering::Skip, mayWait);
        SyncCollection(path);
        return;
    }
    ReplaceFile(path, [&](std::ostream& out) { out << record << kLineEnd; });
}

namespace {

/// Writes all lines of the collection but one.
void CopyWithout(const std::string& path, int number, std::ostream& out) {
    LineReader lines(path);
    std::string line;
    for (int at = 1; out && lines.Next(line); ++at) {
        if (at == number) continue;
        out << line;
        // What an append may still take off the end must not become a line of its own.
        if (lines.LineEnded() || !IsTornRecord(line)) out << kLineEnd;
    }
}

/// Makes the work file, unless that is the collection itself. Nothing is made from it, so one that cannot be written
/// whole is taken away again and is no reason not to delete.
void WriteWorkFile(const std::string& path, int number, const std::string& workFile) {
    std::error_code error;
    if (workFile.empty() || std::filesystem::equivalent(path, workFile, error)) return;
    if (std::filesystem::exists(workFile, error) && !std::filesystem::is_regular_file(workFile, error)) return;
    std::ofstream copy(workFile, std::ios::binary);
    if (!copy) return;
    CopyWithout(path, number, copy);
    copy.close();
    if (!copy) std::remove(workFile.c_str());
}

}  // namespace

Deleted DeleteLine(const std::string& path, int number, const std::optional<std::string>& expected,
                   const std::string& workFile, const MayWait& mayWait) {
    DemandReadable(path);
    const SystemFile locked = OpenLocked(path, SystemFile::Mode::Change, mayWait);
    const int count = CountLines(path);
    std::string line;
    if (!ReadCollectionLine(path, number, line)) return {Deleted::Outcome::NoSuchLine, count};
    if (expected && line != *expected) return {Deleted::Outcome::OtherLine, count};
    if (count == 1) return {Deleted::Outcome::OnlyLine, count};
    WriteWorkFile(path, number, workFile);
    ReplaceFile(path, [&](std::ostream& out) { CopyWithout(path, number, out); });
    return {Deleted::Outcome::Done, count - 1};
}

}  // namespace tidewalk
