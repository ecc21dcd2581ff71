// SPDX-License-Identifier: MIT
// Random commands, in the middle of jobs too: whatever comes, the game stays whole.
#include <gtest/gtest.h>

#include <random>

#include "board/board_mouse.h"
#include "board/check_bridges.h"
#include "board/copy_and_print.h"
#include "board/layout.h"
#include "board/undo.h"
#include "generator/batch.h"
#include "generator/new_puzzle.h"
#include "generator/shuffle.h"
#include "model/collection_edit.h"
#include "model/config_file.h"
#include "model/convert_layout.h"
#include "model/number_grid.h"
#include "model/read_grid_file.h"
#include "options/options_form.h"
#include "solver/auto_solve.h"
#include "support/test_game.h"

namespace tidewalk::test {
namespace {

class RandomPlayer {
 public:
    explicit RandomPlayer(unsigned seed) : random_(seed) {
        game_.folder.Write("good.tdw",
                           Lines({kSmallPuzzle, Record({"3.3", "...", "3.3"}), kSmallPuzzle, "7,7,0;D;1,"}));
        game_.folder.Write("bad.tdw", Lines({"", "7,7", " 26, 26, 0;D;", "\x01\x02"}));
        game_.folder.Write("grid.txt", Lines({"3.4.3.1", ".......", "2.9...1"}));
        game_.folder.Write("old.dat", Lines({"#0", "D", " 7, 7, 3", "1.", "#1"}));
        game_.AppFolder = game_.folder.Path("");
        game_.CollectionPath = game_.folder.Path("good.tdw");
        game_.Load(1);
        game_.clock.step = 7;
        game_.events.happen = [this] {
            if (depth_ == kDeepest || Draw(2) != 0) return;
            stepsInJobs += game_.jobRunning;
            Step();
        };
        game_.batchWindow.typed = {"2", "7", "8", game_.folder.Path("batch.txt")};
        game_.form5.play = [this](Form5Fields& fields) {
            Form5_Activate(game_, fields);
            if (Draw(2) == 0) Form5_Command1_Click(game_, fields);
        };
    }
    ~RandomPlayer() {
        for (std::size_t asked = game_.filePicker.requests.size(); asked < answers_; ++asked)
            game_.filePicker.Pick({});
    }
    RandomPlayer(const RandomPlayer&) = delete;
    RandomPlayer& operator=(const RandomPlayer&) = delete;

    int stepsInJobs = 0;  ///< how many commands came in the middle of a job

    /// Gives one command.
    void Step() {
        ++depth_;
        game_.prompts.AnswerAll(Draw(4) == 0 ? kNo : kYes);
        switch (Draw(4)) {
            case 0:
                PlayOnBoard();
                break;
            case 1:
                GoElsewhere();
                break;
            default:
                RunCommand();
        }
        --depth_;
    }

    void ExpectWhole() {
        ASSERT_FALSE(game_.jobRunning);
        ASSERT_EQ(game_.BusyFlag, NoValue);
        ASSERT_EQ(game_.window.pointer, Pointer::Default);
        ASSERT_TRUE(game_.pictures.enabled && game_.pictures.visible && !game_.pictures.frozen);
        ASSERT_TRUE(game_.Rows >= 1 && game_.Rows <= kMaxSide && game_.Cols >= 1 && game_.Cols <= kMaxSide);
        ASSERT_EQ(game_.CellCount, game_.Rows * game_.Cols);
        for (CellNumber id = 1; id <= game_.CellCount; ++id) {
            const auto [row, col] = game_.PlaceOf(id);
            ASSERT_EQ(game_.CellId(row, col), id);
            ASSERT_EQ(std::max(game_.IslandGrid(row, col), 0), std::max(game_.GivenGrid(row, col), 0));
        }
        for (int i = 1; i <= game_.LinkCount(); ++i)
            ASSERT_LE(game_.LinkList[i].second, game_.CellCount);
        for (const UndoRecord& record : game_.UndoList)
            ASSERT_TRUE(record.a <= game_.CellCount && record.b <= game_.CellCount);
    }

 private:
    static constexpr int kDeepest = 3;

    static std::string Lines(const std::vector<std::string>& lines) {
        std::string text;
        for (const std::string& line : lines)
            text += line + "\r\n";
        return text;
    }

