// SPDX-License-Identifier: MIT
// Running the program's handlers, one inside another when a handler lets events through.
#pragma once

#include <QObject>
#include <functional>

#include "game/game.h"

namespace tidewalk {

/// The one way from a control into the program. Windows listen to `Changed` and show what the game now holds.
class Handlers final : public QObject {
    Q_OBJECT

 public:
    /// Until a game is attached nothing runs.
    void Attach(Game& game) { game_ = &game; }
    void Detach() { game_ = nullptr; }
    Game* game() const { return game_; }

    /// One is on its way, and may have let events through.
    bool AreRunning() const { return depth_ > 0; }

    /// Runs `routine` and announces what may have changed. Nothing runs once the program is ending.
    void Run(const std::function<void(Game&)>& routine);

    /// Ends the program without asking or saving: running jobs stop, and `Ended` comes when the outermost handler has
    /// returned, at once if none runs.
    void End();

 signals:
    /// The game may look different now.
    void Changed();
    /// The windows have to go now; handlers may still have to return.
    void Ending();
    /// No handler runs any more.
    void Ended();

 private:
    Game* game_ = nullptr;
    int depth_ = 0;
};

}  // namespace tidewalk
