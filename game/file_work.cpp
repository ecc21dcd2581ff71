// SPDX-License-Identifier: MIT
#include "game/file_work.h"

#include <memory>

#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

/// What the status line says while one waits, and no longer.
class WaitTold {
 public:
    explicit WaitTold(Game& game) : game_(game) {}
    ~WaitTold() {
        if (!text_.empty() && game_.window.Text(WindowText::Status) == text_)
            game_.window.SetText(WindowText::Status, "");
    }
    WaitTold(const WaitTold&) = delete;
    WaitTold& operator=(const WaitTold&) = delete;

    void Tell(const std::string& text) {
        if (!text_.empty()) return;
        text_ = text;
        game_.window.SetText(WindowText::Status, text);
        game_.events.Repaint();
    }

 private:
    Game& game_;
    std::string text_;
};

}  // namespace

MayWait WaitingFor(Game& game, const std::string& path) {
    constexpr std::int64_t kMoment = 300;      // in milliseconds
    constexpr std::int64_t kPatience = 15000;  // in milliseconds
    const std::int64_t start = game.clock.Milliseconds();
    return [&game, start, told = std::make_shared<WaitTold>(game), name = FileNameOf(path)] {
        const std::int64_t waited = game.clock.Milliseconds() - start;
        if (waited >= kMoment) told->Tell("Waiting for another program that changes " + name + " ...");
        return waited < kPatience;
    };
}

std::string TornRecordText(const std::string& path) {
    return "A puzzle that was cut off while it was written was taken off the end of " + FileNameOf(path);
}

std::string WorkFile(const Game& game, const std::string& name) {
    if (game.windowNumber <= 1) return name;
    const std::size_t dot = name.rfind('.');
    return name.substr(0, dot) + "-" + NumText(game.windowNumber) + name.substr(dot);
}

}  // namespace tidewalk
