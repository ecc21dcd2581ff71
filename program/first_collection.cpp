// SPDX-License-Identifier: MIT
#include "program/first_collection.h"

#include <filesystem>

#include "game/file_work.h"
#include "game/job.h"
#include "generator/new_puzzle.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/load_puzzle.h"
#include "model/numbers.h"
#include "model/paths.h"

namespace tidewalk {

namespace {

Puzzle CreateFirstPuzzle(Game& game) {
    constexpr BoardSize kSize{8, 8};
    const BusyPointer pointer(game);
    const Job job(game, "New Puzzle");
    return CreateInJob(game, kSize, {}).candidate.created.puzzle;
}

/// Gives the file another name beside it, if there is one with anything in it.
void PutAside(const std::string& path) {
    constexpr int kMost = 1000;
    std::error_code error;
    if (FileLength(path) == 0) {
        std::filesystem::remove(path, error);
        return;
    }
    const std::filesystem::path file(path);
    for (int number = 1; number < kMost; ++number) {
        std::filesystem::path aside = file;
        aside.replace_filename(file.stem().string() + "-" + NumText(number) + file.extension().string());
        if (std::filesystem::exists(aside, error)) continue;
        std::filesystem::rename(file, aside, error);
        return;
    }
}

}  // namespace

void MakeFirstCollection(Game& game) {
    CloseFiles(game);
    std::string& path = game.collection.CollectionPath;
    path = game.AppFolder + "TempPuzzles.tdw";
    PutAside(path);
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
