// SPDX-License-Identifier: MIT
#include "program/form_load.h"

#include "board/magnify.h"
#include "model/collection_file.h"
#include "model/configuration.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/load_puzzle.h"
#include "model/navigation.h"
#include "model/paths.h"
#include "options/colour_scheme.h"
#include "options/options_form.h"
#include "program/first_collection.h"

namespace tidewalk {

namespace {

/// Fills the list of scheme names from "all.col"; returns what to tell the player when that cannot be done.
std::optional<std::string> ReadSchemeNames(Game& game) {
    game.options.schemeNames.clear();
    try {
        LineReader lines(game.ColourListPath);
        std::string line;
        while (lines.Next(line)) {
            const std::size_t ending = line.find(".col");
            if (ending != std::string::npos) game.options.schemeNames.push_back(line.substr(0, ending));
        }
    } catch (const FileError& error) {
        return "The colour schemes could not be read:\n" + std::string(error.what()) +
               "\n\nInstall Tidewalk again, or copy the file \"all.col\" that came with it to this folder.";
    }
    return std::nullopt;
}

/// Loads what the command line asks for; true when that was done.
bool LoadRequested(Game& game, const StartRequest& request) {
    if (request.collection.empty()) return false;
    if (OpenCollection(game, request.collection, request.puzzleNumber.value_or(1))) return true;
    CloseFiles(game);
    return false;
}

/// Until a scheme is read, messages wear the desktop's colours.
void TakeFirstColours(Game& game) {
    game.options.SchemeColours[kBackgroundEntry] = game.window.Desktop(DesktopColour::ListBackground);
    game.options.SchemeColours[kOutlineEntry] = game.window.Desktop(DesktopColour::WindowFace);
    game.options.SchemeColours[kFaceEntry] = game.window.Desktop(DesktopColour::ButtonFace);
    game.options.SchemeColours[kHighlightEntry] = game.window.Desktop(DesktopColour::Highlight);
}

}  // namespace

std::optional<std::string> Form_Load(Game& game, const StartRequest& request) {
    game.AppFolder = WithSeparator(request.appFolder);
    game.windowNumber = request.windowNumber;
    game.SolutionTempPath = game.AppFolder + "TempPuzzleSolFile.tdw";
    game.ColourListPath = game.AppFolder + "all.col";
    TakeFirstColours(game);
    if (auto fatal = ReadSchemeNames(game)) return fatal;

    if (request.folderIsNew && FileLength(game.AppFolder + "tide.cfg") == 0) WriteFirstConfiguration(game);
    ReadcfgFile(game);
    ReadChoices(game);
    ReadMagnification(game);
    Colour backColour = 0;
    LoadColourScheme(game, game.options.ColourSchemeName, backColour);
    ApplyColourScheme(game);

    if (LoadRequested(game, request)) return std::nullopt;
    if (FileLength(game.collection.CollectionPath) == 0) {
        game.collection.CollectionPath = game.AppFolder + "puzzles.txt";
        game.collection.PuzzleNumber = 1;
    }
    // The collection may have become shorter since, or end in a line that is none.
    const int last = LastPuzzleUpTo(game.lineIndex, game.collection.CollectionPath, game.collection.PuzzleNumber);
    if (last > 0) game.collection.PuzzleNumber = last;
    if (!LoadPuzzle(game, game.collection.CollectionPath, game.collection.PuzzleNumber)) MakeFirstCollection(game);
    return std::nullopt;
}

}  // namespace tidewalk
