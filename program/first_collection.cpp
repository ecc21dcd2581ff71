// SPDX-License-Identifier: MIT
#include "program/first_collection.h"

#include <filesystem>

#include "generator/create_puzzle.h"
#include "generator/new_puzzle.h"
#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/write_puzzle_record.h"

namespace tidewalk {

namespace {

void CreateFirstPuzzle(Game& game) {
    constexpr int kSide = 8;
    const BusyPointer pointer(game);
    const Job job(game);
    game.Rows = game.Cols = kSide;
    int grade = 0;
    int failed = 0;
    CreatePuzzle(game, grade, failed);
}

}  // namespace

void MakeFirstCollection(Game& game) {
    game.files.CloseAll();
    game.CollectionPath = game.AppFolder + "TempPuzzles.tdw";
    std::error_code ignored;
    std::filesystem::remove(game.CollectionPath, ignored);
    game.prompts.SystemBox("A new file will be created:\r\n" + game.CollectionPath, SystemButtons::Ok);
    CreateFirstPuzzle(game);
    if (game.ending) return;
    game.PuzzleNumber = 1;
    try {
        WritePuzzleRecord(game, game.CollectionPath, 1);
    } catch (const FileError& error) {
        game.files.CloseAll();
        game.prompts.Show(error.what(), "vbcritical+vbok");
        ShowEmptyBoard(game);
        return;
    }
    LoadPuzzle(game, game.CollectionPath, 1);
}

}  // namespace tidewalk
