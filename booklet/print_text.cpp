// SPDX-License-Identifier: MIT
#include "booklet/print_text.h"

#include <algorithm>
#include <sstream>

namespace tidewalk {

namespace {

/// The beginning of the text that fits, with dots; characters of several bytes stay whole.
std::string CutTo(Surface& surface, std::string text, double width) {
    if (surface.TextExtent(text).width <= width) return text;
    const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; };
    std::size_t fits = 0;
    std::size_t tooLong = text.size();
    while (tooLong - fits > 1) {
        const std::size_t half = (fits + tooLong) / 2;
        (surface.TextExtent(text.substr(0, half) + "...").width <= width ? fits : tooLong) = half;
    }
    while (fits > 0 && continues(text[fits]))
        --fits;
    return text.substr(0, fits) + "...";
}

}  // namespace

double PrintLine(Surface& surface, double x, double y, const std::string& text, double points, double smallest,
                 double width) {
    if (text.empty()) return 0;
    surface.SetFontSize(points);
    const double wanted = surface.TextExtent(text).width;
    if (wanted > width) surface.SetFontSize(std::max(smallest, points * width / wanted));
    const std::string line = CutTo(surface, text, width);
    const Surface::Extent extent = surface.TextExtent(line);
    surface.Print(x - extent.width / 2, y, line, kBlack);
    return extent.height;
}

std::vector<std::string> Wrapped(Surface& surface, std::string_view text, double width) {
    std::vector<std::string> lines;
    std::istringstream words{std::string(text)};
    for (std::string word; words >> word;) {
        const std::string longer = lines.empty() ? word : lines.back() + " " + word;
        if (lines.empty() || surface.TextExtent(longer).width > width) {
            lines.push_back(word);
        } else {
            lines.back() = longer;
        }
    }
    return lines;
}

}  // namespace tidewalk
