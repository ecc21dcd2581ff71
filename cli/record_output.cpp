// SPDX-License-Identifier: MIT
#include "cli/record_output.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <utility>

#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

/// Records have the same line ends wherever they go.
void PrintRecord(Console& console, std::string_view record) {
    console.out << record << kLineEnd << std::flush;
}

}  // namespace

ReplacedRecords::ReplacedRecords(Console& console, std::optional<std::string> path)
    : console_(console), path_(std::move(path)) {
    if (!path_ || *path_ == kStandard) return;
    std::error_code error;
    if (std::filesystem::is_directory(*path_, error)) Fail(*path_, EISDIR);
    const std::filesystem::path folder = std::filesystem::absolute(*path_, error).parent_path();
    if (!std::filesystem::is_directory(folder, error)) Fail(*path_, ENOENT);
}

void ReplacedRecords::Add(std::string_view record) {
    if (!path_) return;
    if (*path_ == kStandard) return PrintRecord(console_, record);
    records_ += record;
    records_ += kLineEnd;
}

void ReplacedRecords::Finish() {
    if (!path_ || *path_ == kStandard) return;
    ReplaceFile(*path_, [this](std::ostream& file) { file << records_; });
}

AppendedRecords::AppendedRecords(Console& console, std::string path) : console_(console), path_(std::move(path)) {
    if (path_ == kStandard) return;
    DemandWritable(path_);
    errno = 0;
    if (!std::ofstream(path_, std::ios::binary | std::ios::app)) Fail(path_, errno);
}

void AppendedRecords::Add(std::string_view record) {
    if (path_ == kStandard) return PrintRecord(console_, record);
    AppendRecord(path_, record);
}

}  // namespace tidewalk
