// SPDX-License-Identifier: MIT
#include "program/form_load.h"

#include "model/config_file.h"
#include "model/load_puzzle.h"
#include "model/paths.h"
#include "options/colour_scheme.h"
#include "program/first_collection.h"

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

/// Loads what the command line asks for; true when that was done.
bool LoadRequested(Game& game, const StartRequest& request) {
    if (request.collection.empty()) return false;
    if (LoadPuzzle(game, request.collection, request.puzzleNumber.value_or(1)) == 0) return true;
    game.files.CloseAll();
    return false;
}

/// Until a scheme is read, messages wear the desktop's colours.
void TakeFirstColours(Game& game) {
    game.SchemeColours[kBackgroundEntry] = game.window.Desktop(DesktopColour::ListBackground);
    game.SchemeColours[kOutlineEntry] = game.window.Desktop(DesktopColour::WindowFace);
    game.SchemeColours[kFaceEntry] = game.window.Desktop(DesktopColour::ButtonFace);
    game.SchemeColours[kHighlightEntry] = game.window.Desktop(DesktopColour::Highlight);
}

}  // namespace

std::optional<std::string> Form_Load(Game& game, const StartRequest& request) {
    game.AppFolder = WithSeparator(request.appFolder);
    game.SolutionTempPath = game.AppFolder + "TempPuzzleSolFile.tdw";
    game.ColourListPath = game.AppFolder + "all.col";
    TakeFirstColours(game);
    if (auto fatal = ReadSchemeNames(game)) return fatal;

    ReadcfgFile(game);
    Colour backColour = 0;
    LoadColourScheme(game, game.ColourSchemeName, backColour);
    ApplyColourScheme(game);

    if (LoadRequested(game, request)) return std::nullopt;
    if (FileLength(game.CollectionPath) == 0) {
        game.CollectionPath = game.AppFolder + "puzzles.txt";
        game.PuzzleNumber = 1;
    }
    if (LoadPuzzle(game, game.CollectionPath, game.PuzzleNumber) != 0) MakeFirstCollection(game);
    return std::nullopt;
}

}  // namespace tidewalk
