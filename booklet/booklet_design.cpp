// SPDX-License-Identifier: MIT
#include "booklet/booklet_design.h"

#include <algorithm>
#include <sstream>

namespace tidewalk {

namespace {

std::string InOneLine(std::string text) {
    constexpr char kDelete = 0x7F;
    const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == kDelete; };
    std::replace_if(text.begin(), text.end(), isControl, ' ');
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;)
        line += (line.empty() ? "" : " ") + word;
    return line;
}

}  // namespace

BookletDesign Tidied(BookletDesign design) {
    design.title = InOneLine(design.title);
    design.author = InOneLine(design.author);
    return design;
}

}  // namespace tidewalk
