// SPDX-License-Identifier: MIT
#include "cli/report.h"

#include <algorithm>
#include <cstdlib>
#include <nlohmann/json.hpp>

namespace tidewalk {

namespace {

/// Appends values to a JSON text, in one line.
struct JsonWriter {
    std::string& text;

    void operator()(std::nullptr_t) const { text += "null"; }
    void operator()(bool value) const { text += value ? "true" : "false"; }
    void operator()(double value) const { text += nlohmann::json(value).dump(); }

    template <class Number>
    void operator()(Number value) const {
        text += std::to_string(value);
    }

    void operator()(const std::string& value) const {
        const bool isPlain = std::all_of(value.begin(), value.end(),
                                         [](char c) { return c >= ' ' && c < '\x7F' && c != '"' && c != '\\'; });
        if (isPlain) {
            text.append(1, '"').append(value).append(1, '"');
        } else {
            // Bytes that are no UTF-8, as file names may hold, are replaced.
            text += nlohmann::json(value).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
        }
    }

    template <class Value>
    void operator()(const std::vector<Value>& values) const {
        text += '[';
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (i > 0) text += ',';
            (*this)(values[i]);
        }
        text += ']';
    }

    void operator()(const JsonFields& fields) const {
        char before = '{';
        for (const auto& [name, value] : fields) {
            text.append(1, before).append(1, '"').append(name).append("\":");
            std::visit(*this, static_cast<const JsonValue::variant&>(value));
            before = ',';
        }
        text += fields.empty() ? "{}" : "}";
    }
};

}  // namespace

void PutInJson(PuzzleReport& puzzle) {
    puzzle.fields.insert(puzzle.fields.begin(), {"number", puzzle.number});
    if (!puzzle.fault.empty()) puzzle.fields.emplace_back("error", puzzle.fault);
    puzzle.line.clear();
    JsonWriter{puzzle.line}(puzzle.fields);
}

CollectionReport::CollectionReport(Console& console, std::string file, bool json, bool silent)
    : console_(console), file_(std::move(file)), json_(json), silent_(silent), progress_(console, true) {
    if (json_ && !silent_) console_.out << '[' << std::flush;
}

CollectionReport::~CollectionReport() {
    End();
}

bool CollectionReport::Add(const PuzzleReport& puzzle) {
    if (console_.Stopped()) return false;
    const bool first = successes_ + failures_ == 0;
    ++(puzzle.fault.empty() ? successes_ : failures_);
    if (!puzzle.fault.empty()) {
        progress_.Hide();
        Flush();
        SayOfPuzzle(console_, file_, puzzle.number, puzzle.fault);
    }
    if (silent_) return true;
    if (json_) {
        console_.out << (first ? "\n" : ",\n") << puzzle.line;
    } else if (!puzzle.line.empty()) {
        console_.out << puzzle.line << '\n';
    }
    if (console_.outIsTerminal) Flush();
    return true;
}

void CollectionReport::End() {
    if (ended_) return;
    ended_ = true;
    progress_.Hide();
    if (json_ && !silent_) console_.out << (successes_ + failures_ > 0 ? "\n]\n" : "]\n");
    Flush();
}

void ReportOnce(Console& console, bool json, const std::string& text, const JsonFields& fields) {
    if (!json) return PrintLine(console, text);
    std::string line;
    JsonWriter{line}(fields);
    PrintLine(console, line);
}

std::string Padded(const std::string& text, int width) {
    const auto wanted = static_cast<std::size_t>(std::abs(width));
    if (text.size() >= wanted) return text;
    const std::string blanks(wanted - text.size(), ' ');
    return width < 0 ? text + blanks : blanks + text;
}

}  // namespace tidewalk
