// SPDX-License-Identifier: MIT
#include "ui/tool_tip.h"

namespace tidewalk {

QString CaptionOf(const QString& toolTip) {
    return toolTip.section('|', 0, 0);
}

QString ToolTipText(const QString& toolTip) {
    if (toolTip.isEmpty()) return {};
    const QString hint = toolTip.section('|', 1);
    const QString caption = CaptionOf(toolTip).toHtmlEscaped();
    if (hint.isEmpty()) return "<qt>" + caption + "</qt>";
    return "<qt><b>" + caption + "</b><br>" + hint.toHtmlEscaped() + "</qt>";
}

}  // namespace tidewalk
