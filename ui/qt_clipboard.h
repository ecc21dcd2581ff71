// SPDX-License-Identifier: MIT
// The system's clipboard.
#pragma once

#include <QPointer>
#include <QWidget>

#include "game/output.h"

namespace tidewalk {

class QtClipboard final : public Clipboard {
 public:
    /// The window on whose screen the player sees the board: pictures are as sharp as that screen.
    void SetMainWindow(QWidget* window) { mainWindow_ = window; }

    std::string Text() override;
    void SetText(const std::string& text) override;
    bool SetPicture(const PuzzlePicture& picture) override;

 private:
    QPointer<QWidget> mainWindow_;
};

}  // namespace tidewalk
