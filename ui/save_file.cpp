// SPDX-License-Identifier: MIT
#include "ui/save_file.h"

#include <QFileInfo>

namespace tidewalk {

QString WhyNotReplaceable(const QString& path) {
    const QFileInfo info(path);
    return !info.exists() || info.isFile() ? QString() : QString("This is no ordinary file");
}

}  // namespace tidewalk
