// SPDX-License-Identifier: MIT
#include "program/exit.h"

#include "model/config_file.h"

namespace tidewalk {

void cmdexit_Click(Game& game) {
    if (game.prompts.Show("Exit?", "vbYesNo+vbexit") != kYes || game.ending) return;
    game.files.CloseAll();
    SavecfgFile(game);
    Form_QueryUnload(game);
}

void Form_QueryUnload(Game& game) {
    game.window.EndProgram();
    // A job that is on its way sees this and stops.
    game.ending = true;
    game.CancelFlag = YesValue;
}

}  // namespace tidewalk
