// SPDX-License-Identifier: MIT
// What hints and explanations tell, beside the board.
#pragma once

#include <QDockWidget>
#include <cstdint>
#include <optional>

#include "ui/handlers.h"

class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace tidewalk {

/// The sentences of a hint or of a step, and the list of all steps while a way is explained. It shows when there is
/// something to tell, and stays until it is closed.
class GuidePanel final : public QDockWidget {
    Q_OBJECT

 public:
    explicit GuidePanel(Handlers& handlers);

    QSize sizeHint() const override;

 protected:
    void closeEvent(QCloseEvent* event) override;

 private:
    void Refresh();
    void ShowSteps(const Game& game);
    void ShowStep(int step);

    Handlers& handlers_;
    QPlainTextEdit* text_;
    QListWidget* steps_;
    QPushButton* previous_;
    QPushButton* next_;
    std::optional<std::uint64_t> shown_;  ///< the revision of the steps in the list
};

}  // namespace tidewalk
