// SPDX-License-Identifier: MIT
#include "ui/file_name.h"

#include <string_view>

#include "model/characters.h"

namespace tidewalk {

namespace {

constexpr char16_t kByteSurrogates = 0xDC00;  ///< plus a byte of 128 or more: a low surrogate

/// The byte that the character at `at` stands for; 0 for a character of its own.
char ByteAt(const QString& text, qsizetype at) {
    const char16_t code = text.at(at).unicode();
    const bool standsForByte = code >= kByteSurrogates + 0x80 && code <= kByteSurrogates + 0xFF;
    const bool endsPair = at > 0 && text.at(at - 1).isHighSurrogate();
    return standsForByte && !endsPair ? static_cast<char>(code - kByteSurrogates) : '\0';
}

}  // namespace

QString FileNameText(const std::string& bytes) {
    QString text;
    for (std::string_view rest = bytes; !rest.empty();) {
        const std::string_view character = TakeCharacter(rest);
        const QString decoded = QString::fromUtf8(character.data(), static_cast<qsizetype>(character.size()));
        if (decoded.toUtf8() == QByteArrayView(character.data(), static_cast<qsizetype>(character.size()))) {
            text += decoded;
        } else {
            for (const char byte : character)
                text += QChar(static_cast<char16_t>(kByteSurrogates + static_cast<unsigned char>(byte)));
        }
    }
    return text;
}

std::string FileNameBytes(const QString& text) {
    std::string bytes;
    qsizetype start = 0;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const char byte = at < text.size() ? ByteAt(text, at) : '\0';
        if (at < text.size() && byte == '\0') continue;
        bytes += text.mid(start, at - start).toStdString();
        if (byte != '\0') bytes += byte;
        start = at + 1;
    }
    return bytes;
}

bool IsPlainFileName(const QString& text) {
    return text.isValidUtf16();
}

}  // namespace tidewalk
