// SPDX-License-Identifier: MIT
#include "program/exit.h"

#include "board/keep_play.h"
#include "board/magnify.h"
#include "model/configuration.h"
#include "model/load_puzzle.h"

namespace tidewalk {

void cmdexit_Click(Game& game) {
    const std::string status = game.window.Text(WindowText::Status);
    if (game.job.BusyFlag()) game.window.SetText(WindowText::Status, game.job.Name() + " would be cut short");
    const bool exits = game.prompts.Show("Exit?", "vbYesNo+vbexit") == kYes;
    if (game.job.Ending()) return;
    if (!exits) {
        if (game.job.BusyFlag()) game.window.SetText(WindowText::Status, status);
        return;
    }
    CloseFiles(game);
    SavecfgFile(game);
    Form_QueryUnload(game);
}

void Form_QueryUnload(Game& game) {
    KeepTime(game);
    KeepMagnification(game);
    game.window.EndProgram();
    // A job that is on its way sees this and stops.
    game.job.EndProgram();
}

}  // namespace tidewalk
