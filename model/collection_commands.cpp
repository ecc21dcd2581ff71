// SPDX-License-Identifier: MIT
#include "model/collection_commands.h"

#include <algorithm>

#include "game/file_work.h"
#include "game/job.h"
#include "game/pick_file.h"
#include "game/recent_files.h"
#include "model/collection_file.h"
#include "model/convert_layout.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/plain_grid.h"
#include "model/puzzle_record.h"
#include "model/replace_file.h"

namespace tidewalk {

namespace {

FileRequest SaveRequest(const Game& game, std::string title, std::string patternName) {
    return {std::move(title), "*.txt", std::move(patternName), game.AppFolder, FileRequest::Mode::Save, "txt"};
}

void SayNotWritten(Game& game, const FileError& error) {
    game.window.SetText(WindowText::Status, std::string("Not written: ") + error.what());
}

void SayOnlyOne(Game& game, std::string_view style) {
    game.prompts.Show("There is only one puzzle in this file", style);
}

/// Asks whether to delete the current puzzle, and looks whether it may be deleted, before and after.
bool MayDelete(Game& game) {
    if (game.collection.PuzzleCount <= 1) {
        SayOnlyOne(game, "vbcritical+vbok");
        return false;
    }
    const std::string question = "Delete current puzzle from file:\r\n" + game.collection.CollectionPath;
    if (game.prompts.Show(question, "vbYesNo+vbtrash") != kYes) return false;
    if (CountPuzzles(game, game.collection.CollectionPath) != 1) return true;
    SayOnlyOne(game, "vbok+vbcritical");
    return false;
}

/// Another program has changed the collection since the puzzle was loaded.
void SayChangedAndLoadAfresh(Game& game, int count) {
    const std::string path = game.collection.CollectionPath;
    game.prompts.Show("Another program has changed the file:\r\n" + path + "\r\nNothing was deleted.",
                      "vbinformation+vbok");
    LoadPuzzle(game, path, std::clamp(game.collection.PuzzleNumber, 1, std::max(count, 1)));
}

void ShowAfterDelete(Game& game, int left) {
    Collection& collection = game.collection;
    collection.PuzzleNumber = std::min(std::max(collection.PuzzleNumber - 1, 1), left);
    collection.PuzzleCount = left;
    // Where there is no next puzzle to be read, the moves of the deleted one would stay.
    if (!LoadPuzzle(game, collection.CollectionPath, collection.PuzzleNumber)) game.board.history.Clear();
    game.prompts.Show("Deleted", "vbok+vbtrash");
}

}  // namespace

void mnuappend_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string path = PickFile(game, SaveRequest(game, "Add Puzzle to File", "Tidewalk Files"));
    if (path.empty()) return;
    AddExtension(path, "txt");
    Appended appended;
    {
        const BusyPointer busy(game);
        CloseFiles(game);
        try {
            appended = AppendRecord(path, PuzzleRecord(game.board.puzzle), Numbering::Count, WaitingFor(game, path));
            SyncCollection(path);
        } catch (const FileError& error) {
            SayNotWritten(game, error);
            return;
        }
        if (LoadPuzzle(game, path, appended.number)) RememberOpened(game, path);
    }
    game.prompts.Show("Puzzle#" + NumText(appended.number) + " appended to file " + path, "vbinformation+vbok");
    if (appended.cutTail) game.window.SetText(WindowText::Status, TornRecordText(path));
}

bool CanDelete(const Game& game) {
    return game.collection.importedFrom.empty() && !game.collection.loadedLine.empty();
}

void mnudelete_Click(Game& game) {
    if (!CanDelete(game) || !MayDelete(game)) return;
    const Collection& collection = game.collection;
    const std::string path = collection.CollectionPath;
    Deleted deleted;
    CloseFiles(game);
    try {
        deleted = DeleteLine(path, collection.PuzzleNumber, collection.loadedLine, WorkFile(game, "tidetemp.tmp"),
                             WaitingFor(game, path));
    } catch (const FileError& error) {
        game.prompts.SystemBox(std::string("The puzzle could not be deleted.\r\n") + error.what(), SystemButtons::Ok);
        return;
    }
    switch (deleted.outcome) {
        case Deleted::Outcome::Done:
            return ShowAfterDelete(game, deleted.left);
        case Deleted::Outcome::OnlyLine:
            return SayOnlyOne(game, "vbok+vbcritical");
        case Deleted::Outcome::NoSuchLine:
        case Deleted::Outcome::OtherLine:
            return SayChangedAndLoadAfresh(game, deleted.left);
    }
}

void mnuexport_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string path = PickFile(game, SaveRequest(game, "Export Puzzle", "Text Files"));
    if (path.empty()) return;
    AddExtension(path, "txt");
    if (!ConfirmOverwrite(game, path)) return;
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
    if (!IsOlderLayout(game.collection.CollectionPath)) {
        game.prompts.Show("This collection is not of the older layout:\r\n" + game.collection.CollectionPath,
                          "vbinformation+vbok");
        return;
    }
    if (!ConfirmOverwrite(game, to)) return;
    CloseFiles(game);
    try {
        ConvertCollection(game.collection.CollectionPath, to);
    } catch (const FileError& error) {
        game.prompts.SystemBox(std::string("The collection could not be converted.\r\n") + error.what(),
                               SystemButtons::Ok);
        return;
    }
    game.prompts.SystemBox(to + " done", SystemButtons::Ok);
}

}  // namespace tidewalk
