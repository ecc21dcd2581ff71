// SPDX-License-Identifier: MIT
#include "model/numbered_files.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

namespace tidewalk {

namespace {

constexpr std::size_t kBufferBytes = 128 * 1024;

/// What is longer is no line of text but a disk image or the like, and would only fill the memory.
constexpr std::size_t kLongestLine = 64 * 1024 * 1024;

[[noreturn]] void Fail(const std::string& path, int reason) {
    throw FileError(path + ": " + std::strerror(reason));
}

const char* SystemMode(FileMode mode) {
    switch (mode) {
        case FileMode::Output:
            return "wb";
        case FileMode::Append:
            return "ab";
        case FileMode::Input:
            break;
    }
    return "rb";
}

/// Fails for what only looks like a file. The system opens a folder for reading without complaint and refuses only the
/// read. A pipe blocks for ever when nobody is at its other end, and a device may be read without end.
void DemandUsable(const std::string& path, std::filesystem::file_status status, FileMode mode) {
    if (!std::filesystem::exists(status) || std::filesystem::is_regular_file(status)) return;
    if (std::filesystem::is_directory(status)) Fail(path, EISDIR);
    if (mode == FileMode::Input || !std::filesystem::is_character_file(status)) Fail(path, EINVAL);
}

/// True when the file holds something and that does not end with a line's end.
bool LacksLineEnd(const std::string& path) {
    std::FILE* const stream = std::fopen(path.c_str(), "rb");
    if (stream == nullptr) return false;
    const bool lacks = std::fseek(stream, -1, SEEK_END) == 0 && std::fgetc(stream) != '\n';
    std::fclose(stream);
    return lacks;
}

}  // namespace

struct NumberedFiles::File {
    std::string path;
    std::FILE* stream = nullptr;
    bool failed = false;
    // What was read and not yet handed out: buffer[at, filled).
    std::vector<char> buffer;
    std::size_t at = 0;
    std::size_t filled = 0;

    ~File() {
        if (stream != nullptr) std::fclose(stream);
    }

    /// Reads the next piece of the file; false at its end.
    bool Fill() {
        if (buffer.empty()) buffer.resize(kBufferBytes);
        at = 0;
        filled = std::fread(buffer.data(), 1, buffer.size(), stream);
        if (filled == 0 && std::ferror(stream) != 0) Fail(path, errno);
        return filled > 0;
    }
};

NumberedFiles::NumberedFiles() = default;
NumberedFiles::~NumberedFiles() = default;

NumberedFiles::File& NumberedFiles::At(int number) const {
    if (!IsOpen(number)) throw FileError("file " + std::to_string(number) + " is not open");
    return *files_[static_cast<std::size_t>(number - 1)];
}

bool NumberedFiles::IsOpen(int number) const {
    return number >= 1 && number <= kCount && files_[static_cast<std::size_t>(number - 1)] != nullptr;
}

void NumberedFiles::Open(int number, const std::string& path, FileMode mode) {
    if (number < 1 || number > kCount) throw FileError("there is no file number " + std::to_string(number));
    if (IsOpen(number)) throw FileError(path + ": file number " + std::to_string(number) + " is in use");
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    DemandUsable(path, status, mode);
    // A record that is appended must not become the tail of another one.
    const bool endLine = mode == FileMode::Append && std::filesystem::is_regular_file(status) && LacksLineEnd(path);
    auto file = std::make_unique<File>();
    file->path = path;
    file->stream = std::fopen(path.c_str(), SystemMode(mode));
    if (file->stream == nullptr) Fail(path, errno);
    // Reading goes through a buffer of our own.
    if (mode == FileMode::Input) std::setvbuf(file->stream, nullptr, _IONBF, 0);
    files_[static_cast<std::size_t>(number - 1)] = std::move(file);
    if (endLine) Print(number, "");
}

void NumberedFiles::Close(int number) {
    if (!IsOpen(number)) return;
    const std::unique_ptr<File> file = std::move(files_[static_cast<std::size_t>(number - 1)]);
    std::FILE* const stream = std::exchange(file->stream, nullptr);
    errno = 0;
    if (std::fclose(stream) != 0 || file->failed) Fail(file->path, errno != 0 ? errno : EIO);
}

void NumberedFiles::CloseAll() noexcept {
    for (auto& file : files_)
        file.reset();
}

bool NumberedFiles::TakeLine(File& file, std::string* line) {
    if (line != nullptr) line->clear();
    if (file.at == file.filled && !file.Fill()) return false;
    for (;;) {
        const char* const start = file.buffer.data() + file.at;
        const std::size_t left = file.filled - file.at;
        const void* const end = std::memchr(start, '\n', left);
        const std::size_t length =
            end == nullptr ? left : static_cast<std::size_t>(static_cast<const char*>(end) - start);
        if (line != nullptr) {
            if (line->size() + length > kLongestLine) Fail(file.path, EFBIG);
            line->append(start, length);
        }
        file.at += length;
        if (end != nullptr) {
            ++file.at;
            break;
        }
        if (!file.Fill()) break;
    }
    if (line != nullptr && !line->empty() && line->back() == '\r') line->pop_back();
    return true;
}

bool NumberedFiles::ReadLine(int number, std::string& line) {
    return TakeLine(At(number), &line);
}

bool NumberedFiles::SkipLine(int number) {
    return TakeLine(At(number), nullptr);
}

void NumberedFiles::Print(int number, std::string_view line) {
    File& file = At(number);
    const bool written = std::fwrite(line.data(), 1, line.size(), file.stream) == line.size() &&
                         std::fwrite("\r\n", 1, 2, file.stream) == 2;
    if (written) return;
    file.failed = true;
    Fail(file.path, errno);
}

}  // namespace tidewalk
