// SPDX-License-Identifier: MIT
#include "cli/record_output.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <utility>

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

MayWait WaitingFor(Console& console, const std::string& path) {
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kMoment(300);
    return [&console, path, start = Clock::now(), said = false]() mutable {
        if (!said && Clock::now() - start >= kMoment) {
            said = true;
            Say(console, path + ": waiting for another program that is changing it");
        }
        return console.stopSignal == 0;
    };
}

AppendedRecords::AppendedRecords(Console& console, std::string path) : console_(console), path_(std::move(path)) {
    if (path_ == kStandard) return;
    DemandWritable(path_);
    errno = 0;
    if (!std::ofstream(path_, std::ios::binary | std::ios::app)) Fail(path_, errno);
}

int AppendedRecords::Add(std::string_view record, Numbering numbering) {
    if (path_ == kStandard) {
        PrintRecord(console_, record);
        return 0;
    }
    const Appended appended = AppendRecord(path_, record, numbering, WaitingFor(console_, path_));
    if (appended.cutTail)
        Say(console_, path_ + ": a record that was cut off while it was written was taken off its end");
    added_ = true;
    return appended.number;
}

void AppendedRecords::Finish() {
    if (added_) SyncCollection(path_);
}

}  // namespace tidewalk
