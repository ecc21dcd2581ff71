// SPDX-License-Identifier: MIT
#include "ui/tool_tip.h"

#include <QWidget>

namespace tidewalk {

namespace {

// Without this Qt breaks even short tips into several lines.
const QString kStart = "<p style='white-space:pre'>";
const QString kEnd = "</p>";

}  // namespace

QString CaptionOf(const QString& toolTip) {
    return toolTip.section('|', 0, 0);
}

QString ToolTipText(const QString& toolTip) {
    const QString hint = toolTip.section('|', 1);
    const QString caption = CaptionOf(toolTip);
    if (hint.isEmpty()) return PlainTipText(caption);
    return kStart + "<b>" + caption.toHtmlEscaped() + "</b><br>" + hint.toHtmlEscaped() + kEnd;
}

QString PlainTipText(const QString& text) {
    return text.isEmpty() ? QString() : kStart + text.toHtmlEscaped() + kEnd;
}

void GiveToolTip(QWidget& control, const QString& toolTip) {
    const QString hint = toolTip.section('|', 1);
    control.setToolTip(ToolTipText(toolTip));
    control.setAccessibleDescription(hint.isEmpty() ? CaptionOf(toolTip) : hint);
}

void GivePlainTip(QWidget& control, const QString& text) {
    control.setToolTip(PlainTipText(text));
    control.setAccessibleDescription(text);
}

}  // namespace tidewalk
