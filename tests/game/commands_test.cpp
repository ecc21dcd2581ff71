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
#include "solver/show_solutions.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

using Command = void (*)(TestGame&);

template <auto kHandler, auto... kArguments>
void Do(TestGame& game) {
    game.Run(kHandler, kArguments...);
}

/// A button released over an island in line with the selected one.
template <MouseButton kButton, bool kShift>
void Release(TestGame& game) {
    game.Run(Picture1_MouseUp, kButton, kShift, game.board.At(3));
}

void Drag(TestGame& game) {
    game.Run(Picture1_MouseDown, MouseButton::Left, Point{-900, -900}, Point{0, 0});
    game.Run(Picture1_MouseMove, true, Point{-900, -900}, Point{90, 90});
}

void UndoAndRedo(TestGame& game) {
    game.Run(cmdundo_Click);
    game.Run(cmdredo_Click);
}

void Choose(TestGame& game) {
    game.Run(OpenChosen, game.PathOfCollection());
}
void Recent(TestGame& game) {
    game.Run(OpenRecent, game.PathOfCollection());
}
void UseNumbers(TestGame& game) {
    EXPECT_FALSE(game.Run(UseNumberGrid, NumberGrid())) << "the editor stays open";
}
void TypeTwo(TestGame& game) {
    game.TypeNumber("2");
}
void Apply(TestGame& game) {
    game.Run(command1_Click, OpenOptions(game));
}

constexpr MouseButton kLeft = MouseButton::Left;
constexpr MouseButton kRight = MouseButton::Right;

const Command kRefuse[] = {Do<arrows_Click, 0, kLeft>,
                           Do<arrows_Click, 1, kLeft>,
                           Do<arrows_Click, 2, kLeft>,
                           Do<mnuloadpuz_Click>,
                           Do<cmdload_Click>,
                           Choose,
                           Recent,
                           Do<mnuappend_Click>,
                           Do<mnuexport_Click>,
                           Do<mnuimport_Click>,
                           Do<mnupastepuzzle_Click>,
                           UseNumbers,
                           Do<Command3_Click>,
                           Do<Command4_Click>,
                           Do<Command5_Click>,
                           Do<mnucreatemany_Click>,
                           Do<cmdnew1_Click>,
                           Do<mnunewpuzx_Click>,
                           Do<mnuautosol_Click>,
                           Do<mnusolutions_Click>,
                           Do<mnupuzreset_Click>,
                           Do<mnuprintcurrent_Click>,
                           Do<mnuprintpreview_Click>,
                           Do<control27_Click>};
const Command kDoNothing[] = {Do<cmdzoom_Click, 0>,
                              Do<cmdundo_Click>,
                              UndoAndRedo,
                              Do<mnulines_Click>,
                              Do<mnucheckpoint_Click>,
                              Do<mnubacktocheckpoint_Click>,
                              Do<LayTowards, BoardKey::Right>,
                              Do<cmdverify_Click>,
                              Do<cmdviewcol_Press>,
                              Do<cmdviewcol_Release>,
                              Do<Picture1_Click>,
                              Release<kLeft, true>,
                              Release<kRight, false>,
                              Drag,
                              Do<Picture1_GotFocus>,
                              Do<Picture1_KeyDown, BoardKey::Last>,
                              Do<Picture1_KeyDown, BoardKey::Lay>,
                              Do<LetGo>};
const Command kWork[] = {TypeTwo,
                         Apply,
                         Do<mnudelete_Click>,
                         Do<mnuoptsave_Click>,
                         Do<mnucopyclippuz_Click>,
                         Do<mnucopyclipsol_Click>,
                         Do<cmdcancel_Click>,
                         Do<can2_Click>,
                         Do<cmdexit_Click>,
                         Do<Form_QueryUnload>};

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
    int number = 0;
    const auto run = [&](Command command, bool refuses, bool works) {
        SCOPED_TRACE(++number);
        FullBoard game;
        const Job job(game, "AutoSolve");
        if (refuses) game.world.Expect("Cancel Autosolve first", kInformation);
        if (works) game.world.AnswerAll(kYes);
        const std::string before = (refuses ? "box" : "") + game.State();
        command(game);
        EXPECT_EQ(game.State() != before, works);
        EXPECT_TRUE(game.job.BusyFlag());
        if (refuses || works) return;
        FullBoard idle;
        command(idle);
        EXPECT_NE(idle.State(), before) << "without a job there is something to do";
    };
    for (const Command command : kRefuse)
        run(command, true, false);
    for (const Command command : kDoNothing)
        run(command, false, false);
    for (const Command command : kWork)
        run(command, false, true);
}

}  // namespace
}  // namespace tidewalk::test
