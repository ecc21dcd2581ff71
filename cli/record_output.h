// SPDX-License-Identifier: MIT
// Where commands write records: never half a record, never half a file in the place of a whole one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "model/collection_file.h"

namespace tidewalk {

/// Collects records and makes them the new content of a file at the end. For "-" each goes out at once.
class ReplacedRecords {
 public:
    /// Without a path the records are dropped. Throws FileError for a path that no file can have, to say so before
    /// hours of work are spent.
    ReplacedRecords(Console& console, std::optional<std::string> path);

    void Add(std::string_view record);

    /// Replaces the file. Throws FileError when that fails; an older file is then as it was.
    void Finish();

 private:
    Console& console_;
    std::optional<std::string> path_;
    std::string records_;
};

/// What is to be asked while another program holds the file at `path`: says that it is waited for, once that takes
/// longer than a moment, and gives up when the run is to stop.
MayWait WaitingFor(Console& console, const std::string& path);

/// Appends records to a file, each as a whole before the next is made.
class AppendedRecords {
 public:
    /// `path` "-" is the standard output. A file that is not there is made. Throws FileError when the file cannot be
    /// written, to say so before hours of work are spent.
    AppendedRecords(Console& console, std::string path);

    /// Returns the number of the line that the record became if that is asked for, else 0. Throws FileError when the
    /// record could not be written; the file then has its former length.
    int Add(std::string_view record, Numbering numbering = Numbering::Skip);

    /// Brings what was added to the disk. Throws FileError when that fails.
    void Finish();

 private:
    Console& console_;
    std::string path_;
    bool added_ = false;
};

}  // namespace tidewalk
