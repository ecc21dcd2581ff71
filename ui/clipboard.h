// SPDX-License-Identifier: MIT
// The desktop's clipboard.
#pragma once

#include <QClipboard>
#include <QGuiApplication>

#include "model/seams.h"

namespace tidewalk {

class QtClipboard final : public Clipboard {
 public:
    /// One byte a character, so that columns are counted right whatever was copied.
    std::string Text() override { return QGuiApplication::clipboard()->text().toLatin1().toStdString(); }
};

}  // namespace tidewalk
