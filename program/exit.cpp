// SPDX-License-Identifier: MIT
#include "program/exit.h"

#include "model/configuration.h"
#include "model/load_puzzle.h"

namespace tidewalk {

void cmdexit_Click(Game& game) {
    if (game.prompts.Show("Exit?", "vbYesNo+vbexit") != kYes || game.job.Ending()) return;
    CloseFiles(game);
    SavecfgFile(game);
    Form_QueryUnload(game);
}

void Form_QueryUnload(Game& game) {
    game.window.EndProgram();
    // A job that is on its way sees this and stops.
    game.job.EndProgram();
}

}  // namespace tidewalk
