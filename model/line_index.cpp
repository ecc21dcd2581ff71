// SPDX-License-Identifier: MIT
#include "model/line_index.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <limits>

#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/puzzle_record.h"

namespace tidewalk {

namespace {

constexpr std::size_t kMostPlaces = 65536;
constexpr std::size_t kScanBytes = 256 * 1024;
/// Some lines of the largest boards.
constexpr std::size_t kFetchBytes = 16 * 1024;

std::int64_t Now() {
    using std::chrono::nanoseconds;
    return std::chrono::duration_cast<nanoseconds>(std::chrono::system_clock::now().time_since_epoch()).count();
}

/// The same by reading the file from its beginning.
LineRead ReadFromBeginning(const std::string& path, int number, std::string& line) {
    LineRead read = LineRead::NotOpened;
    try {
        LineReader lines(path);
        read = LineRead::NoSuchLine;
        for (int at = 1; at < number; ++at) {
            if (!lines.Skip()) return read;
        }
        if (number >= 1 && lines.Next(line)) read = LineRead::Done;
    } catch (const FileError&) {
        // How far it came says what it was.
    }
    return read;
}

}  // namespace

bool IsSettled(const FileState& state, std::int64_t now) {
    constexpr std::int64_t kMillisecond = 1'000'000;
    constexpr std::int64_t kSecond = 1000 * kMillisecond;
    // Whole seconds come from file systems that know no parts of them, and some of these count only every other one.
    const std::int64_t tick = state.changed % kSecond == 0 ? 5 * kSecond / 2 : 50 * kMillisecond;
    if (state.changed >= now - tick) return false;
    // Where the system keeps no time of its own a change brings the present. One that was set to the future is another.
    return state.written < now - tick || state.written > now + tick;
}

void LineIndex::Forget() {
    if (state_) ++edition_;
    state_.reset();
    places_.assign(1, 0);
    step_ = 1;
    ended_ = 0;
    lineStart_ = scanned_ = 0;
}

/// The file, if the index is about it as it is now. Throws FileError when it cannot be opened.
std::optional<SystemFile> LineIndex::Look(const std::string& path) {
    DemandReadable(path);
    const std::int64_t now = Now();
    auto file = SystemFile::Open(path, SystemFile::Mode::Read);
    if (!file) Fail(path, errno);
    const auto state = file->State();
    if (state && state == state_) return file;
    Forget();
    // What the system makes up when it is read has no size.
    if (!state || !state->regular || state->size == 0 || !IsSettled(*state, now)) return std::nullopt;
    state_ = state;
    return file;
}

int LineIndex::Lines() const {
    // A byte order mark alone is no line.
    const std::int64_t lines = ended_ + (All() && scanned_ > lineStart_ ? 1 : 0);
    return static_cast<int>(std::min<std::int64_t>(lines, std::numeric_limits<int>::max()));
}

/// Goes on through the file. False, with everything forgotten, when it ends before it should; throws FileError when it
/// cannot be read.
bool LineIndex::FindLines(const SystemFile& file, const std::string& path, const MayGoOn& mayGoOn) {
    if (All()) return true;
    std::vector<char> bytes(kScanBytes);
    while (!All() && mayGoOn()) {
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), state_->size - scanned_));
        const auto count = file.ReadInto(scanned_, std::span(bytes).first(wanted));
        if (!count) Fail(path, errno);
        if (*count < wanted) {
            Forget();
            return false;
        }
        if (scanned_ == 0 && std::string_view(bytes.data(), wanted).starts_with(kByteOrderMark)) {
            lineStart_ = kByteOrderMark.size();
        }
        FindIn(bytes.data(), bytes.data() + wanted);
    }
    return true;
}

/// Notes the lines that begin in the next bytes of the file.
void LineIndex::FindIn(const char* from, const char* end) {
    const std::uint64_t before = scanned_;
    scanned_ += static_cast<std::uint64_t>(end - from);
    const char* at = from;
    while (const void* const found = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
        at = static_cast<const char*>(found) + 1;
        lineStart_ = before + static_cast<std::uint64_t>(at - from);
        ++ended_;
        if ((ended_ & (step_ - 1)) == 0) NotePlace();
    }
}

void LineIndex::NotePlace() {
    if (places_.size() == kMostPlaces) {
        for (std::size_t kept = 0; kept < kMostPlaces / 2; ++kept)
            places_[kept] = places_[2 * kept];
        places_.resize(kMostPlaces / 2);
        step_ *= 2;
    }
    places_.push_back(lineStart_);
}

/// Takes a line that was found, if there is still a line's end before the place that was kept and the file has not
/// changed by the time that it is read.
bool LineIndex::Take(const SystemFile& file, const std::string& path, int number, std::string& line) const {
    const std::int64_t before = number - 1;
    const std::uint64_t place = places_[static_cast<std::size_t>(before / step_)];
    const std::uint64_t from = place == 0 ? 0 : place - 1;
    FileInput input(file, path, from, kFetchBytes);
    LineReader lines(input, path, from);
    if (place > 0 && !(lines.Skip() && lines.Position() == place)) return false;
    for (std::int64_t at = before & ~(step_ - 1); at < before; ++at) {
        if (!lines.Skip()) return false;
    }
    return lines.Next(line) && file.State() == state_;
}

LineRead LineIndex::Read(const std::string& path, int number, std::string& line) {
    try {
        const auto file = Look(path);
        if (file && FindLines(*file, path, [&] { return Lines() < number; })) {
            if (number < 1 || number > Lines()) return LineRead::NoSuchLine;
            if (Take(*file, path, number, line)) return LineRead::Done;
            Forget();
        }
    } catch (const FileError&) {
        // Whoever reads from the beginning finds out what can be read of it.
    }
    return ReadFromBeginning(path, number, line);
}

int LineIndex::Count(const std::string& path) {
    try {
        const auto file = Look(path);
        if (file && FindLines(*file, path, WithoutEnd)) return Lines();
    } catch (const FileError&) {
        // The same.
    }
    return CountLines(path);
}

LineIndex::Progress LineIndex::Advance(const std::string& path, const MayGoOn& mayGoOn) {
    try {
        const auto file = Look(path);
        if (file && FindLines(*file, path, mayGoOn)) return {Lines(), All(), edition_};
        std::error_code ignored;
        return {0, std::filesystem::file_size(path, ignored) == 0, edition_};
    } catch (const FileError&) {
        Forget();
        return {0, true, edition_};
    }
}

bool LineIndex::FetchKnown(const std::string& path, int number, std::string& line) {
    try {
        const auto file = Look(path);
        if (!file || number < 1 || number > Lines()) return false;
        if (Take(*file, path, number, line)) return true;
        Forget();
    } catch (const FileError&) {
        // Nothing is known of it.
    }
    return false;
}

std::optional<Puzzle> ReadPuzzle(LineIndex& index, const std::string& path, int number) {
    std::string line;
    return index.Read(path, number, line) == LineRead::Done ? ParsePuzzleRecord(line) : std::nullopt;
}

int LastPuzzleUpTo(LineIndex& index, const std::string& path, int number) {
    std::string line;
    // Mostly it is that line, and the others need not be understood.
    if (index.Read(path, number, line) == LineRead::Done && ParsePuzzleRecord(line)) return number;
    int found = 0;
    try {
        LineReader lines(path);
        for (int at = 1; at <= number && lines.Next(line); ++at) {
            if (ParsePuzzleRecord(line)) found = at;
        }
    } catch (const FileError&) {
        return 0;
    }
    return found;
}

}  // namespace tidewalk
