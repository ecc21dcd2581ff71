// SPDX-License-Identifier: MIT
#include "cli/record_output.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/system_file.h"

namespace tidewalk {

StreamOutput::StreamOutput(Console& console, const std::string& path) : console_(console), path_(path) {
    if (path == kStandard) return;
    descriptor_ = std::make_unique<OutputDescriptor>(path, console.stopSignal);
    own_ = std::make_unique<std::ostream>(descriptor_.get());
}

void StreamOutput::Flush() {
    Stream() << std::flush;
    if (own_ && !*own_) Fail(path_, descriptor_->Failure());
}

void StreamOutput::Add(std::string_view record) {
    Stream() << record << kLineEnd;
    Flush();
}

ReplacedRecords::ReplacedRecords(Console& console, const std::optional<std::string>& path) {
    if (!path) return;
    if (IsStream(*path)) {
        stream_ = std::make_unique<StreamOutput>(console, *path);
    } else {
        file_ = std::make_unique<Replacement>(*path);
    }
}

void ReplacedRecords::Add(std::string_view record) {
    if (stream_) stream_->Add(record);
    if (!file_) return;
    file_->Stream() << record << kLineEnd;
    file_->DemandWritten();
}

void ReplacedRecords::Finish() {
    if (file_) file_->Finish();
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
    if (IsStream(path_)) {
        stream_ = std::make_unique<StreamOutput>(console, path_);
        return;
    }
    DemandWritable(path_);
    // Behind a link that leads to no file yet one is made, too, but that is not the name to take away.
    std::error_code error;
    made_ = std::filesystem::symlink_status(path_, error).type() == std::filesystem::file_type::not_found;
    if (!SystemFile::Open(path_, SystemFile::Mode::MakeOrChange)) Fail(path_, errno);
}

AppendedRecords::~AppendedRecords() {
    if (!made_ || added_) return;
    // Another program may have begun to fill it.
    auto file = SystemFile::Open(path_, SystemFile::Mode::Change);
    if (file && file->TryLock() && file->IsAt(path_) && file->Size() == 0) std::remove(path_.c_str());
}

int AppendedRecords::Add(std::string_view record, Numbering numbering) {
    if (stream_) {
        stream_->Add(record);
        return 0;
    }
    const Appended appended = AppendRecord(path_, record, numbering, WaitingFor(console_, path_));
    added_ = true;
    if (appended.cutTail)
        Say(console_, path_ + ": a record that was cut off while it was written was taken off its end");
    return appended.number;
}

void AppendedRecords::Finish() {
    if (added_) SyncCollection(path_);
}

}  // namespace tidewalk
