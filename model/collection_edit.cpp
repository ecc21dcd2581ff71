// SPDX-License-Identifier: MIT
#include "model/collection_edit.h"

#include <algorithm>
#include <fstream>

#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "model/numbers.h"
#include "model/paths.h"
#include "model/replace_file.h"
#include "model/write_puzzle_record.h"

namespace tidewalk {

namespace {

FileRequest SaveRequest(const Game& game, std::string title, std::string patternName) {
    return {std::move(title), "*.txt", std::move(patternName), game.AppFolder, FileRequest::Mode::Save};
}

void SayNotWritten(Game& game, const FileError& error) {
    game.files.CloseAll();
    game.window.SetText(Control::pb, std::string("Not written: ") + error.what());
}

void WriteGrid(Game& game, const std::string& path) {
    game.files.Close(1);
    ReplaceFile(path, [&](std::ostream& out) {
        for (const std::string& row : PlainGrid(game))
            out << row << "\r\n";
    });
}

/// Asks whether to delete the current puzzle, and looks whether it may be deleted, before and after.
bool MayDelete(Game& game) {
    const std::string onlyOne = "There is only one puzzle in this file";
    if (game.PuzzleCount <= 1) {
        game.prompts.Show(onlyOne, "vbcritical+vbok");
        return false;
    }
    const std::string question = "Delete current puzzle from file:\r\n" + game.CollectionPath;
    if (game.prompts.Show(question, "vbYesNo+vbtrash") != kYes) return false;
    if (CountLines(game, game.CollectionPath) == 1) {
        game.prompts.Show(onlyOne, "vbok+vbcritical");
        return false;
    }
    return true;
}

}  // namespace

bool ConfirmOverwrite(Game& game, const std::string& name) {
    if (FileLength(name) == 0) return true;
    return game.prompts.SystemBox("OverWrite file: " + name + " ?", SystemButtons::YesNo) == kYes;
}

void mnuappend_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string path = PickFile(game, SaveRequest(game, "Add Puzzle to File", "Tidewalk Files"));
    if (path.empty()) return;
    AddExtension(path, "txt");
    int number = 0;
    {
        const BusyPointer busy(game);
        number = CountLines(game, path) + 1;
        try {
            WritePuzzleRecord(game, path, number);
        } catch (const FileError& error) {
            SayNotWritten(game, error);
            return;
        }
        LoadPuzzle(game, path, number);
    }
    game.prompts.Show("Puzzle#" + NumText(number) + " appended to file " + path, "vbinformation+vbok");
}

int DeleteLine(Game& game, const std::string& path, int number, const std::string& workFile) {
    game.files.Close(1);
    game.files.Close(2);
    game.files.Open(1, path, FileMode::Input);
    game.files.Open(2, workFile, FileMode::Output);
    int kept = 0;
    std::string line;
    for (int at = 1; game.files.ReadLine(1, line); ++at) {
        if (at == number) continue;
        game.files.Print(2, line);
        ++kept;
    }
    game.files.Close(1);
    game.files.Close(2);
    ReplaceFile(path, [&](std::ostream& out) {
        if (FileLength(workFile) > 0) out << std::ifstream(workFile, std::ios::binary).rdbuf();
    });
    return kept;
}

void mnudelete_Click(Game& game) {
    if (!MayDelete(game)) return;
    int left = 0;
    try {
        left = DeleteLine(game, game.CollectionPath, game.PuzzleNumber);
    } catch (const FileError& error) {
        game.files.CloseAll();
        game.prompts.SystemBox(std::string("The puzzle could not be deleted.\r\n") + error.what(), SystemButtons::Ok);
        return;
    }
    game.PuzzleNumber = std::min(std::max(game.PuzzleNumber - 1, 1), left);
    game.PuzzleCount = left;
    LoadPuzzle(game, game.CollectionPath, game.PuzzleNumber);
    game.UndoList.clear();
    ++game.undoRevision;
    game.prompts.Show("Deleted", "vbok+vbtrash");
}

void mnuexport_Click(Game& game) {
    if (RefuseWhileBusy(game)) return;
    std::string path = PickFile(game, SaveRequest(game, "Export Puzzle", "Text Files"));
    if (path.empty() || !ConfirmOverwrite(game, path)) return;
    AddExtension(path, "txt");
    try {
        WriteGrid(game, path);
    } catch (const FileError& error) {
        SayNotWritten(game, error);
        return;
    }
    game.prompts.Show("Puzzle exported to file:\r\n" + path, "vbinformation+vbok");
}

std::vector<std::string> PlainGrid(const Puzzle& puzzle) {
    std::vector<std::string> rows;
    for (int row = 1; row <= puzzle.Rows; ++row) {
        std::string text;
        for (int col = 1; col <= puzzle.Cols; ++col) {
            const int number = puzzle.IslandGrid(row, col);
            text += number >= 1 ? NumText(number) : ".";
        }
        rows.push_back(std::move(text));
    }
    return rows;
}

}  // namespace tidewalk
