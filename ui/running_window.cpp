// SPDX-License-Identifier: MIT
#include "ui/running_window.h"

#include <QApplication>
#include <algorithm>
#include <chrono>

#include "model/navigation.h"

namespace tidewalk {

namespace {

constexpr std::size_t kMostCallers = 32;
constexpr int kLookAgain = 100;  ///< in milliseconds, whether a file that waits can be opened

/// By the clock that all programs of the machine share.
std::int64_t Now() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

}  // namespace

RunningWindow::RunningWindow(LocalSocket listener, Handlers& handlers, Form1& form)
    : handlers_(handlers), form_(form), listener_(std::move(listener)), lastActive_(Now()) {
    calls_ = std::make_unique<QSocketNotifier>(listener_->Descriptor(), QSocketNotifier::Read);
    connect(calls_.get(), &QSocketNotifier::activated, this, &RunningWindow::Answer);
    attend_.setSingleShot(true);
    connect(&attend_, &QTimer::timeout, this, &RunningWindow::Attend);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this] { lastActive_ = Now(); });
    connect(&handlers_, &Handlers::Ending, this, &RunningWindow::Close);
}

void RunningWindow::BeginToTake() {
    takes_ = true;
    attend_.start(0);
}

std::int64_t RunningWindow::LastActive() const {
    return QGuiApplication::applicationState() == Qt::ApplicationActive ? Now() : lastActive_;
}

/// Greets everybody who calls. Of too many the one that has been silent longest is hung up on.
void RunningWindow::Answer() {
    while (auto line = listener_->Answer()) {
        if (callers_.size() >= kMostCallers) {
            const auto silent =
                std::find_if(callers_.begin(), callers_.end(), [](const Caller& c) { return !c.summons; });
            if (silent == callers_.end()) continue;
            callers_.erase(silent);
        }
        if (!line->Send(GreetingText(LastActive()))) continue;
        Caller& caller = callers_.emplace_back(Caller{std::move(*line)});
        caller.notifier = std::make_unique<QSocketNotifier>(caller.line.Descriptor(), QSocketNotifier::Read);
        connect(caller.notifier.get(), &QSocketNotifier::activated, this, [this, who = &caller] { Hear(who); });
    }
}

/// A caller says what it brings, or is gone. Whoever says anything else is hung up on.
void RunningWindow::Hear(const Caller* who) {
    const auto caller = std::find_if(callers_.begin(), callers_.end(), [who](const Caller& c) { return &c == who; });
    if (caller == callers_.end()) return;
    const LocalSocket::Heard heard = caller->line.Hear();
    if (heard.what == LocalSocket::Heard::What::Nothing) return;
    const bool isFirst = !caller->summons;
    caller->summons = ParseSummons(heard.message);
    if (!isFirst || !caller->summons) {
        // This runs in a signal of the notifier that goes with it, and looks at a socket no longer than there is one.
        caller->notifier->setEnabled(false);
        caller->notifier.release()->deleteLater();
        callers_.erase(caller);
        return;
    }
    callers_.splice(callers_.end(), callers_, caller);
    // What a start brings is opened by a handler of its own, not by that of a notifier.
    attend_.start(0);
}

/// True when the menu could be clicked, too.
bool RunningWindow::CanOpen() const {
    if (!takes_ || QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
        return false;
    return !handlers_.AreRunning() || handlers_.game()->job.BusyFlag();
}

/// Takes the first file that waits, and whoever only wants to see the window.
void RunningWindow::Attend() {
    const bool canOpen = CanOpen();
    for (auto next = callers_.begin(); next != callers_.end();) {
        const auto caller = next++;
        if (!caller->summons) continue;
        if (canOpen || caller->summons->collection.empty()) {
            Take(caller);
            // While a file was opened callers may have come and gone.
            if (!callers_.empty()) attend_.start(0);
            return;
        }
        attend_.start(kLookAgain);
        if (caller->knowsThatItWaits) continue;
        caller->knowsThatItWaits = true;
        caller->line.Send(kWaits);
        BringToFront(caller->summons->token);
    }
}

void RunningWindow::Take(std::list<Caller>::iterator caller) {
    const Summons summons = *caller->summons;
    const bool wasInFront = caller->knowsThatItWaits;
    // A start that has given up opens its file itself.
    const bool isThere = caller->line.Send(kTaken);
    callers_.erase(caller);
    if (!isThere) return;
    if (!wasInFront) BringToFront(summons.token);
    if (summons.collection.empty()) return;
    handlers_.Run([&](Game& game) { OpenChosenAt(game, summons.collection, summons.puzzleNumber); });
}

/// What lies over the window comes with it.
void RunningWindow::BringToFront(const std::string& token) {
    constexpr int kMoment = 50;  // in milliseconds
    const bool isWayland = QGuiApplication::platformName().startsWith("wayland");
    // From here Qt takes it for the next window that it activates.
    if (isWayland && !token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(token));
    if (form_.isMinimized()) form_.setWindowState(form_.windowState() & ~Qt::WindowMinimized);
    form_.raise();
    QWidget* const box = QApplication::activeModalWidget();
    QWidget* const front = box != nullptr ? box : &form_;
    front->raise();
    // Where the window manager lets no window come to the front by itself, it at least shows that this one wants to.
    // Its answer also tells Qt the time, without which a window looks as if it had asked long ago.
    if (!isWayland) QApplication::alert(front);
    QTimer::singleShot(kMoment, front, [front] { front->activateWindow(); });
}

/// Starts that wait open their files themselves, and later ones find no window.
void RunningWindow::Close() {
    attend_.stop();
    callers_.clear();
    calls_.reset();
    listener_.reset();
}

}  // namespace tidewalk
