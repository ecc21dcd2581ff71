// SPDX-License-Identifier: MIT
// The state that the whole program shares.
#pragma once

#include <string>

#include "model/board_state.h"
#include "model/growth_tables.h"
#include "model/list_box.h"
#include "model/numbered_files.h"
#include "model/options.h"
#include "model/puzzle.h"
#include "model/random_source.h"
#include "model/seams.h"
#include "model/solver_tables.h"

namespace tidewalk {

/// One run of the program: the current puzzle with everything that is known and drawn of it, and a reference to each
/// seam. Each subject is a struct of its own, inherited so that every field is reached under its own name.
///
/// A game is large; make it on the heap. Several games do not share anything.
struct Game : Puzzle, SolverTables, GrowthTables, BoardState, Options, Seams {
    explicit Game(const Seams& seams) : Seams(seams), random(seams.clock) {}
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    std::string AppFolder;         ///< the program's folder, with a separator at its end
    std::string ColourListPath;    ///< "all.col" in it
    std::string SolutionTempPath;  ///< "TempPuzzleSolFile.tdw" in it

    std::string printerName;  ///< the printer that was chosen last, "" for the system's own choice

    NumberedFiles files;
    RandomSource random;
    ListBox List1{ListBox::Order::Sorted};   ///< the island status list, or the lines of the last check
    ListBox List2{ListBox::Order::AsAdded};  ///< the open choice points of the trial search

    int BusyFlag = NoValue;     ///< a long job runs
    int CancelFlag = NoValue;   ///< the running job is asked to stop
    bool jobRunning = false;    ///< a job is on its way even if a load in its middle has reset `BusyFlag`
    int loadCount = 0;          ///< how often the puzzle was replaced as a whole
    int jobLoadCount = 0;       ///< `loadCount` as the running job knows it
    bool ending = false;        ///< the window was closed: jobs stop, nothing more is asked or saved
    std::int64_t lastPoll = 0;  ///< when events were last let through, in the clock's milliseconds
};

}  // namespace tidewalk
