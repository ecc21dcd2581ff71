// SPDX-License-Identifier: MIT
// The letters that lead to menus and buttons with the Alt key.
#pragma once

#include <QString>

namespace tidewalk {

/// The text with a mark before its first letter that is not among `taken`, which then holds it too; without one where
/// all its letters are taken.
QString WithMnemonic(const QString& text, QString& taken);

}  // namespace tidewalk
