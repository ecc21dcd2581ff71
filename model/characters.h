// SPDX-License-Identifier: MIT
// The characters of a text, whatever their bytes.
#pragma once

#include <string_view>

namespace tidewalk {

/// Takes the first character off `text`, which is not empty: the bytes of one character of UTF-8, or a single byte
/// where there is no such character.
inline std::string_view TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = lead < 0xC0U ? 1 : lead < 0xE0U ? 2 : lead < 0xF0U ? 3 : lead < 0xF8U ? 4 : 1;
    for (std::size_t at = 1; at < length; ++at) {
        if (at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0U) != 0x80U) length = 1;
    }
    const std::string_view character = text.substr(0, length);
    text.remove_prefix(length);
    return character;
}

/// How many characters `text` has.
inline int CharacterCount(std::string_view text) {
    int count = 0;
    for (; !text.empty(); ++count)
        TakeCharacter(text);
    return count;
}

}  // namespace tidewalk
