// SPDX-License-Identifier: MIT
// A window that is open hears of later starts of the program.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <list>
#include <memory>
#include <optional>

#include "ui/form1.h"
#include "ui/handlers.h"
#include "ui/local_socket.h"
#include "ui/summons.h"

namespace tidewalk {

/// Takes what starts hand over, in the order in which they came: opens the file as the menu would, and brings the
/// window to the front.
///
/// While a box, a side window or a menu is open a file waits, and so does the start that brought it: should the window
/// end meanwhile, that one opens it. A long job refuses it, as it refuses the menu.
class RunningWindow final : public QObject {
    Q_OBJECT

 public:
    /// Starts are answered from now on.
    RunningWindow(LocalSocket listener, Handlers& handlers, Form1& form);

    /// The first puzzle is on the board: files are opened from now on.
    void BeginToTake();

 private:
    struct Caller {
        LocalSocket line;
        std::unique_ptr<QSocketNotifier> notifier = nullptr;
        std::optional<Summons> summons = std::nullopt;
        bool knowsThatItWaits = false;
    };

    void Answer();
    void Hear(const Caller* who);
    void Attend();
    bool CanOpen() const;
    void Take(std::list<Caller>::iterator caller);
    void BringToFront(const std::string& token);
    void Close();
    std::int64_t LastActive() const;

    Handlers& handlers_;
    Form1& form_;
    std::optional<LocalSocket> listener_;
    std::unique_ptr<QSocketNotifier> calls_;
    std::list<Caller> callers_;  ///< those with a summons after each other as their summons came
    QTimer attend_;
    std::int64_t lastActive_;
    bool takes_ = false;
};

}  // namespace tidewalk
