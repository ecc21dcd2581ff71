// SPDX-License-Identifier: MIT
#include "model/navigation.h"

#include <algorithm>
#include <optional>

#include "game/job.h"
#include "game/pick_file.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// The number that an arrow leads to from `old`, or nothing for a button without a meaning.
std::optional<int> ArrowTarget(Game& game, int index, MouseButton button, int old) {
    const int count = game.collection.PuzzleCount;
    if (index == 1) return std::min(game.random.Draw(count) + 1, count);
    if (index == 0 && button == MouseButton::Left) return old - 1 < 1 ? count : old - 1;
    if (index == 0 && button == MouseButton::Right) return 1;
    if (index == 2 && button == MouseButton::Left) return old + 1 > count ? 1 : old + 1;
    if (index == 2 && button == MouseButton::Right) return count;
    return std::nullopt;
}

/// Goes to puzzle `number`, or back to `old` when that fails. What the status line said was about the puzzle before.
void LoadOrGoBack(Game& game, int number, int old) {
    if (!LoadPuzzle(game, game.collection.CollectionPath, number))
        LoadPuzzle(game, game.collection.CollectionPath, old);
    game.window.SetText(WindowText::Status, "");
}

}  // namespace

void arrows_Click(Game& game, int index, MouseButton button) {
    if (RefuseWhileBusy(game)) return;
    if (game.collection.PuzzleNumber == 0 || (game.collection.PuzzleNumber == 1 && game.collection.PuzzleCount == 1))
        return;
    game.collection.PuzzleCount = CountPuzzles(game, game.collection.CollectionPath);
    const int old = game.collection.PuzzleNumber;
    if (const auto number = ArrowTarget(game, index, button, old)) LoadOrGoBack(game, *number, old);
}

void PuzNumNow_KeyPress(Game& game, int key) {
    if (key != kEnterKey) return;
    const int number = RoundedVal(game.window.Text(WindowText::PuzzleNumber));
    if (number < 1 || number > game.collection.PuzzleCount) return;
    LoadOrGoBack(game, number, game.collection.PuzzleNumber);
}

void mnuloadpuz_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string path = PickFile(
        game, {std::string(AppTitle), "*.tdw;*.txt;*.dat", "Tidewalk Files", game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    // A collection that fails to open does not bring the previous puzzle back: the message is all there is to say.
    const BusyPointer busy(game);
    LoadPuzzle(game, path, 1);
    game.window.SetText(WindowText::Status, "");
}

void cmdload_Click(Game& game) {
    mnuloadpuz_Click(game);
}

}  // namespace tidewalk
