// SPDX-License-Identifier: MIT
#include "ui/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <ctime>

#include "program/exit.h"

namespace tidewalk {

namespace {

constexpr int kSignals[] = {SIGHUP, SIGINT, SIGTERM};

// What the handler of signals needs, which may do hardly anything.
volatile std::sig_atomic_t toWindow = -1;
volatile std::time_t firstCame = 0;
volatile bool hasCome = false;

std::time_t SecondsNow() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec;
}

/// One that comes at once is the first one again: "timeout" sends its signal to the program and to its group.
extern "C" void OnEndSignal(int signal) {
    if (!hasCome) {
        hasCome = true;
        firstCame = SecondsNow();
        const auto byte = static_cast<char>(signal);
        [[maybe_unused]] const auto written = ::write(toWindow, &byte, 1);
    } else if (SecondsNow() - firstCame > 1) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
}

}  // namespace

EndSignals::EndSignals(Handlers& handlers) {
    if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    toWindow = pipe_[1];
    notifier_.emplace(pipe_[0], QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, &handlers, [this, &handlers] {
        unsigned char signal = 0;
        if (::read(pipe_[0], &signal, 1) != 1) return;
        came_ = signal;
        handlers.Run(Form_QueryUnload);
    });
    for (const int signal : kSignals) {
        // Who started the program with nohup wants it to outlive the terminal.
        if (std::signal(signal, OnEndSignal) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
}

EndSignals::~EndSignals() {
    for (const int signal : kSignals) {
        if (std::signal(signal, SIG_DFL) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
    notifier_.reset();
    for (const int end : pipe_) {
        if (end >= 0) ::close(end);
    }
}

int EndSignals::ExitCode(int code) const {
    constexpr int kBySignal = 128;
    return came_ == 0 ? code : kBySignal + came_;
}

}  // namespace tidewalk
