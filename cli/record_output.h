// SPDX-License-Identifier: MIT
// Where commands write records: never half a record, never half a file in the place of a whole one.
#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "cli/descriptor_buffers.h"
#include "model/collection_file.h"
#include "model/replace_file.h"

namespace tidewalk {

/// An output that is written as it comes: what `IsStream` says yes to.
class StreamOutput {
 public:
    /// Opens it; waits until somebody reads from a named pipe. Throws FileError when it cannot be written.
    StreamOutput(Console& console, const std::string& path);

    std::ostream& Stream() { return own_ ? *own_ : console_.out; }

    /// Hands on what was put into the stream. Throws FileError when nobody takes it. Of the standard output that is
    /// told when the program ends.
    void Flush();

    /// A record is handed on at once, with the line end that records have wherever they go.
    void Add(std::string_view record);

 private:
    Console& console_;
    std::string path_;
    std::unique_ptr<OutputDescriptor> descriptor_;
    std::unique_ptr<std::ostream> own_;  ///< none for the standard output
};

/// Makes records the new content of a file at the end; until then they lie beside it. A stream gets each at once.
class ReplacedRecords {
 public:
    /// Without a path the records are dropped. Throws FileError for a path that cannot be written, to say so before
    /// hours of work are spent.
    ReplacedRecords(Console& console, const std::optional<std::string>& path);

    /// Throws FileError when it is known that the record cannot be written.
    void Add(std::string_view record);

    /// Replaces the file. Throws FileError when that fails; an older file is then as it was.
    void Finish();

 private:
    std::unique_ptr<StreamOutput> stream_;
    std::unique_ptr<Replacement> file_;
};

/// What is to be asked while another program holds the file at `path`: says that it is waited for, once that takes
/// longer than a moment, and gives up when the run is to stop.
MayWait WaitingFor(Console& console, const std::string& path);

/// Appends records to a file, each as a whole before the next is made.
class AppendedRecords {
 public:
    /// A file that is not there is made, and taken away again if nothing comes of it. Throws FileError when the file
    /// cannot be written, to say so before hours of work are spent.
    AppendedRecords(Console& console, std::string path);
    ~AppendedRecords();
    AppendedRecords(const AppendedRecords&) = delete;
    AppendedRecords& operator=(const AppendedRecords&) = delete;

    /// Returns the number of the line that the record became if that is asked for, else 0, as for a stream. Throws
    /// FileError when the record could not be written; the file then has its former length.
    int Add(std::string_view record, Numbering numbering = Numbering::Skip);

    /// Brings what was added to the disk. Throws FileError when that fails.
    void Finish();

 private:
    Console& console_;
    std::string path_;
    std::unique_ptr<StreamOutput> stream_;
    bool made_ = false;
    bool added_ = false;
};

}  // namespace tidewalk
