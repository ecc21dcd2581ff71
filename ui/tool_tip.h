// SPDX-License-Identifier: MIT
// Tool tips that are written "caption|hint".
#pragma once

#include <QString>

class QWidget;

namespace tidewalk {

/// What comes before the "|", or everything.
QString CaptionOf(const QString& toolTip);

/// The tip as Qt shows it: the caption and, under it, the hint. Characters that mean something in HTML stay themselves.
QString ToolTipText(const QString& toolTip);

/// The tip for a text that is shown as it is, such as a path, which may hold a "|" of its own.
QString PlainTipText(const QString& text);

/// Gives the control a tip "caption|hint". Screen readers, who would read out the tip's HTML, get the hint as plain
/// text, or the caption where there is none.
void GiveToolTip(QWidget& control, const QString& toolTip);

/// The same for a text that is shown as it is.
void GivePlainTip(QWidget& control, const QString& text);

}  // namespace tidewalk