    int Draw(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

    MouseButton DrawButton() { return Draw(3) == 0 ? MouseButton::Right : MouseButton::Left; }

    void PlayOnBoard() {
        const CellNumber id = 1 + Draw(game_.CellCount + 1);
        const Point point{id > game_.CellCount ? -99.0 : game_.IslandX[id],
                          id > game_.CellCount ? 1e9 : game_.IslandY[id]};
        const MouseButton button = DrawButton();
        Picture1_MouseDown(game_, button, point);
        Picture1_MouseMove(game_, Draw(2) == 0, point, {point.x + Draw(5), point.y});
        Picture1_MouseUp(game_, button, Draw(5) == 0, point);
        if (button == MouseButton::Left) Picture1_Click(game_);
        if (Draw(9) == 0) Picture5_MouseUp(game_);
    }

    void GoElsewhere() {
        constexpr const char* kNumbers[] = {"1", "2", "3", "4", "-7", "99999999999", "x", ""};
        game_.window.texts[Control::PuzNumNow] = kNumbers[Draw(8)];
        if (Draw(2) == 0) PuzNumNow_KeyPress(game_, kEnterKey);
        arrows_Click(game_, Draw(4), DrawButton());
        if (Draw(4) == 0) WithFile(mnuloadpuz_Click, {"good.tdw", "bad.tdw", "old.dat", "missing", "", "."});
    }

    void WithFile(void (*command)(Game&), const std::vector<std::string>& names) {
        const std::string& name = names[static_cast<std::size_t>(Draw(static_cast<int>(names.size())))];
        game_.filePicker.Answer(name.empty() ? "" : game_.folder.Path(name));
        ++answers_;
        command(game_);
    }

    void RunCommand() {
        constexpr const char* kSizes[] = {"7", "8x7", "6", "x", "7x26"};
        game_.window.texts[Control::GridSize] = kSizes[Draw(5)];
        game_.clipboard.text = Draw(2) == 0 ? "1.2.1\n.....\n" : "";
        switch (Draw(11)) {
            case 0:
                return WithFile(mnuappend_Click, {"good.tdw", "mine.tdw", "no/where.txt", ""});
            case 1:
                return WithFile(mnuexport_Click, {"grid.txt", "other.txt", "no/where.txt"});
            case 2:
                return WithFile(mnuimport_Click, {"grid.txt", "good.tdw", "missing", ""});
            case 3:
                return cmdzoom_Click(game_, Draw(4));
            case 4:
                return Draw(2) == 0 ? cmdviewcol_Press(game_) : cmdviewcol_Release(game_);
            case 5: {
                OptionsForm form = OpenOptions(game_);
                return Draw(2) == 0 ? reset_Click(game_, form) : command1_Click(game_, form);
            }
            case 6: {
                NumberGrid grid;
                EditCurrentPuzzle(game_, grid);
                UseNumberGrid(game_, grid);
                return;
            }
            default:
                break;
        }
        constexpr void (*kCommands[])(Game&) = {mnudelete_Click,       mnupastepuzzle_Click, mnupuzreset_Click,
                                                cmdundo_Click,         cmdverify_Click,      cmdnew1_Click,
                                                cmdcancel_Click,       mnuautosol_Click,     mnucreatemany_Click,
                                                Command3_Click,        Command5_Click,       Timer1_Timer,
                                                mnuoptsave_Click,      mnucopyclippuz_Click, mnucopyclipsol_Click,
                                                mnuprintcurrent_Click, control27_Click,      mnuprintpreview_Click};
        kCommands[Draw(static_cast<int>(std::size(kCommands)))](game_);
    }

    std::mt19937 random_;
    TestGame game_;
    int depth_ = 0;
    std::size_t answers_ = 0;
};

TEST(RandomCommands, LeaveTheGameWhole) {
    int stepsInJobs = 0;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        RandomPlayer player(seed);
        for (int step = 0; step < 400; ++step) {
            player.Step();
            player.ExpectWhole();
            if (::testing::Test::HasFatalFailure()) FAIL() << "seed " << seed << ", step " << step;
        }
        stepsInJobs += player.stepsInJobs;
    }
    EXPECT_GT(stepsInJobs, 60);
}

}  // namespace
}  // namespace tidewalk::test
