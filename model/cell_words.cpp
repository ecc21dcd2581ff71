// SPDX-License-Identifier: MIT
#include "model/cell_words.h"

#include "model/numbers.h"

namespace tidewalk {

std::string_view Text(Cross mark) {
    switch (mark) {
        case Cross::H:
            return "h";
        case Cross::V:
            return "v";
        case Cross::X:
            return "X";
        case Cross::Free:
            break;
    }
    return "";
}

std::string Text(const NeighbourList& list) {
    std::string text;
    for (const CellNumber id : list)
        text += Format(id, "000") + " ";
    return text;
}

std::string Text(const JoinedList& list) {
    std::string text;
    for (const CellNumber id : list)
        text += Str(id) + ",";
    return text;
}

std::optional<NeighbourList> ParseNeighbourList(std::string_view text) {
    NeighbourList list;
    if (text.size() % 4 != 0 || text.size() > 16) return std::nullopt;
    for (; !text.empty(); text.remove_prefix(4)) {
        const int id = RoundedVal(text.substr(0, 3));
        if (id < 1 || id > kMaxCells || Format(id, "000") + " " != text.substr(0, 4)) return std::nullopt;
        list.Append(id);
    }
    return list;
}

std::optional<JoinedList> ParseJoinedList(std::string_view text) {
    JoinedList list;
    while (!text.empty()) {
        const std::size_t comma = text.find(',');
        if (comma == std::string_view::npos) return std::nullopt;
        const int id = RoundedVal(text.substr(0, comma));
        if (id < 1 || id > kMaxCells || Str(id) != text.substr(0, comma)) return std::nullopt;
        list.Append(id);
        text.remove_prefix(comma + 1);
    }
    return list;
}

}  // namespace tidewalk
