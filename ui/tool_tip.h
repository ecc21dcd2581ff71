// SPDX-License-Identifier: MIT
// Tool tips that are written "caption|hint".
#pragma once

#include <QString>

namespace tidewalk {

/// What comes before the "|", or everything.
QString CaptionOf(const QString& toolTip);

/// The tip as Qt shows it: the caption and, under it, the hint. Characters that mean something in HTML stay themselves.
QString ToolTipText(const QString& toolTip);

/// The tip for a text that is shown as it is, such as a path, which may hold a "|" of its own.
QString PlainTipText(const QString& text);

}  // namespace tidewalk
