// SPDX-License-Identifier: MIT
#include "techniques/assess_board.h"

#include "game/order_choices.h"
#include "model/numbers.h"
#include "solver/difficulty.h"

namespace tidewalk {

void AssessBoard(Game& game) {
    const Puzzle& puzzle = game.board.puzzle;
    const bool isEmpty = puzzle.IslandCount() == 0;
    game.window.SetText(WindowText::Assessment, isEmpty ? "" : SizeText(puzzle.Size()));
    const int load = game.board.loadCount;
    game.background.Assess(puzzle, [&game, load, isEmpty](const Assessment& assessment) {
        if (isEmpty || game.board.loadCount != load) return;
        game.window.SetText(WindowText::Assessment, AssessmentText(game.board.puzzle.Size(), assessment));
    });
}

std::string AssessmentText(BoardSize size, const Assessment& assessment) {
    std::string text = SizeText(size) + ", ";
    if (assessment.score) text += std::string(NameOf(std::optional(GradeOf(*assessment.score)))) + ", ";
    if (!assessment.solutions) return text + "number of solutions unknown";
    if (*assessment.solutions == 0) return text + "no solution";
    return text + (*assessment.solutions == 1 ? "one solution" : "several solutions");
}

}  // namespace tidewalk
