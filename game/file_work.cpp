// SPDX-License-Identifier: MIT
#include "game/file_work.h"

#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

MayWait WaitingFor(Game& game, const std::string& path) {
    constexpr std::int64_t kMoment = 300;      // in milliseconds
    constexpr std::int64_t kPatience = 15000;  // in milliseconds
    const std::int64_t start = game.clock.Milliseconds();
    return [&game, start, said = false, name = FileNameOf(path)]() mutable {
        const std::int64_t waited = game.clock.Milliseconds() - start;
        if (waited >= kMoment && !said) {
            said = true;
            game.window.SetText(WindowText::Status, "Waiting for another program that changes " + name + " ...");
            game.events.Repaint();
        }
        return waited < kPatience;
    };
}

std::string TornRecordText(const std::string& path) {
    return "A record that was cut off while it was written was taken off the end of " + FileNameOf(path);
}

std::string WorkFile(const Game& game, const std::string& name) {
    if (game.windowNumber <= 1) return name;
    const std::size_t dot = name.rfind('.');
    return name.substr(0, dot) + "-" + NumText(game.windowNumber) + name.substr(dot);
}

}  // namespace tidewalk
