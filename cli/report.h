// SPDX-License-Identifier: MIT
// What a command reports of each puzzle: a line of text, or an object of one JSON array.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "cli/console.h"

namespace tidewalk {

/// Keeps its keys in the order in which they were added.
using Json = nlohmann::ordered_json;

/// The text of a JSON value in one line. Bytes that are no UTF-8, as file names may hold, are replaced.
std::string JsonText(const Json& value);

/// A report that grows puzzle by puzzle. Whatever ends it, what was printed is whole.
class Report {
 public:
    /// `silent` prints nothing, for commands whose results are records on the standard output.
    Report(Console& console, bool json, bool silent = false);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    bool IsJson() const { return json_; }

    /// Adds a puzzle: its line, or its object. An empty line is not printed.
    void Add(const std::string& line, const Json& object);

 private:
    Console& console_;
    bool json_;
    bool silent_;
    int objects_ = 0;
};

/// Reports what a command did as a whole: a line of text, or one JSON object.
void ReportOnce(Console& console, bool json, const std::string& line, const Json& object);

/// `text` brought to `width` characters with blanks before it, or behind it where the width is negative.
std::string Padded(const std::string& text, int width);

}  // namespace tidewalk
