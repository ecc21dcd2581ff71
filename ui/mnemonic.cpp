// SPDX-License-Identifier: MIT
#include "ui/mnemonic.h"

namespace tidewalk {

QString WithMnemonic(const QString& text, QString& taken) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!text.at(at).isLetterOrNumber() || taken.contains(text.at(at), Qt::CaseInsensitive)) continue;
        taken += text.at(at);
        return text.left(at) + "&" + text.mid(at);
    }
    return text;
}

}  // namespace tidewalk
