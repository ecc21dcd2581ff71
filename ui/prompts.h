// SPDX-License-Identifier: MIT
// Messages and questions in windows.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include "ui/handlers.h"

namespace tidewalk {

/// Shows `MsgForm` and the system's plain boxes over the window that is active. While the program is ending nothing is
/// shown any more: every question is answered as the box's frame would.
class QtPrompts final : public Prompts {
 public:
    explicit QtPrompts(Handlers& handlers) : handlers_(handlers) {}

    /// The window over which boxes stand when no other is active.
    void SetMainWindow(QWidget* window) { mainWindow_ = window; }
    void SetCaption(const QString& caption) { caption_ = caption; }

    /// With nobody there to answer, messages go to the error output and are answered as the box's frame would.
    void SetUnattended(bool unattended) { unattended_ = unattended; }

    int Show(const std::string& text, std::string_view style) override;
    int SystemBox(const std::string& text, SystemButtons buttons) override;

 private:
    bool Silent(const std::string& text) const;
    QWidget* Parent() const;

    Handlers& handlers_;
    QPointer<QWidget> mainWindow_;
    QString caption_ = "Message";
    bool unattended_ = false;
};

}  // namespace tidewalk
