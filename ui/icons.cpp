// SPDX-License-Identifier: MIT
#include "ui/icons.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <initializer_list>

namespace tidewalk {

namespace {

constexpr std::initializer_list<int> kSides = {16, 20, 24, 32, 40, 48, 64, 96, 128};

/// The bytes of the picture with the strokes in `colour`. Qt draws `currentColor` black whatever the palette says.
QByteArray PictureBytes(const QString& name, const QColor& colour) {
    QFile file(":/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll().replace("currentColor", colour.name().toLatin1());
}

void AddPixmaps(QIcon& icon, const QByteArray& bytes, QIcon::Mode mode, double opacity) {
    QSvgRenderer renderer(bytes);
    if (!renderer.isValid()) return;
    for (const int side : kSides) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setOpacity(opacity);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap, mode);
    }
}

using Icons = QHash<QString, QIcon>;

/// The icons that were drawn already, by name and colour. Menus and tool bar share most of them, and every dialog that
/// opens asks for all of them again. They go with the application, which pictures must not outlive.
Icons& DrawnIcons() {
    constexpr qsizetype kMost = 200;
    static Icons* drawn = nullptr;
    if (drawn == nullptr) {
        drawn = new Icons;
        qAddPostRoutine([] {
            delete drawn;
            drawn = nullptr;
        });
    }
    // Colours come and go with the schemes that are tried.
    if (drawn->size() >= kMost) drawn->clear();
    return *drawn;
}

}  // namespace

QIcon MakeIcon(const QString& name, const QPalette& palette) {
    constexpr double kDisabledOpacity = 0.35;
    const QColor colour = palette.color(QPalette::Active, QPalette::ButtonText);
    QIcon& icon = DrawnIcons()[name + colour.name()];
    if (!icon.isNull()) return icon;
    const QByteArray bytes = PictureBytes(name, colour);
    if (bytes.isEmpty()) return icon;
    AddPixmaps(icon, bytes, QIcon::Normal, 1);
    AddPixmaps(icon, bytes, QIcon::Disabled, kDisabledOpacity);
    return icon;
}

QIcon ProgramIcon() {
    QIcon icon;
    AddPixmaps(icon, PictureBytes("tidewalk", Qt::black), QIcon::Normal, 1);
    return icon;
}

}  // namespace tidewalk
