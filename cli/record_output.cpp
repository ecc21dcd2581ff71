// SPDX-License-Identifier: MIT
#include "cli/record_output.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Records have the same line ends wherever they go.
constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

RecordOutput::RecordOutput(Console& console, std::optional<std::string> path)
    : console_(console), path_(std::move(path)) {
    if (!path_ || *path_ == kStandard) return;
    std::error_code error;
    if (std::filesystem::is_directory(*path_, error)) throw FileError(*path_ + ": " + std::strerror(EISDIR));
    const std::filesystem::path folder = std::filesystem::absolute(*path_, error).parent_path();
    if (!std::filesystem::is_directory(folder, error)) throw FileError(*path_ + ": " + std::strerror(ENOENT));
}

void RecordOutput::Add(std::string_view record) {
    if (!path_) return;
    if (*path_ == kStandard) {
        console_.out << record << kLineEnd << std::flush;
    } else {
        records_ += record;
        records_ += kLineEnd;
    }
}

void RecordOutput::Finish() {
    if (!path_ || *path_ == kStandard) return;
    ReplaceFile(*path_, [this](std::ostream& file) { file << records_; });
}

AppendedRecords::AppendedRecords(Console& console, std::string path) : console_(console), path_(std::move(path)) {
    if (path_ == kStandard) return;
    // To hear of a file that cannot be written before hours of work are spent on it.
    files_.Open(1, path_, FileMode::Append);
    files_.Close(1);
}

void AppendedRecords::Add(std::string_view record) {
    if (path_ == kStandard) {
        console_.out << record << kLineEnd << std::flush;
        return;
    }
    files_.Open(1, path_, FileMode::Append);
    files_.Print(1, record);
    files_.Close(1);
}

}  // namespace tidewalk
