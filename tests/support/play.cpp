// SPDX-License-Identifier: MIT
#include "support/play.h"

#include <algorithm>
#include <sstream>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/board_mouse.h"

namespace tidewalk::test {

void Play::Press(CellNumber id, MouseButton button, bool shift) {
    const Point point = board.At(id);
    Run(Picture1_MouseMove, false, point, point);
    Run(Picture1_MouseDown, button, point, point);
    Run(Picture1_MouseUp, button, shift, point);
    if (button == MouseButton::Left) Run(Picture1_Click);
}

void Play::Draw(CellNumber from, Point to) {
    Run(Picture1_MouseDown, MouseButton::Left, board.At(from), board.At(from));
    Run(Picture1_MouseMove, true, to, to);
}

void Play::Drag(CellNumber from, Point to) {
    Draw(from, to);
    Run(Picture1_MouseUp, MouseButton::Left, false, to);
    Run(Picture1_Click);
}

Play& Play::operator<<(const std::string& moves) {
    std::istringstream all(moves);
    for (std::string move; all >> move;) {
        const std::size_t how = std::min(move.find_first_of("-=xX"), move.size());
        if (move[0] == ':') {
            for (const char key : move.substr(1))
                Run(Picture1_KeyDown, static_cast<BoardKey>(std::string("lrudfepn.=x").find(key)));
        } else if (move == "u" || move == "r") {
            Run(move == "u" ? cmdundo_Click : cmdredo_Click);
        } else if (move == "c" || move == "b") {
            Run(move == "c" ? mnucheckpoint_Click : mnubacktocheckpoint_Click);
        } else if (move.find('>') != std::string::npos) {
            Drag(std::stoi(move), board.At(std::stoi(move.substr(move.find('>') + 1))));
        } else {
            const bool right = move[how] == 'x' || move[how] == 'X';
            const bool shift = move[how] == '=' || move[how] == 'X';
            if (how > 0) Press(std::stoi(move), MouseButton::Left, false);
            if (how == move.size()) continue;
            Press(std::stoi(move.substr(how + 1)), right ? MouseButton::Right : MouseButton::Left, shift);
        }
    }
    return *this;
}

std::string Play::State() const {
    std::string all;
    for (const auto& [a, b, bridges] : board.BridgeState.InBothOrders()) {
        if (a < b) all += std::to_string(a) + "-" + std::to_string(b) + "*" + std::to_string(bridges) + " ";
    }
    for (const auto& [a, b] : board.Marks.All())
        all += std::to_string(a) + "x" + std::to_string(b) + " ";
    if (board.focusShows) all += "#" + std::to_string(FocusedIsland(board)) + " ";
    if (SelectedIsland(board) != 0) all += "@" + std::to_string(SelectedIsland(board));
    for (const UndoRecord& record : board.history.UndoList())
        all += ";" + Text(record);
    return all;
}

}  // namespace tidewalk::test
