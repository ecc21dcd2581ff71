// SPDX-License-Identifier: MIT
#include "cli/report.h"

#include <cstdlib>

namespace tidewalk {

std::string JsonText(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Report::Report(Console& console, bool json, bool silent) : console_(console), json_(json), silent_(silent) {
    if (json_ && !silent_) console_.out << '[' << std::flush;
}

Report::~Report() {
    if (json_ && !silent_) console_.out << (objects_ > 0 ? "\n]\n" : "]\n") << std::flush;
}

void Report::Add(const std::string& line, const Json& object) {
    if (silent_) return;
    if (!json_) {
        if (!line.empty()) PrintLine(console_, line);
        return;
    }
    console_.out << (objects_++ > 0 ? ",\n" : "\n") << JsonText(object) << std::flush;
}

void ReportOnce(Console& console, bool json, const std::string& line, const Json& object) {
    PrintLine(console, json ? JsonText(object) : line);
}

std::string Padded(const std::string& text, int width) {
    const auto wanted = static_cast<std::size_t>(std::abs(width));
    if (text.size() >= wanted) return text;
    const std::string blanks(wanted - text.size(), ' ');
    return width < 0 ? text + blanks : blanks + text;
}

}  // namespace tidewalk
