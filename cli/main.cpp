// SPDX-License-Identifier: MIT
// The console program: its streams, and the signals that end it.
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>
#include <string>

#include "cli/arguments.h"
#include "cli/descriptor_buffers.h"

namespace {

/// A signal handler reaches nothing else.
std::atomic<int> stopSignal = 0;
std::atomic<long long> stopMilliseconds = 0;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<long long>::is_always_lock_free);

/// A second signal ends a run that the first one could not. One that comes at once is the first one again: "timeout"
/// sends its signal to the program and to the program's group.
extern "C" void NoteSignal(int signal) {
    constexpr long long kAtOnceMilliseconds = 200;
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    const long long now = time.tv_sec * 1000LL + time.tv_nsec / 1000000;
    if (stopSignal == 0) {
        stopMilliseconds = now;
        stopSignal = signal;
    } else if (now - stopMilliseconds > kAtOnceMilliseconds) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
}

void WatchSignals() {
    struct sigaction action {};
    action.sa_handler = NoteSignal;
    for (const int signal : {SIGINT, SIGTERM})
        sigaction(signal, &action, nullptr);
    // Who started the program with nohup wants it to outlive the terminal.
    struct sigaction before {};
    sigaction(SIGHUP, nullptr, &before);
    if (before.sa_handler != SIG_IGN) sigaction(SIGHUP, &action, nullptr);
    // A reader that goes away shows when its pipe is written to.
    std::signal(SIGPIPE, SIG_IGN);
}

/// How large the terminal is; nothing when that is not known.
winsize TerminalSize() {
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size : winsize{};
}

/// The custom of https://no-color.org: any text in NO_COLOR means no colours.
bool MayShowColour() {
    const char* const noColour = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return (noColour == nullptr || *noColour == '\0') && terminal != nullptr && std::strcmp(terminal, "dumb") != 0;
}

}  // namespace

int main(int argc, char** argv) {
    WatchSignals();
    tidewalk::InputDescriptor inBuffer(STDIN_FILENO, stopSignal);
    tidewalk::OutputDescriptor outBuffer(STDOUT_FILENO, stopSignal);
    std::istream in(&inBuffer);
    std::ostream out(&outBuffer);
    tidewalk::Console console{
        in, out, std::cerr, stopSignal, isatty(STDOUT_FILENO) != 0, isatty(STDERR_FILENO) != 0,
    };
    const winsize size = TerminalSize();
    console.outColumns = size.ws_col;
    console.outRows = size.ws_row;
    console.outShowsColour = console.outIsTerminal && MayShowColour();
    const int code = tidewalk::RunCommandLine(console, {argv + 1, argv + argc});
    out.flush();
    if (outBuffer.Failure() == 0 || stopSignal != 0 || console.isDone) return code;
    // Who closes a pipe early has seen enough.
    if (outBuffer.Failure() == EPIPE) return tidewalk::kStoppedBySignal + SIGPIPE;
    tidewalk::Say(console, std::string("standard output: ") + std::strerror(outBuffer.Failure()));
    return tidewalk::kFailed;
}
