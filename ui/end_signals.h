// SPDX-License-Identifier: MIT
// The signals by which the system or a terminal ends the program.
#pragma once

#include <QSocketNotifier>
#include <array>
#include <optional>

#include "ui/handlers.h"

namespace tidewalk {

/// As long as it lives, SIGHUP, SIGINT and SIGTERM end the program as its window's frame does, so that what was played
/// is kept. A second one ends it at once. There can be one such object at a time.
class EndSignals final {
 public:
    explicit EndSignals(Handlers& handlers);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// The program's exit code: 128 and the signal that came, or else `code`.
    int ExitCode(int code) const;

 private:
    std::array<int, 2> pipe_{-1, -1};
    std::optional<QSocketNotifier> notifier_;
    int came_ = 0;  ///< the signal that came, 0 for none
};

}  // namespace tidewalk
