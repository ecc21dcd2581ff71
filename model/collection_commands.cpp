// SPDX-License-Identifier: MIT
#include "model/collection_commands.h"

#include <algorithm>

#include "game/job.h"
#include "game/pick_file.h"
#include "model/collection_file.h"
#include "model/convert_layout.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/plain_grid.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

FileRequest SaveRequest(const Game& game, std::string title, std::string patternName) {
    return {std::move(title), "*.txt", std::move(patternName), game.AppFolder, FileRequest::Mode::Save};
}

void SayNotWritten(Game& game, const FileError& error) {
    game.window.SetText(WindowText::Status, std::string("Not written: ") + error.what());
}

/// Asks whether to delete the current puzzle, and looks whether it may be deleted, before and after.
bool MayDelete(Game& game) {
    const std::string onlyOne = "There is only one puzzle in this file";
    if (game.collection.PuzzleCount <= 1) {
        game.prompts.Show(onlyOne, "vbcritical+vbok");
        return false;
    }
    const std::string question = "Delete current puzzle from file:\r\n" + game.collection.CollectionPath;
    if (game.prompts.Show(question, "vbYesNo+vbtrash") != kYes) return false;
    if (CountPuzzles(game, game.collection.CollectionPath) == 1) {
        game.prompts.Show(onlyOne, "vbok+vbcritical");
        return false;
    }
    return true;
}

}  // namespace

void mnuappend_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string path = PickFile(game, SaveRequest(game, "Add Puzzle to File", "Tidewalk Files"));
    if (path.empty()) return;
    AddExtension(path, "txt");
    int number = 0;
    {
        const BusyPointer busy(game);
        number = CountPuzzles(game, path) + 1;
        try {
            WritePuzzleRecord(path, game.board.puzzle, WriteMode::Append);
        } catch (const FileError& error) {
            SayNotWritten(game, error);
            return;
        }
        LoadPuzzle(game, path, number);
    }
    game.prompts.Show("Puzzle#" + NumText(number) + " appended to file " + path, "vbinformation+vbok");
}

void mnudelete_Click(Game& game) {
    if (!MayDelete(game)) return;
    Collection& collection = game.collection;
    int left = 0;
    CloseFiles(game);
    try {
        left = DeleteLine(collection.CollectionPath, collection.PuzzleNumber, "tidetemp.tmp");
    } catch (const FileError& error) {
        game.prompts.SystemBox(std::string("The puzzle could not be deleted.\r\n") + error.what(), SystemButtons::Ok);
        return;
    }
    collection.PuzzleNumber = std::min(std::max(collection.PuzzleNumber - 1, 1), left);
    collection.PuzzleCount = left;
    LoadPuzzle(game, collection.CollectionPath, collection.PuzzleNumber);
    game.board.history.Clear();
    game.prompts.Show("Deleted", "vbok+vbtrash");
}

void mnuexport_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string path = PickFile(game, SaveRequest(game, "Export Puzzle", "Text Files"));
    if (path.empty() || !ConfirmOverwrite(game, path)) return;
    AddExtension(path, "txt");
    CloseFiles(game);
    try {
        ReplaceFile(path, [&](std::ostream& out) {
            for (const std::string& row : PlainGrid(game.board.puzzle))
                out << row << kLineEnd;
        });
    } catch (const FileError& error) {
        SayNotWritten(game, error);
        return;
    }
    game.prompts.Show("Puzzle exported to file:\r\n" + path, "vbinformation+vbok");
}

void Command3_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    const std::string to = ConvertedPath(game.collection.CollectionPath);
    if (to.empty()) return;
    CloseFiles(game);
    try {
        ConvertLayout(game.collection.CollectionPath, to);
    } catch (const FileError& error) {
        game.prompts.SystemBox(std::string("The collection could not be converted.\r\n") + error.what(),
                               SystemButtons::Ok);
        return;
    }
    game.prompts.SystemBox(to + " done", SystemButtons::Ok);
}

}  // namespace tidewalk
