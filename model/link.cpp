// SPDX-License-Identifier: MIT
#include "model/link.h"

#include "model/numbers.h"

namespace tidewalk {

std::string Text(const Link& link) {
    return Format(link.first, "000") + Format(link.second, "000") + NumText(link.state);
}

std::optional<Link> ParseLink(std::string_view text) {
    if (text.size() != 7) return std::nullopt;
    const int first = RoundedVal(text.substr(0, 3));
    const int second = RoundedVal(text.substr(3, 3));
    const int state = RoundedVal(text.substr(6));
    if (first < 0 || first > kMaxCells || second < 0 || second > kMaxCells || state < 0 || state > 2) {
        return std::nullopt;
    }
    const Link link = MakeLink(first, second, state);
    if (Text(link) != text) return std::nullopt;
    return link;
}

}  // namespace tidewalk
