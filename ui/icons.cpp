// SPDX-License-Identifier: MIT
#include "ui/icons.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <memory>
#include <utility>

namespace tidewalk {

namespace {

QString FileOf(const QString& name) {
    return ":/icons/" + name + ".svg";
}

/// A picture with its strokes in one colour, which is read when it is drawn for the first time: most of them lie in
/// menus and boxes that nobody has opened yet.
class Picture {
 public:
    Picture(QString name, const QColor& colour) : name_(std::move(name)), colour_(colour.name()) {}

    void Draw(QPainter& painter, const QRect& rect) {
        if (!drawing_.isValid()) drawing_.load(Bytes());
        drawing_.render(&painter, rect);
    }

    /// What no other picture is called.
    QString Key() const { return "tidewalk/" + name_ + colour_; }

 private:
    /// Qt draws `currentColor` black whatever the palette says.
    QByteArray Bytes() const {
        QFile file(FileOf(name_));
        if (!file.open(QIODevice::ReadOnly)) return {};
        return file.readAll().replace("currentColor", colour_.toLatin1());
    }

    QString name_;
    QString colour_;
    QSvgRenderer drawing_;
};

/// Draws the picture anew in whatever size it is asked for: pixmaps of a few sizes would be scaled, and blurred, where
/// a screen has one and a half pixels for each. What was drawn is kept for the next time, as buttons ask for it
/// whenever the pointer comes or goes.
class PictureEngine final : public QIconEngine {
 public:
    PictureEngine(const QString& name, const QColor& colour) : picture_(std::make_shared<Picture>(name, colour)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        constexpr double kDisabledOpacity = 0.35;
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * kDisabledOpacity);
        picture_->Draw(*painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const QString key = QString("%1 %2x%3%4")
                                .arg(picture_->Key())
                                .arg(size.width())
                                .arg(size.height())
                                .arg(mode == QIcon::Disabled ? " disabled" : "");
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap)) return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        {
            QPainter painter(&pixmap);
            paint(&painter, pixmap.rect(), mode, state);
        }
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QIconEngine* clone() const override { return new PictureEngine(*this); }

 private:
    std::shared_ptr<Picture> picture_;
};

using Icons = QHash<QString, QIcon>;

/// The icons that were made already, by name and colour. Menus and tool bar share most of them, and every dialog that
/// opens asks for all of them again. They go with the application, which pictures must not outlive.
Icons& MadeIcons() {
    constexpr qsizetype kMost = 200;
    static Icons* made = nullptr;
    if (made == nullptr) {
        made = new Icons;
        qAddPostRoutine([] {
            delete made;
            made = nullptr;
        });
    }
    // Colours come and go with the schemes that are tried.
    if (made->size() >= kMost) made->clear();
    return *made;
}

}  // namespace

QIcon MakeIcon(const QString& name, const QPalette& palette) {
    const QColor colour = palette.color(QPalette::Active, QPalette::ButtonText);
    QIcon& icon = MadeIcons()[name + colour.name()];
    if (icon.isNull() && QFile::exists(FileOf(name))) icon = QIcon(new PictureEngine(name, colour));
    return icon;
}

QIcon ProgramIcon() {
    return QIcon(new PictureEngine("tidewalk", Qt::black));
}

}  // namespace tidewalk
