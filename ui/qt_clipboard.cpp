// SPDX-License-Identifier: MIT
#include "ui/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "ui/picture.h"

namespace tidewalk {

std::string QtClipboard::Text() {
    return QGuiApplication::clipboard()->text().toStdString();
}

bool QtClipboard::SetPicture(const DrawFunction& draw) {
    const double scale = mainWindow_ != nullptr ? mainWindow_->devicePixelRatioF() : qGuiApp->devicePixelRatio();
    const QImage picture = MakePicture(draw, scale);
    if (picture.isNull()) return false;
    QGuiApplication::clipboard()->setImage(picture);
    return true;
}

}  // namespace tidewalk
