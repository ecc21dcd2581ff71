// SPDX-License-Identifier: MIT
// The games in which the threads of one command work.
#pragma once

#include <memory>
#include <vector>

#include "cli/console.h"
#include "model/job.h"
#include "program/headless.h"

namespace tidewalk {

/// A game for each thread. Their jobs end when the run is to stop.
class WorkerGames {
 public:
    WorkerGames(Console& console, int count) {
        for (int i = 0; i < count; ++i) {
            games_.push_back(std::make_unique<HeadlessGame>());
            // The results' stream belongs to another thread, so only the signal is looked at.
            games_.back()->StopWhen([&signal = console.stopSignal] { return signal != 0; });
        }
    }

    Game& operator[](int worker) { return *games_[static_cast<std::size_t>(worker)]; }

 private:
    std::vector<std::unique_ptr<HeadlessGame>> games_;
};

}  // namespace tidewalk
