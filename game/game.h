// SPDX-License-Identifier: MIT
// The game: what the window's handlers share.
#pragma once

#include <string>

#include "board/board.h"
#include "game/background.h"
#include "game/choices.h"
#include "game/clock.h"
#include "game/guidance.h"
#include "game/job_state.h"
#include "game/list_box.h"
#include "game/main_window.h"
#include "game/messages.h"
#include "game/output.h"
#include "game/play_store.h"
#include "game/play_time.h"
#include "game/questions.h"
#include "generator/puzzle_order.h"
#include "model/line_index.h"
#include "model/random_source.h"
#include "options/options.h"

namespace tidewalk {

/// One reference to each seam, the ways in which handlers reach the world.
struct Seams {
    Prompts& prompts;
    FilePicker& filePicker;
    Questions& questions;
    MainWindow& window;
    BoardPictures& pictures;
    PendingEvents& events;
    Clock& clock;
    Choices& choices;
    Clipboard& clipboard;
    Printers& printers;
    Background& background;
    PlayStore& plays;
};

/// The collection that is open, and the place in it of the puzzle that was loaded last.
struct Collection {
    std::string CollectionPath;
    int PuzzleNumber = 0;  ///< from 1; 0 before the first load
    int PuzzleCount = 0;   ///< lines of the collection

    /// The line of the collection from which the puzzle on the board was loaded.
    std::string loadedLine;

    /// Where the puzzle on the board was read from when it is none of the collection: a grid's file. "" otherwise.
    std::string importedFrom;

    /// A load that failed has left its file open, and as long as it is, the next load fails too. Whoever begins
    /// something else with files closes it.
    bool leftOpen = false;
};

/// One run of the program. Games share nothing; every test makes its own.
struct Game : Seams {
    explicit Game(const Seams& seams) : Seams(seams), random([this] { return clock.Timer(); }) {}
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    Board board;
    Collection collection;
    LineIndex lineIndex;  ///< where the lines of the collection begin
    Options options;
    JobState job;
    Guidance guidance;
    PlayTime playTime;
    RandomSource random;

    ListBox List1{ListBox::Order::Sorted};   ///< the island status list, or the lines of the last check
    ListBox List2{ListBox::Order::AsAdded};  ///< the open choice points of the trial search

    std::string AppFolder;                 ///< the program's folder, with a separator at its end
    std::string ColourListPath;            ///< "all.col" in it
    std::string SolutionTempPath;          ///< "TempPuzzleSolFile.tdw" in it
    int mostCandidates = kMostCandidates;  ///< so many are made in search of one puzzle at most
    int windowNumber = 1;                  ///< which of the windows in the same program folder this is, from 1
    std::string printerName;               ///< the printer that was chosen last, "" for the system's own choice
};

}  // namespace tidewalk
