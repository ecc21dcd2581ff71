// SPDX-License-Identifier: MIT
#include "ui/icons.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <memory>

namespace tidewalk {

namespace {

/// The bytes of the picture with the strokes in `colour`. Qt draws `currentColor` black whatever the palette says.
QByteArray PictureBytes(const QString& name, const QColor& colour) {
    QFile file(":/icons/" + name + ".svg");
    if (!file.open(QIODevice::ReadOnly)) return {};
    return file.readAll().replace("currentColor", colour.name().toLatin1());
}

/// Draws the picture anew in whatever size it is asked for: pixmaps of a few sizes would be scaled, and blurred, where
/// a screen has one and a half pixels for each.
class PictureEngine final : public QIconEngine {
 public:
    explicit PictureEngine(const QByteArray& bytes) : picture_(std::make_shared<QSvgRenderer>(bytes)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        constexpr double kDisabledOpacity = 0.35;
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * kDisabledOpacity);
        picture_->render(painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PictureEngine(*this); }

 private:
    std::shared_ptr<QSvgRenderer> picture_;
};

using Icons = QHash<QString, QIcon>;

/// The icons that were read already, by name and colour. Menus and tool bar share most of them, and every dialog that
/// opens asks for all of them again. They go with the application, which pictures must not outlive.
Icons& ReadIcons() {
    constexpr qsizetype kMost = 200;
    static Icons* read = nullptr;
    if (read == nullptr) {
        read = new Icons;
        qAddPostRoutine([] {
            delete read;
            read = nullptr;
        });
    }
    // Colours come and go with the schemes that are tried.
    if (read->size() >= kMost) read->clear();
    return *read;
}

}  // namespace

QIcon MakeIcon(const QString& name, const QPalette& palette) {
    const QColor colour = palette.color(QPalette::Active, QPalette::ButtonText);
    QIcon& icon = ReadIcons()[name + colour.name()];
    const QByteArray bytes = icon.isNull() ? PictureBytes(name, colour) : QByteArray();
    if (!bytes.isEmpty()) icon = QIcon(new PictureEngine(bytes));
    return icon;
}

QIcon ProgramIcon() {
    return QIcon(new PictureEngine(PictureBytes("tidewalk", Qt::black)));
}

}  // namespace tidewalk
