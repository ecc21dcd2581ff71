// SPDX-License-Identifier: MIT
// Draws the program's icon in the sizes that are installed beside the scalable one.
//
// Usage: tidewalk_make_icons ICON.svg FOLDER. Writes FOLDER/48.png and so on.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool DrawIcon(QSvgRenderer& icon, int side, const QString& file) {
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    icon.render(&painter);
    painter.end();
    return picture.save(file, "PNG");
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QSvgRenderer icon(arguments.value(1));
    if (arguments.size() != 3 || !icon.isValid()) {
        std::fputs("usage: tidewalk_make_icons ICON.svg FOLDER\n", stderr);
        return 2;
    }
    for (const int side : {48, 64, 128, 256}) {
        const QString file = QString("%1/%2.png").arg(arguments.at(2)).arg(side);
        if (DrawIcon(icon, side, file)) continue;
        std::fprintf(stderr, "%s could not be written\n", file.toLocal8Bit().constData());
        return 1;
    }
    return 0;
}
