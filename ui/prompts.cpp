// SPDX-License-Identifier: MIT
#include "ui/prompts.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>

#include "ui/colours.h"
#include "ui/msg_form.h"

namespace tidewalk {

namespace {

/// A box is no place for the busy pointer. While it shows, the arrow stands in for it.
class ArrowPointer {
 public:
    ArrowPointer() : busy_(QApplication::overrideCursor() != nullptr) {
        if (busy_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ArrowPointer() {
        if (busy_) QApplication::restoreOverrideCursor();
    }
    ArrowPointer(const ArrowPointer&) = delete;
    ArrowPointer& operator=(const ArrowPointer&) = delete;

 private:
    bool busy_;
};

}  // namespace

/// True when no box is to be shown.
bool QtPrompts::Silent(const std::string& text) const {
    if (handlers_.game() != nullptr && handlers_.game()->job.Ending()) return true;
    if (unattended_) std::fprintf(stderr, "%s\n", text.c_str());
    return unattended_;
}

QWidget* QtPrompts::Parent() const {
    QWidget* const active = QApplication::activeModalWidget();
    if (active != nullptr) return active;
    return mainWindow_ != nullptr && mainWindow_->isVisible() ? mainWindow_.data() : nullptr;
}

int QtPrompts::Show(const std::string& text, std::string_view style) {
    const MessageStyle parsed = ParseMessageStyle(style);
    if (Silent(text)) return parsed.FrameAnswer();
    const ArrowPointer arrow;
    MsgForm box(text, parsed, caption_, Parent());
    if (const Game* const game = handlers_.game()) ColourFrame(box, ColoursOfMessages(game->options, game->window));
    return box.exec();
}

int QtPrompts::SystemBox(const std::string& text, SystemButtons buttons) {
    const bool yesNo = buttons == SystemButtons::YesNo;
    if (Silent(text)) return yesNo ? kNo : kOk;
    const ArrowPointer arrow;
    QMessageBox box(QMessageBox::NoIcon, QString::fromUtf8(AppTitle.data(), AppTitle.size()),
                    QString::fromStdString(text).replace("\r\n", "\n"),
                    yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, Parent());
    box.setTextFormat(Qt::PlainText);
    // Whoever presses Enter without reading loses nothing.
    if (yesNo) box.setDefaultButton(QMessageBox::No);
    if (!yesNo) {
        box.exec();
        return kOk;
    }
    return box.exec() == QMessageBox::Yes ? kYes : kNo;
}

}  // namespace tidewalk
