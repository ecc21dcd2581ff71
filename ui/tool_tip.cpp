// SPDX-License-Identifier: MIT
#include "ui/tool_tip.h"

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
    if (toolTip.isEmpty()) return {};
    const QString hint = toolTip.section('|', 1);
    const QString caption = CaptionOf(toolTip).toHtmlEscaped();
    if (hint.isEmpty()) return kStart + caption + kEnd;
    return kStart + "<b>" + caption + "</b><br>" + hint.toHtmlEscaped() + kEnd;
}

}  // namespace tidewalk
