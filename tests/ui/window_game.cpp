// SPDX-License-Identifier: MIT
#include "window_game.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QMetaProperty>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include "ui/board_pixels.h"
#include "ui/msg_form.h"

namespace tidewalk::test {

std::string Get(const QObject& window, const QString& names) {
    QStringList contents;
    for (const QString& name : names.split(' ')) {
        const auto& control = Of<QObject>(window, name.toLatin1());
        const QMetaProperty property = control.metaObject()->userProperty();
        contents += (property.isValid() ? property.read(&control) : control.property("text")).toString();
    }
    return contents.join(' ').toStdString();
}

void Set(const QObject& window, const QString& contents) {
    for (const QString& content : contents.split(' ')) {
        auto& control = Of<QObject>(window, content.section('=', 0, 0).toLatin1());
        EXPECT_TRUE(control.metaObject()->userProperty().write(&control, content.section('=', 1)));
    }
}

void Press(const QObject& window, const char* button) {
    for (auto* const candidate : window.findChildren<QAbstractButton*>()) {
        if (candidate->objectName() != button && candidate->text().remove('&') != button) continue;
        // The box of a tick lies at its left end.
        return QTest::mouseClick(candidate, Qt::LeftButton, {}, QPoint(8, candidate->height() / 2));
    }
    ADD_FAILURE() << "no such button: " << button;
}

Act Answer(const char* button) {
    return [button](QDialog& dialog) { Press(dialog, button); };
}

Act Choose(const std::string& path) {
    return [path](QDialog& files) {
        Set(files, "fileNameEdit=" + QString::fromStdString(path));
        files.accept();
    };
}

std::string NameOf(const QDialog& dialog) {
    if (const auto* const box = qobject_cast<const MsgForm*>(&dialog)) return box->Message();
    if (const auto* const box = qobject_cast<const QMessageBox*>(&dialog))
        return "system: " + box->text().toStdString();
    const bool files = qobject_cast<const QFileDialog*>(&dialog) != nullptr;
    return (files ? "file: " + dialog.windowTitle() : dialog.objectName()).toStdString();
}

qsizetype PagesOf(const char* path) {
    QPDF document;
    document.processFile(path);
    return static_cast<qsizetype>(document.getAllPages().size());
}

WindowGame::WindowGame(const std::vector<std::string>& records) {
    std::string bytes;
    for (const std::string& record : records)
        bytes += record + "\r\n";
    std::filesystem::copy_file(std::string(TIDEWALK_DATA_DIR) + "/all.col", "all.col");
    folder.Write("tide.cfg", "xp.col\r\n 1  0  250  12  1315860  16777215  128  12632256  1  0 \r\npuzzles.txt\r\n");
    game.random.UseSeed(1);
    QObject::connect(&program.handlers(), &Handlers::Ended, [this] { ended = true; });
    EXPECT_EQ(program.Start({folder.Path(""), folder.Write("collection.tdw", bytes), {}}), std::nullopt);
}

WindowGame::~WindowGame() {
    for (const auto& [name, act] : expected)
        ADD_FAILURE() << "never came up: " << name;
    QApplication::setPalette(QPalette());
}

void WindowGame::Look() {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || std::count(inUse.begin(), inUse.end(), dialog) > 0) return;
    const std::string name = NameOf(*dialog);
    if (expected.empty() || expected.front().first != name) {
        ADD_FAILURE() << "nobody expected: " << name;
        return dialog->reject();
    }
    const Act act = expected.front().second;
    expected.pop_front();
    inUse.push_back(dialog);
    if (act) act(*dialog);
    inUse.pop_back();
    if (QApplication::activeModalWidget() == dialog) dialog->reject();
}

QPoint WindowGame::At(CellPlace cell) const {
    const Point at = board.layout.At(cell);
    return Pixels(board, at).toPoint();
}

void WindowGame::MoveTo(QPoint onBoard, Qt::MouseButtons held) {
    QMouseEvent move(QEvent::MouseMove, onBoard, view.mapToGlobal(onBoard), Qt::NoButton, held, Qt::NoModifier);
    QApplication::sendEvent(&view, &move);
}

void WindowGame::ClickIslands(std::initializer_list<CellPlace> cells) {
    for (const CellPlace& cell : cells)
        ClickIsland(cell);
}

}  // namespace tidewalk::test

int main(int argc, char** argv) {
    // Set before anything of Qt exists: the tests are also listed while they are built, with no environment of theirs.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
