// SPDX-License-Identifier: MIT
#include "cli/console.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace tidewalk {

namespace {

constexpr int kBarWidth = 30;
constexpr long long kShowMilliseconds = 100;

/// Control characters of a file name or a line would reach the terminal otherwise.
std::string Printable(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }, '?');
    return text;
}

/// Since some moment before the program began.
long long Milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

MayGoOn UntilStopSignal(const Console& console) {
    return [&stopSignal = console.stopSignal] { return stopSignal == 0; };
}

void Say(Console& console, const std::string& message) {
    console.err << "tidewalk-cli: " << Printable(message) << '\n' << std::flush;
}

void SayOfPuzzle(Console& console, const std::string& path, int number, const std::string& message) {
    const std::string file = path == kStandard ? "standard input" : path;
    Say(console, file + ": puzzle " + std::to_string(number) + ": " + message);
}

void PrintLine(Console& console, const std::string& line) {
    console.out << line << '\n' << std::flush;
}

int ExitCodeOf(Console& console, int failures) {
    if (console.stopSignal != 0) {
        Say(console, "stopped before the end");
        return kStoppedBySignal + console.stopSignal;
    }
    return failures > 0 ? kFailed : kDone;
}

Progress::Progress(Console& console, bool sharesTerminal)
    : console_(console), enabled_(console.errIsTerminal && !(sharesTerminal && console.outIsTerminal)) {}

Progress::~Progress() {
    Hide();
}

void Progress::Show(double part, const std::string& text) {
    if (!enabled_) return;
    const long long now = Milliseconds();
    if (lastShown_ != 0 && now - lastShown_ < kShowMilliseconds) return;
    lastShown_ = now;
    std::string line = "\r";
    if (part >= 0) {
        const int filled = static_cast<int>(std::lround(std::min(part, 1.0) * kBarWidth));
        line += "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '.') + "] ";
    }
    // What a longer text left behind is erased up to the line's end.
    console_.err << line << text << "\x1B[K" << std::flush;
    shown_ = true;
}

void Progress::Hide() {
    if (!shown_) return;
    console_.err << "\r\x1B[K" << std::flush;
    shown_ = false;
    lastShown_ = 0;
}

}  // namespace tidewalk
