// SPDX-License-Identifier: MIT
#include "program/first_collection.h"

#include <filesystem>

#include "game/file_work.h"
#include "game/job.h"
#include "generator/new_puzzle.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/paths.h"
#include "model/put_aside.h"

namespace tidewalk {

namespace {

Puzzle CreateFirstPuzzle(Game& game) {
    constexpr BoardSize kSize{8, 8};
    const BusyPointer pointer(game);
    const Job job(game, "New Puzzle");
    return CreateInJob(game, kSize, {}).candidate.created.puzzle;
}

/// Makes the name free, and keeps what the file holds.
void MakeRoom(const std::string& path) {
    if (FileLength(path) > 0) {
        PutAside(path);
        return;
    }
    std::error_code error;
    std::filesystem::remove(path, error);
}

}  // namespace

void MakeFirstCollection(Game& game) {
    CloseFiles(game);
    std::string& path = game.collection.CollectionPath;
    path = game.AppFolder + "TempPuzzles.tdw";
    MakeRoom(path);
    game.prompts.SystemBox("A new file will be created:\r\n" + path, SystemButtons::Ok);
    const Puzzle puzzle = CreateFirstPuzzle(game);
    if (game.job.Ending()) return;
    game.collection.PuzzleNumber = 1;
    try {
        WritePuzzleRecord(path, puzzle, WriteMode::Append, WaitingFor(game, path));
    } catch (const FileError& error) {
        game.prompts.Show(error.what(), "vbcritical+vbok");
        // It can be played all the same.
        TakeImported(game, puzzle, path);
        return;
    }
    LoadPuzzle(game, path, 1);
}

}  // namespace tidewalk
