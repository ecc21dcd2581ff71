// SPDX-License-Identifier: MIT
// Collections: files of puzzle records, one a line, so that the number of a puzzle is that of its line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/puzzle.h"
#include "model/system_file.h"

namespace tidewalk {

/// How many lines the file has, the last one without an end too. A file that cannot be read has none.
int CountLines(const std::string& path);

/// Reads line `number` of the file into `line`; false when there is no such line. Throws FileError when the file cannot
/// be read.
bool ReadCollectionLine(const std::string& path, int number, std::string& line);

/// The puzzle of line `number`; nothing when there is no such line, it is no record or the file cannot be read.
std::optional<Puzzle> ReadPuzzle(const std::string& path, int number);

// Whoever changes a collection holds its lock from the first look at it to the last byte, so that no other program's
// change is lost. `mayWait` is asked while another program holds the lock.

/// What came of an append.
struct Appended {
    int number = 0;        ///< the line that the record became; 0 where it was not asked for
    bool cutTail = false;  ///< a torn record at the end of the file was taken off first
};

/// Whether to count the lines for the number of the new one, which takes a look at the whole file.
enum class Numbering { Count, Skip };

/// Adds the record as the last line of the file, which is made when there is none.
///
/// A last line without an end is ended first; a torn one, the beginning of a record that was cut off while it was
/// written, is taken off. Throws FileError when the record could not be written; the file then has its former length,
/// or is gone if it was made here. The record reaches the disk with `SyncCollection`.
Appended AppendRecord(const std::string& path, std::string_view record, Numbering numbering = Numbering::Skip,
                      const MayWait& mayWait = WaitOn);

/// Brings what was appended to the disk. Throws FileError when that fails.
void SyncCollection(const std::string& path);

/// True for the beginning of a record as `PuzzleRecord` writes it, with less than its header or fewer rows than it
/// names.
bool IsTornRecord(std::string_view line);

enum class WriteMode { Replace, Append };

/// Makes the puzzle's record all that the file holds, or adds it as the last line, and brings it to the disk. Throws
/// FileError when the record could not be written; the file is then as it was.
void WritePuzzleRecord(const std::string& path, const Puzzle& puzzle, WriteMode mode, const MayWait& mayWait = WaitOn);

/// What came of deleting a line.
struct Deleted {
    enum class Outcome {
        Done,
        NoSuchLine,
        OtherLine,  ///< the line is not the one that was expected
        OnlyLine    ///< there is no other line
    };

    Outcome outcome = Outcome::Done;
    int left = 0;  ///< the lines of the file now
};

/// Takes line `number` out of the collection, if it is `expected` (whatever it is, without that) and not the only one.
/// The remaining lines are first copied to `workFile`, if one is named; the collection itself is replaced as a whole,
/// from its own lines. Throws FileError when that fails; the collection is then as it was.
Deleted DeleteLine(const std::string& path, int number, const std::optional<std::string>& expected,
                   const std::string& workFile, const MayWait& mayWait = WaitOn);

}  // namespace tidewalk
