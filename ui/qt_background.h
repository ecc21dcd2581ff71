// SPDX-License-Identifier: MIT
// What is worked out beside the window, on a thread of its own.
#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <thread>

#include "game/background.h"
#include "ui/handlers.h"

namespace tidewalk {

/// Assesses a puzzle until another thread sets `stop`, or it has taken so many choices; what is not known then stays
/// open. Throws nothing.
Assessment AssessWithin(int mostChoices, const Puzzle& puzzle, const std::atomic<bool>& stop);

/// Assesses one puzzle at a time. The thread gets a copy of the puzzle and gives an answer back; it shares nothing
/// else.
class QtBackground final : public QObject, public Background {
    Q_OBJECT

 public:
    explicit QtBackground(Handlers& handlers);
    ~QtBackground() override;

    void Assess(const Puzzle& puzzle, std::function<void(const Assessment&)> done) override;

 private:
    void Begin();
    void Stop();

    Handlers& handlers_;
    QTimer start_;  ///< who goes through many puzzles wants to know of the last
    Puzzle puzzle_;
    std::function<void(const Assessment&)> done_;
    int question_ = 0;  ///< counts up, so that an answer that comes too late is known
    std::atomic<bool> stop_ = false;
    std::thread thread_;
};

}  // namespace tidewalk
