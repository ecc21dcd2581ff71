// SPDX-License-Identifier: MIT
// What a command reports: a line of text, or an object in JSON.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "cli/console.h"

namespace tidewalk {

struct JsonValue;

/// The names and values of a JSON object, in the order in which they are printed.
using JsonFields = std::vector<std::pair<std::string, JsonValue>>;
using JsonObjects = std::vector<JsonFields>;
/// Lists in a list.
using JsonNumbers = std::vector<std::vector<int>>;
using JsonTexts = std::vector<std::vector<std::string>>;

/// The values that a JSON object may have here.
struct JsonValue : std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double, std::string,
                                std::vector<std::string>, std::vector<int>, JsonNumbers, JsonTexts, JsonObjects> {
    using variant::variant;
};

/// What is told of one line of a collection.
struct PuzzleReport {
    int number = 0;     ///< of the line
    double part = -1;   ///< how much of the file there is up to here, 0..1, or -1 where its end is not known
    std::string fault;  ///< what is wrong with the puzzle; "" when nothing is
    std::string line;   ///< "" for a line that is no record
    JsonFields fields;  ///< but for the number and the fault
};

/// Makes the report's line a JSON object of its number, its fields and its fault. It takes a while, so whoever works on
/// the puzzle does it, on any thread.
void PutInJson(PuzzleReport& puzzle);

/// The report on the puzzles of a collection: a line each, or one JSON array. Whatever ends it, what was printed is
/// whole. What is wrong with a puzzle becomes a message, too.
///
/// Lines are handed on in batches: at the latest when `Flush` is called, and at once where they go to a terminal or a
/// message follows.
class CollectionReport {
 public:
    /// `silent` prints messages alone, for commands whose results are records on the standard output.
    CollectionReport(Console& console, std::string file, bool json, bool silent = false);
    ~CollectionReport();
    CollectionReport(const CollectionReport&) = delete;
    CollectionReport& operator=(const CollectionReport&) = delete;

    /// Reports on the next puzzle, with `PutInJson` done where the report is in JSON; false, with nothing reported,
    /// when the run is to end.
    bool Add(const PuzzleReport& puzzle);

    /// Hands on what was added.
    void Flush() { console_.out << std::flush; }

    /// Shows how far the run is, with a text about what was done, where the report itself does not.
    void ShowProgress(double part, const std::string& text) { progress_.Show(part, text); }

    /// Ends the report; nothing may be added any more.
    void End();

    /// The puzzles that were reported without a fault, and those with one.
    int Successes() const { return successes_; }
    int Failures() const { return failures_; }

 private:
    Console& console_;
    std::string file_;
    bool json_;
    bool silent_;
    bool ended_ = false;
    Progress progress_;
    int successes_ = 0;
    int failures_ = 0;
};

/// Reports what a command did as a whole: text, or one JSON object.
void ReportOnce(Console& console, bool json, const std::string& text, const JsonFields& fields);

/// `text` brought to `width` characters with blanks before it, or behind it where the width is negative.
std::string Padded(const std::string& text, int width);

}  // namespace tidewalk
