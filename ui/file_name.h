// SPDX-License-Identifier: MIT
// File names, which are bytes, as texts that can be shown, typed and turned back.
#pragma once

#include <QString>
#include <string>

namespace tidewalk {

/// The text of a file name. Bytes that are no UTF-8 become lone surrogates, a text that nothing else stands for.
QString FileNameText(const std::string& bytes);

/// The file name of a text: what it was made of, if `FileNameText` made it.
std::string FileNameBytes(const QString& text);

/// True when the name is UTF-8, so that Qt's own files can bear it.
bool IsPlainFileName(const QString& text);

}  // namespace tidewalk
