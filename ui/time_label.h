// SPDX-License-Identifier: MIT
// The time spent on the puzzle, beside the status line.
#pragma once

#include <QLabel>
#include <QTimer>

#include "ui/handlers.h"

namespace tidewalk {

/// Shows the time while the options say so, and has what was spent kept every second, shown or not.
class TimeLabel final : public QLabel {
    Q_OBJECT

 public:
    explicit TimeLabel(Handlers& handlers);

    /// The main window becomes active, or another one does.
    void SetActive(bool active);

 private:
    void Tick();
    void Refresh();

    Handlers& handlers_;
    QTimer ticks_;
};

}  // namespace tidewalk
