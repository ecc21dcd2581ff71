// SPDX-License-Identifier: MIT
#include "window_game.h"

#include <QApplication>
#include <QPushButton>

namespace tidewalk::test {

WindowGame::WindowGame(const std::vector<std::string>& records) : program(std::make_unique<Program>()) {
    std::string bytes;
    for (const std::string& record : records)
        bytes += record + "\r\n";
    std::filesystem::copy_file(std::string(TIDEWALK_DATA_DIR) + "/all.col", "all.col");
    folder.Write("tide.cfg", "xp.col\r\n 1  0  250  12  1315860  16777215  128  12632256  1  0 \r\npuzzles.txt\r\n");
    StartRequest request;
    request.appFolder = folder.Path("");
    request.collection = folder.Write("collection.tdw", bytes);
    program->game().random.UseSeed(1);
    QObject::connect(&program->handlers(), &Handlers::Ended, [this] { ended = true; });
    const auto fatal = program->Start(request);
    EXPECT_FALSE(fatal.has_value()) << *fatal;
}

WindowGame::~WindowGame() {
    QApplication::setPalette(QPalette());
}

void WindowGame::ClickButton(const char* name, Qt::MouseButton button) {
    QTest::mouseClick(&Button(name), button);
}

QPoint WindowGame::IslandAt(int row, int col) {
    const CellNumber id = game().CellId(row, col);
    return {qRound(game().IslandX[id] / kTwipsPerPixel), qRound(game().IslandY[id] / kTwipsPerPixel)};
}

void WindowGame::MoveTo(QPoint onBoard, Qt::MouseButtons held) {
    // QTest moves the real pointer instead, which does not leave the screen that there is.
    QMouseEvent move(QEvent::MouseMove, onBoard, board().mapToGlobal(onBoard), Qt::NoButton, held, Qt::NoModifier);
    QApplication::sendEvent(&board(), &move);
}

void WindowGame::ClickIsland(int row, int col, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    MoveTo(IslandAt(row, col));
    QTest::mouseClick(&board(), button, modifiers, IslandAt(row, col));
}

int WindowGame::Bridges(int row1, int col1, int row2, int col2) {
    return game().BridgeState(game().CellId(row1, col1), game().CellId(row2, col2));
}

QColor WindowGame::ColourAt(QPoint onBoard) {
    return board().grab().toImage().pixelColor(onBoard * board().devicePixelRatio());
}

BoxAnswer::BoxAnswer(std::string text, QString press) : text_(std::move(text)), press_(std::move(press)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(10);
}

BoxAnswer::~BoxAnswer() {
    EXPECT_TRUE(asked_) << "never asked: " << text_;
}

void BoxAnswer::Look() {
    auto* const box = qobject_cast<MsgForm*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    constexpr int kPatience = 100;
    if (box->Message() != text_) {
        if (++looks_ < kPatience) return;
        ADD_FAILURE() << "nobody expected: " << box->Message();
        box->reject();
        return;
    }
    asked_ = true;
    timer_.stop();
    if (press_.isEmpty()) {
        box->close();
        return;
    }
    for (QPushButton* const button : box->findChildren<QPushButton*>()) {
        if (button->text() == press_) return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << "no such button: " << press_.toStdString();
    box->reject();
}

}  // namespace tidewalk::test
