// SPDX-License-Identifier: MIT
#include "model/navigation.h"

#include <algorithm>
#include <filesystem>

#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

/// The number that an arrow leads to from `old`, or nothing for a button without a meaning.
std::optional<int> ArrowTarget(Game& game, int index, MouseButton button, int old) {
    const int count = game.PuzzleCount;
    if (index == 1) return std::min(game.random.Draw(count) + 1, count);
    if (index == 0 && button == MouseButton::Left) return old - 1 < 1 ? count : old - 1;
    if (index == 0 && button == MouseButton::Right) return 1;
    if (index == 2 && button == MouseButton::Left) return old + 1 > count ? 1 : old + 1;
    if (index == 2 && button == MouseButton::Right) return count;
    return std::nullopt;
}

/// Goes to puzzle `number`, or back to `old` when that fails. What the status line said was about the puzzle before.
void LoadOrGoBack(Game& game, int number, int old) {
    if (LoadPuzzle(game, game.CollectionPath, number) == YesValue) LoadPuzzle(game, game.CollectionPath, old);
    game.window.SetText(Control::pb, "");
}

}  // namespace

void arrows_Click(Game& game, int index, MouseButton button) {
    if (RefuseWhileBusy(game)) return;
    if (game.PuzzleNumber == 0 || (game.PuzzleNumber == 1 && game.PuzzleCount == 1)) return;
    game.PuzzleCount = CountLines(game, game.CollectionPath);
    const int old = game.PuzzleNumber;
    if (const auto number = ArrowTarget(game, index, button, old)) LoadOrGoBack(game, *number, old);
}

void PuzNumNow_KeyPress(Game& game, int key) {
    if (key != kEnterKey) return;
    const int number = RoundedVal(game.window.Text(Control::PuzNumNow));
    if (number < 1 || number > game.PuzzleCount) return;
    LoadOrGoBack(game, number, game.PuzzleNumber);
}

std::string PickFile(Game& game, const FileRequest& request) {
    std::error_code ignored;
    const auto folder = std::filesystem::current_path(ignored);
    std::string path = game.filePicker.Pick(request);
    std::filesystem::current_path(folder, ignored);
    return path;
}

void mnuloadpuz_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string path = PickFile(
        game, {std::string(AppTitle), "*.tdw;*.txt;*.dat", "Tidewalk Files", game.AppFolder, FileRequest::Mode::Open});
    if (path.empty()) return;
    // A collection that fails to open does not bring the previous puzzle back: the message is all there is to say.
    const BusyPointer busy(game);
    LoadPuzzle(game, path, 1);
    game.window.SetText(Control::pb, "");
}

void cmdload_Click(Game& game) {
    mnuloadpuz_Click(game);
}

}  // namespace tidewalk
