// SPDX-License-Identifier: MIT
// All commands while a job runs.
#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/board_mouse.h"
#include "board/copy_and_print.h"
#include "game/job.h"
#include "generator/batch.h"
#include "generator/new_puzzle.h"
#include "generator/shuffle.h"
#include "model/collection_commands.h"
#include "model/configuration.h"
#include "model/import_grid.h"
#include "model/navigation.h"
#include "model/number_grid.h"
#include "options/options_form.h"
#include "program/escape.h"
#include "program/exit.h"
#include "solver/auto_solve.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

/// What a command does while a job runs.
enum class During { Refuses, DoesNothing, Works };

struct Row {
    const char* name;
    During during;
    void (*run)(TestGame&);
};

template <auto kHandler, auto... kArguments>
void Do(TestGame& game) {
    game.Run(kHandler, kArguments...);
}

constexpr CellNumber kOther = 3;  // in line with the selected island

template <MouseButton kButton, bool kShift>
void Release(TestGame& game) {
    game.Run(Picture1_MouseUp, kButton, kShift, game.board.At(kOther));
}

void Drag(TestGame& game) {
    game.Run(Picture1_MouseDown, MouseButton::Left, Point{0, 0});
    game.Run(Picture1_MouseMove, true, Point{-900, -900}, Point{90, 90});
}

const Row kRows[] = {
    {"previous", During::Refuses, Do<arrows_Click, 0, MouseButton::Left>},
    {"random", During::Refuses, Do<arrows_Click, 1, MouseButton::Left>},
    {"next", During::Refuses, Do<arrows_Click, 2, MouseButton::Left>},
    {"load", During::Refuses, Do<mnuloadpuz_Click>},
    {"load button", During::Refuses, Do<cmdload_Click>},
    {"append", During::Refuses, Do<mnuappend_Click>},
    {"export", During::Refuses, Do<mnuexport_Click>},
    {"import", During::Refuses, Do<mnuimport_Click>},
    {"paste", During::Refuses, Do<mnupastepuzzle_Click>},
    {"edited numbers", During::Refuses, [](TestGame& game) { game.Run(UseNumberGrid, NumberGrid()); }},
    {"convert", During::Refuses, Do<Command3_Click>},
    {"random batch", During::Refuses, Do<Command4_Click>},
    {"shuffle", During::Refuses, Do<Command5_Click>},
    {"batch", During::Refuses, Do<mnucreatemany_Click>},
    {"new", During::Refuses, Do<cmdnew1_Click>},
    {"new by the menu", During::Refuses, Do<mnunewpuzx_Click>},
    {"solve", During::Refuses, Do<mnuautosol_Click>},
    {"reset", During::Refuses, Do<mnupuzreset_Click>},
    {"print", During::Refuses, Do<mnuprintcurrent_Click>},
    {"preview", During::Refuses, Do<mnuprintpreview_Click>},
    {"print from a file", During::Refuses, Do<control27_Click>},

    {"zoom out", During::DoesNothing, Do<cmdzoom_Click, 0>},
    {"undo", During::DoesNothing, Do<cmdundo_Click>},
    {"check", During::DoesNothing, Do<cmdverify_Click>},
    {"view", During::DoesNothing, Do<cmdviewcol_Press>},
    {"end of view", During::DoesNothing, Do<cmdviewcol_Release>},
    {"click", During::DoesNothing, Do<Picture1_Click>},
    {"shift-click", During::DoesNothing, Release<MouseButton::Left, true>},
    {"right click", During::DoesNothing, Release<MouseButton::Right, false>},
    {"drag", During::DoesNothing, Drag},
    {"focus", During::DoesNothing, Do<Picture1_GotFocus>},
    {"key", During::DoesNothing, Do<Picture1_KeyDown, BoardKey::Last>},
    {"key to lay", During::DoesNothing, Do<Picture1_KeyDown, BoardKey::Lay>},
    {"letting go", During::DoesNothing, Do<LetGo>},

    {"number", During::Works, [](TestGame& game) { game.TypeNumber("2"); }},
    {"delete", During::Works, Do<mnudelete_Click>},
    {"save options", During::Works, Do<mnuoptsave_Click>},
    {"apply options", During::Works, [](TestGame& game) { game.Run(command1_Click, OpenOptions(game)); }},
    {"copy puzzle", During::Works, Do<mnucopyclippuz_Click>},
    {"copy solution", During::Works, Do<mnucopyclipsol_Click>},
    {"cancel", During::Works, Do<cmdcancel_Click>},
    {"escape", During::Works, Do<can2_Click>},
    {"exit", During::Works, Do<cmdexit_Click>},
    {"frame", During::Works, Do<Form_QueryUnload>},
};

/// A game in which every command finds something to do: an island is selected, another one has the focus, a move can be
/// taken back, and the solution shows.
struct FullBoard : TestGame {
    FullBoard() : TestGame({kSmallPuzzle, kSmallPuzzle, kSmallPuzzle}) {
        Load(3);
        for (const BoardKey key : {BoardKey::First, BoardKey::First, BoardKey::Lay, BoardKey::Right, BoardKey::Lay,
                                   BoardKey::Lay, BoardKey::Left})
            Run(Picture1_KeyDown, key);
        board.HoverRow = board.FocusRow;
        board.HoverCol = board.FocusCol;
        board.focusShows = false;
        world.ShowOverlay();
        Run(cmdviewcol_Press);
        world.Seen();
    }

    /// What a player or another command could notice.
    std::string State() {
        std::string all = world.Seen() + OverlayOf(board);
        for (const int number : {world.picture.timesCleared, static_cast<int>(board.layout.Picture1.left),
                                 board.AnchorCol, board.FocusCol, static_cast<int>(board.history.Revision())})
            all += " " + std::to_string(number);
        return all;
    }
};

TEST(Commands, RefuseOrLieStillOrWorkWhileAJobRuns) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        FullBoard game;
        const Job job(game, "AutoSolve");
        if (row.during == During::Refuses) game.world.Expect("Cancel Autosolve first", kInformation);
        if (row.during == During::Works) game.world.AnswerAll(kYes);
        const std::string before = (row.during == During::Refuses ? "box" : "") + game.State();
        row.run(game);
        EXPECT_EQ(game.State() == before, row.during != During::Works);
        EXPECT_TRUE(game.job.BusyFlag());
        if (row.during != During::DoesNothing) continue;
        FullBoard idle;
        row.run(idle);
        EXPECT_NE(idle.State(), before) << "without a job there is something to do";
    }
}

}  // namespace
}  // namespace tidewalk::test
