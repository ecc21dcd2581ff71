// SPDX-License-Identifier: MIT
#include "ui/handlers.h"

#include <exception>

namespace tidewalk {

void Handlers::Run(const std::function<void(Game&)>& routine) {
    if (game_ == nullptr || game_->job.Ending()) return;
    ++depth_;
    try {
        routine(*game_);
    } catch (const std::exception& error) {
        // Nothing may be thrown through Qt's event loop. What arrives here is a fault nobody dealt with.
        game_->prompts.Show(error.what(), "vbcritical+vbok");
    }
    --depth_;
    if (!game_->job.Ending()) {
        emit Changed();
    } else if (depth_ == 0) {
        emit Ended();
    }
}

void Handlers::End() {
    if (game_ == nullptr || game_->job.Ending()) return;
    game_->job.EndProgram();
    emit Ending();
    if (depth_ == 0) emit Ended();
}

}  // namespace tidewalk
