// SPDX-License-Identifier: MIT
#include "program/form_load.h"

#include <algorithm>
#include <filesystem>

#include "board/layout.h"
#include "generator/create_puzzle.h"
#include "model/config_file.h"
#include "model/job.h"
#include "model/load_puzzle.h"
#include "model/paths.h"
#include "model/write_puzzle_record.h"
#include "options/colour_scheme.h"

namespace tidewalk {

namespace {

/// Fills the list of scheme names from "all.col"; returns what to tell the player when that cannot be done.
std::optional<std::string> ReadSchemeNames(Game& game) {
    game.schemeNames.clear();
    try {
        game.files.Open(1, game.ColourListPath, FileMode::Input);
        std::string line;
        while (game.files.ReadLine(1, line)) {
            const std::size_t ending = line.find(".col");
            if (ending != std::string::npos) game.schemeNames.push_back(line.substr(0, ending));
        }
        game.files.Close(1);
    } catch (const FileError& error) {
        game.files.CloseAll();
        return "The colour schemes could not be read:\n" + std::string(error.what()) +
               "\n\nInstall Tidewalk again, or copy the file \"all.col\" that came with it to this folder.";
    }
    return std::nullopt;
}

/// No collection can be opened: makes one with a single new puzzle and opens that.
void MakeOwnCollection(Game& game) {
    constexpr int kSide = 8;
    game.CollectionPath = game.AppFolder + "TempPuzzles.tdw";
    std::error_code ignored;
    std::filesystem::remove(game.CollectionPath, ignored);
    game.prompts.SystemBox("A new file will be created:\r\n" + game.CollectionPath, SystemButtons::Ok);
    if (game.ending) return;
    game.Rows = game.Cols = kSide;
    LayoutNewBoard(game);
    {
        const Job job(game);
        int grade = 0;
        int failed = 0;
        // A layout that the solver gave up on is a puzzle all the same, and better than an empty window.
        CreatePuzzle(game, grade, failed);
    }
    if (game.ending) return;
    game.PuzzleNumber = 1;
    try {
        WritePuzzleRecord(game, game.CollectionPath, 1);
    } catch (const FileError& error) {
        game.files.CloseAll();
        game.window.SetText(Control::pb, std::string("Not written: ") + error.what());
    }
    LoadPuzzle(game, game.CollectionPath, 1);
}

}  // namespace

std::optional<std::string> Form_Load(Game& game, const StartRequest& request) {
    game.AppFolder = WithSeparator(request.appFolder);
    game.SolutionTempPath = game.AppFolder + "TempPuzzleSolFile.tdw";
    game.ColourListPath = game.AppFolder + "all.col";
    if (auto fatal = ReadSchemeNames(game)) return fatal;

    ReadcfgFile(game);
    Colour backColour = 0;
    LoadColourScheme(game, game.ColourSchemeName, backColour);
    ApplyColourScheme(game);

    if (!request.collection.empty()) {
        game.CollectionPath = request.collection;
        game.PuzzleNumber = std::max(request.puzzleNumber.value_or(1), 1);
    }
    if (FileLength(game.CollectionPath) == 0) {
        game.CollectionPath = game.AppFolder + "puzzles.txt";
        game.PuzzleNumber = 1;
    }
    if (LoadPuzzle(game, game.CollectionPath, game.PuzzleNumber) == YesValue) MakeOwnCollection(game);
    return std::nullopt;
}

}  // namespace tidewalk
