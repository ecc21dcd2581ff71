// SPDX-License-Identifier: MIT
#include "ui/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <memory>

#include "ui/picture.h"

namespace tidewalk {

std::string QtClipboard::Text() {
    return QGuiApplication::clipboard()->text().toStdString();
}

void QtClipboard::SetText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

bool QtClipboard::SetPicture(const PuzzlePicture& picture) {
    const double scale = mainWindow_ != nullptr ? mainWindow_->devicePixelRatioF() : qGuiApp->devicePixelRatio();
    const QImage image = MakePicture(picture.draw, scale);
    if (image.isNull()) return false;
    auto content = std::make_unique<QMimeData>();
    content->setImageData(image);
    content->setData("image/svg+xml", QByteArray::fromStdString(picture.svg));
    content->setText(QString::fromStdString(picture.text));
    QGuiApplication::clipboard()->setMimeData(content.release());
    return true;
}

}  // namespace tidewalk
