// SPDX-License-Identifier: MIT
// The program's own message box `MsgForm`.
#pragma once

#include <QDialog>
#include <string>

#include "ui/message_style.h"

class QHBoxLayout;

namespace tidewalk {

/// One modal box with a message, pictures and buttons named by a style. Its result is the code of the button that
/// ended it; each button, an array of the name `cmd`, carries its code as text in the property "Tag".
class MsgForm final : public QDialog {
    Q_OBJECT

 public:
    MsgForm(std::string text, MessageStyle style, const QString& caption, QWidget* parent);

    /// The message as it was given.
    const std::string& Message() const { return message_; }

    /// Escape and the window's frame come here.
    void reject() override { done(style_.FrameAnswer()); }

 private:
    void AddIcons(QHBoxLayout* row);
    void AddText(QHBoxLayout* row);
    void AddButtons(QHBoxLayout* row);

    std::string message_;
    MessageStyle style_;
};

}  // namespace tidewalk
