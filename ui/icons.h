// SPDX-License-Identifier: MIT
// The program's own pictures for buttons, menus and message boxes.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace tidewalk {

/// The icon `name` in the text colour of `palette`, sharp at every size and pixel ratio. A name without a picture
/// gives a null icon.
QIcon MakeIcon(const QString& name, const QPalette& palette);

/// The program's icon, which has colours of its own.
QIcon ProgramIcon();

}  // namespace tidewalk
