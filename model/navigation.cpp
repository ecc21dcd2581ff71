// SPDX-License-Identifier: MIT
#include "model/navigation.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "game/job.h"
#include "game/pick_file.h"
#include "game/recent_files.h"
#include "model/convert_layout.h"
#include "model/file_error.h"
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

/// Loads what the player wants to have open, and remembers that.
bool LoadAndRemember(Game& game, const std::string& path, int number) {
    if (!LoadPuzzle(game, path, number)) return false;
    RememberOpened(game, path);
    return true;
}

/// Goes to puzzle `number`, or back to `old` when that fails. What the status line said was about the puzzle before.
void LoadOrGoBack(Game& game, int number, int old) {
    if (!LoadPuzzle(game, game.collection.CollectionPath, number))
        LoadPuzzle(game, game.collection.CollectionPath, old);
    game.window.SetText(WindowText::Status, game.board.playNote);
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

void mnuchoose_Click(Game& game) {
    if (RefuseWhileBusy(game) || game.collection.PuzzleNumber == 0) return;
    const int number = game.questions.ChoosePuzzle();
    if (number > 0 && !game.job.Ending()) LoadOrGoBack(game, number, game.collection.PuzzleNumber);
}

bool OpenCollection(Game& game, const std::string& path, int number) {
    if (!IsOlderLayout(path)) return LoadAndRemember(game, path, number);
    const std::string to = ConvertedPath(path);
    const std::string isOlder = "This collection is of the older layout:\r\n" + path + "\r\n\r\n";
    if (to.empty()) {
        game.prompts.Show(isOlder + "Give it a name with an ending, so that a converted copy can be named after it.",
                          "vbinformation+vbok");
        return false;
    }
    if (game.prompts.Show(isOlder + "Convert it to this file and open that?\r\n" + to, "vbYesNo+vbquestion") != kYes) {
        return false;
    }
    if (!ConfirmOverwrite(game, to)) return false;
    try {
        ConvertCollection(path, to);
    } catch (const FileError& error) {
        game.prompts.SystemBox(std::string("The collection could not be converted.\r\n") + error.what(),
                               SystemButtons::Ok);
        return false;
    }
    return LoadAndRemember(game, to, number);
}

void OpenChosen(Game& game, const std::string& path) {
    OpenChosenAt(game, path, 1);
}

void OpenChosenAt(Game& game, const std::string& path, int number) {
    if (RefuseWhileBusy(game)) return;
    const BusyPointer busy(game);
    CloseFiles(game);
    OpenCollection(game, path, number);
    game.window.SetText(WindowText::Status, game.board.playNote);
}

void OpenRecent(Game& game, const std::string& path) {
    if (RefuseWhileBusy(game)) return;
    OpenChosen(game, path);
    std::error_code error;
    if (!std::filesystem::exists(path, error) && !error) ForgetOpened(game, path);
}

void mnuloadpuz_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string path = PickFile(
        game, {std::string(AppTitle), "*.tdw;*.txt;*.dat", "Tidewalk Files", game.AppFolder, FileRequest::Mode::Open});
    // A collection that fails to open does not bring the previous puzzle back: the message is all there is to say.
    if (!path.empty()) OpenChosen(game, path);
}

void cmdload_Click(Game& game) {
    mnuloadpuz_Click(game);
}

}  // namespace tidewalk
