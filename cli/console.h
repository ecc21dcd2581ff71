// SPDX-License-Identifier: MIT
// What a run of the console program reads from and writes to, and how it ends.
#pragma once

#include <atomic>
#include <istream>
#include <ostream>
#include <string>

#include "model/may_go_on.h"

namespace tidewalk {

/// How a run ends. One that a signal stopped ends with 128 and the signal's number.
enum ExitCode { kDone = 0, kFailed = 1, kWrongUsage = 2, kStoppedBySignal = 128 };

/// The ends of the program and what it is to know about them.
struct Console {
    std::istream& in;
    std::ostream& out;             ///< results alone
    std::ostream& err;             ///< messages and the progress bar
    std::atomic<int>& stopSignal;  ///< the signal that asks the run to end; 0 for none
    bool outIsTerminal = false;
    bool errIsTerminal = false;
    bool isDone = false;  ///< what was done cannot be done again: a report that nobody could read is no failure
    int outColumns = 0;   ///< of the terminal behind `out`, where there is one and it tells
    int outRows = 0;
    bool outShowsColour = false;  ///< a terminal that knows colours, and nobody has said that there are to be none

    /// True when the run is to end: it was asked to, or nobody takes its results any more.
    bool Stopped() const { return stopSignal != 0 || !out; }
};

/// For long work on any thread: lets it go on until a signal asks the run to end. The stream of the results, which
/// `Stopped` looks at, belongs to one thread.
MayGoOn UntilStopSignal(const Console& console);

/// The name that stands for the standard input or output.
inline constexpr const char* kStandard = "-";

/// Writes a message, with the program's name before it.
void Say(Console& console, const std::string& message);

/// Writes what is wrong with puzzle `number` of the collection.
void SayOfPuzzle(Console& console, const std::string& path, int number, const std::string& message);

/// Writes a line of results, with LF at its end, and hands it on at once.
void PrintLine(Console& console, const std::string& line);

/// The code for a run of which `failures` things failed; says so when it was stopped before its end.
int ExitCodeOf(Console& console, int failures);

/// A bar on the terminal behind the standard error. Without a terminal it shows nothing.
class Progress {
 public:
    /// `sharesTerminal`: results go to the same terminal line by line, so that they show the progress themselves.
    Progress(Console& console, bool sharesTerminal);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Shows `part`, 0..1 or less than 0 where that is not known, and the text, ten times a second at most.
    void Show(double part, const std::string& text);

    /// Takes the bar away, until it is shown again.
    void Hide();

 private:
    Console& console_;
    bool enabled_;
    bool shown_ = false;
    long long lastShown_ = 0;  ///< in milliseconds; 0 for never
};

}  // namespace tidewalk
