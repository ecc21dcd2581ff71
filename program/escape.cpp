// SPDX-License-Identifier: MIT
#include "program/escape.h"

#include "board/board_keys.h"
#include "generator/new_puzzle.h"

namespace tidewalk {

void can2_Click(Game& game) {
    if (!LetGo(game)) cmdcancel_Click(game);
}

}  // namespace tidewalk
