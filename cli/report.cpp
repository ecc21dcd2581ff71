// SPDX-License-Identifier: MIT
#include "cli/report.h"

#include <cstdlib>
#include <nlohmann/json.hpp>

namespace tidewalk {

namespace {

/// Keeps its keys in the order in which they were added.
using Json = nlohmann::ordered_json;

Json ObjectOf(const JsonFields& fields);

/// What a field becomes: lists of objects have to be gone through.
struct ToJson {
    template <class Value>
    Json operator()(const Value& value) const {
        return value;
    }
    Json operator()(const JsonObjects& objects) const {
        Json list = Json::array();
        for (const JsonFields& fields : objects)
            list.push_back(ObjectOf(fields));
        return list;
    }
};

void AddFields(Json& object, const JsonFields& fields) {
    for (const auto& [name, field] : fields)
        object[name] = std::visit(ToJson(), static_cast<const JsonValue::variant&>(field));
}

Json ObjectOf(const JsonFields& fields) {
    Json object = Json::object();
    AddFields(object, fields);
    return object;
}

/// The object in one line. Bytes that are no UTF-8, as file names may hold, are replaced.
std::string JsonText(const Json& object) {
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string JsonText(const PuzzleReport& puzzle) {
    Json object{{"number", puzzle.number}};
    AddFields(object, puzzle.fields);
    if (!puzzle.fault.empty()) object["error"] = puzzle.fault;
    return JsonText(object);
}

}  // namespace

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
        SayOfPuzzle(console_, file_, puzzle.number, puzzle.fault);
    }
    if (silent_) return true;
    if (json_) {
        console_.out << (first ? "\n" : ",\n") << JsonText(puzzle) << std::flush;
    } else if (!puzzle.line.empty()) {
        PrintLine(console_, puzzle.line);
    }
    return true;
}

void CollectionReport::End() {
    if (ended_) return;
    ended_ = true;
    progress_.Hide();
    if (json_ && !silent_) console_.out << (successes_ + failures_ > 0 ? "\n]\n" : "]\n") << std::flush;
}

void ReportOnce(Console& console, bool json, const std::string& text, const JsonFields& fields) {
    if (!json) return PrintLine(console, text);
    Json object;
    AddFields(object, fields);
    PrintLine(console, JsonText(object));
}

std::string Padded(const std::string& text, int width) {
    const auto wanted = static_cast<std::size_t>(std::abs(width));
    if (text.size() >= wanted) return text;
    const std::string blanks(wanted - text.size(), ' ');
    return width < 0 ? text + blanks : blanks + text;
}

}  // namespace tidewalk
