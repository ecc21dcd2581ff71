// SPDX-License-Identifier: MIT
// Jobs: what every command does while one runs, what each does from its first step to its last, and what happens when
// one is cancelled, another puzzle is loaded or the window is closed in the middle.
#include <filesystem>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/board_mouse.h"
#include "board/copy_and_print.h"
#include "booklet/print_booklet.h"
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

/// Commands that are handlers without arguments, and others.
template <auto... kHandlers>
std::vector<Command> Commands(std::vector<Command> others) {
    (others.push_back(Do<kHandlers>), ...);
    return others;
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

constexpr MouseButton kLeft = MouseButton::Left;
constexpr MouseButton kRight = MouseButton::Right;

const std::vector<Command> kRefuse =
    Commands<mnuloadpuz_Click, cmdload_Click, mnuchoose_Click, mnuappend_Click, mnuexport_Click, mnuimport_Click,
             mnupastepuzzle_Click, Command3_Click, Command4_Click, Command5_Click, mnucreatemany_Click, cmdnew1_Click,
             mnunewpuzx_Click, mnuautosol_Click, mnusolutions_Click, mnupuzreset_Click, mnuprintcurrent_Click,
             mnuprintpreview_Click, control27_Click, mnuprintbooklet_Click, mnusavepuzpicture_Click,
             mnusavesolpicture_Click, mnucopytext_Click>(
        {Do<arrows_Click, 0, kLeft>, Do<arrows_Click, 1, kLeft>,
         [](TestGame& game) { game.Run(OpenChosen, game.PathOfCollection()); },
         [](TestGame& game) { game.Run(OpenRecent, game.PathOfCollection()); },
         [](TestGame& game) { EXPECT_FALSE(game.Run(UseNumberGrid, NumberGrid())) << "the editor stays open"; }});
const std::vector<Command> kDoNothing =
    Commands<cmdundo_Click, mnulines_Click, mnucheckpoint_Click, mnubacktocheckpoint_Click, cmdverify_Click,
             cmdviewcol_Press, cmdviewcol_Release, Picture1_Click, Picture1_GotFocus, LetGo>(
        {Do<cmdzoom_Click, 0>, Do<LayTowards, BoardKey::Right>,
         [](TestGame& game) { game.Run(cmdundo_Click), game.Run(cmdredo_Click); }, Release<kLeft, true>,
         Release<kRight, false>, Drag, Do<Picture1_KeyDown, BoardKey::Last>, Do<Picture1_KeyDown, BoardKey::Lay>});
const std::vector<Command> kWork =
    Commands<mnudelete_Click, mnuoptsave_Click, mnucopyclippuz_Click, mnucopyclipsol_Click, cmdcancel_Click, can2_Click,
             cmdexit_Click, Form_QueryUnload>({[](TestGame& game) { game.TypeNumber("2"); },
                                               [](TestGame& game) { game.Run(command1_Click, OpenOptions(game)); }});

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

/// How a job ends.
struct End {
    std::string steps;  ///< what is seen from then on; "" when that depends on the moment, "... x" when x ends it
    std::string box;    ///< the message at the end, "" for none; "~" stands for the folder
    std::string style;
    std::size_t lines = 0;  ///< of the file that the job makes; 0 for no file
};

struct LongJob {
    const char* name;
    void (*run)(Game&);
    const char* output;
    End done;
    End cancelled;
    End replaced;  ///< another puzzle was loaded in the middle
};

const std::string kCancel = "status:  Canceling..., ";
const std::string kLoad = "number: 3, status: , ";
const std::string kEnd = "progress: 0 of 0, ";
const End kBatch{"", "Created 3 puzzles in file:\r\nout.txt", kInformation, 3};
const End kShuffled{"", "~collection-noduprandom.txt randomized", "system ok", 599};
const End kBooklet{
    "... status: Printing page 3 of 3, progress: 2 of 3, printed, document gone, " + kEnd + "not busy, status: , box",
    "Printed 3 puzzles on 3 pages on:\r\nOffice", kInformation};
constexpr const char* kFailed = "Could not create new puzzle";

const LongJob kJobs[] = {
    {"solve",
     mnuautosol_Click,
     "collection-solution.tdw",
     {"busy, status: Auto solving ..., " + kEnd + "status: Solved, not busy", "", "", 1},
     {kCancel + kEnd + "number: 2, status: AutoSolve was stopped before it was done, not busy, box, not busy",
      "Unable to solve\r\nPlease check puzzle layout", kCritical},
     {kLoad + kEnd + "status: , not busy", "", ""}},
    {"new",
     cmdnew1_Click,
     "temp.txt",
     {"busy, status:  Creating 14x9 puzzle ..., board off, number: 1, " + kEnd +
          "not busy, board on, status: Puzzle created",
      "", "", 1},
     {kCancel + "number: 2, " + kEnd + "not busy, status: " + kFailed + ", box, board on", kFailed, kInformation},
     {kLoad + kEnd + "not busy, status: , board on", "", ""}},
    {"batch",
     mnucreatemany_Click,
     "out.txt",
     {"batch?, box, busy, frozen, board off, status: Creating puzzle 1 of 3, progress: 0 of 3, "
      "status: Creating puzzle 2 of 3, progress: 1 of 3, status: Creating puzzle 3 of 3, progress: 2 of 3, "
      "thawed, board on, " +
          kEnd + "number: 2, not busy, box, status: ",
      kBatch.box, kInformation, 3},
     kBatch,
     kBatch},
    {"shuffle",
     Command5_Click,
     "collection-noduprandom.txt",
     {"busy, status: Dups 0, status: Dups 1, status: random 256, progress: 256 of 599, status: random 512, "
      "progress: 512 of 599, " +
          kEnd + "not busy, status: , box",
      kShuffled.box, kShuffled.style, 599},
     {kCancel + kEnd + "not busy, status: ", "", ""},
     kShuffled},
    {"print",
     control27_Click,
     "none",
     {"print?, busy, progress: 0 of 3, progress: 1 of 3, progress: 2 of 3, printed, " + kEnd +
          "not busy, document gone, number: 2, box",
      "Printed 3 puzzles from file:\r\n~collection.tdw", kInformation},
     {kCancel + kEnd + "not busy, document gone, number: 2, status: Printing cancelled", "", ""},
     {kLoad + kEnd + "not busy, document gone, status: Printing cancelled", "", ""}},
    {"booklet",
     mnuprintbooklet_Click,
     "none",
     kBooklet,
     {"... not busy, status: Printing cancelled", "", ""},
     {"", kBooklet.box, kInformation}},
};

/// For the name of the test, which would hold addresses otherwise.
void PrintTo(const LongJob& longJob, std::ostream* out) {
    *out << longJob.name;
}

/// Six hundred puzzles, two of them the same line, the third another than the rest.
Lines ManyLines() {
    Lines lines;
    for (int i = 0; i < 600; ++i)
        lines.push_back(kSmallPuzzle + std::to_string(i));
    lines[2] = Record({"1-1"});
    lines[299] = lines[0];
    return lines;
}

/// A game on puzzle 2 that runs a job in which every look at the clock lets events happen.
struct LongJobGame : TestGame {
    explicit LongJobGame(const LongJob& which) : TestGame(ManyLines()), longJob(which) {
        Load(2);
        world.texts[WindowText::BoardSize] = "14x9";
        world.step = 100;
    }

    void ExpectBox(const End& end) {
        std::string box = end.box;
        if (const std::size_t at = box.find('~'); at != std::string::npos) box.replace(at, 1, folder.Path(""));
        if (!box.empty()) world.Expect(box, end.style);
    }

    /// Runs the job to its end, or so that this happens when it lets events through for the `at`th time.
    void RunJob(int at = 0, std::function<void()> meanwhile = nullptr) {
        world.happen = [&] {
            moments += job.BusyFlag() ? 1 : 0;
            if (moments == at && meanwhile) std::exchange(meanwhile, nullptr)();
        };
        if (longJob.run == mnucreatemany_Click) {
            world.batch = [](BatchRequest& request) {
                return request = {"3", "12", "9", "out.txt", {false, {}, 0}}, true;
            };
            world.Expect("Create 3 12x9 puzzles\r\nOutput file: out.txt\r\n\r\nProceed?", "vbquestion+vbyesno", kYes);
        }
        if (longJob.run == control27_Click) {
            world.print = [](PrintRequest& request) { return request.first = "2", request.last = " 4", true; };
        }
        if (longJob.run == mnuprintbooklet_Click) {
            world.booklet = [this](BookletRequest& request) {
                Booklet_Activate(*this, request);
                request.design.perPage = 1;
                request.design.cover = request.design.rules = false;
                request.design.solutions = BookletDesign::Solutions::None;
                return request.first = "2", request.last = "4", true;
            };
        }
        if (at == 0) ExpectBox(longJob.done);
        Run(longJob.run);
        EXPECT_FALSE(meanwhile) << "the job has ended before";
    }

    void ExpectEnded(const End& end) {
        std::string seen = end.steps.empty() ? world.Status() : world.Seen();
        const std::string last = end.steps.substr(0, 4) == "... " ? end.steps.substr(4) : end.steps;
        if (last != end.steps && seen.size() > last.size()) seen.erase(0, seen.size() - last.size());
        EXPECT_EQ(seen, last);
        EXPECT_EQ(std::filesystem::exists(longJob.output), end.lines > 0);
        EXPECT_EQ(LinesOf(folder.Read(longJob.output)).size(), end.lines);
    }

    const LongJob& longJob;
    int moments = 0;  ///< how often events were let through in the job
};

TEST(PollEvents, LetsThemThroughOnceIn20Milliseconds) {
    TestGame game;
    int times = 0;
    game.world.happen = [&] { ++times; };
    game.world.step = 10;
    for (int i = 0; i < 10; ++i)
        PollEvents(game);
    EXPECT_EQ(times, 5) << "every second look of 10 ms, and one look is made afterwards";
}

class LongJobs : public testing::TestWithParam<LongJob> {
 protected:
    LongJobs() {
        LongJobGame game(GetParam());
        game.RunJob();
        game.ExpectEnded(GetParam().done);
        moments = game.moments;
        EXPECT_GE(moments, 3);
    }

    /// Runs the job again and again, and lets this happen in some of its moments, the first and the last among them.
    template <class Meanwhile, class After>
    void Interrupt(const Meanwhile& meanwhile, const After& after) {
        for (int at = 1; at <= moments; at += at < 4 || at > moments - 4 ? 1 : 1 + moments / 8) {
            SCOPED_TRACE(at);
            LongJobGame game(GetParam());
            game.RunJob(at, [&] {
                EXPECT_EQ(game.world.pointer, Pointer::Busy);
                game.world.Seen();
                meanwhile(game);
                EXPECT_TRUE(game.job.BusyFlag());
            });
            after(game);
        }
    }

    int moments = 0;
};

TEST_P(LongJobs, WhenCancelledBringThePuzzleBack) {
    const auto cancel = [&](LongJobGame& game) {
        game.ExpectBox(GetParam().cancelled);
        game.Run(cmdcancel_Click);
        game.Run(cmdcancel_Click);
    };
    Interrupt(cancel, [&](LongJobGame& game) {
        game.ExpectEnded(GetParam().cancelled);
        EXPECT_EQ(game.collection.PuzzleNumber, 2);
        EXPECT_EQ(game.board.puzzle, *ParsePuzzleRecord(kSmallPuzzle));
    });
}

TEST_P(LongJobs, LeaveAPuzzleThatIsLoadedMeanwhileAlone) {
    const auto load = [&](LongJobGame& game) {
        game.ExpectBox(GetParam().replaced);
        game.TypeNumber("3");
    };
    Interrupt(load, [&](LongJobGame& game) {
        game.ExpectEnded(GetParam().replaced);
        EXPECT_EQ(game.collection.PuzzleNumber, 3);
        EXPECT_EQ(game.board.puzzle, PuzzleFrom({"1-1"}));
    });
}

TEST_P(LongJobs, AskAndSaveNothingMoreWhenTheWindowIsClosed) {
    const auto close = [](LongJobGame& game) { game.Run(Form_QueryUnload); };
    Interrupt(close, [](LongJobGame& game) {
        const std::string seen = game.world.Seen();
        for (const char* never : {"box", "number", "printed"})
            EXPECT_EQ(seen.find(never), std::string::npos) << seen;
        EXPECT_FALSE(game.job.BusyFlag());
        EXPECT_EQ(game.collection.PuzzleNumber, 2);
        EXPECT_FALSE(std::filesystem::exists("tide.cfg"));
    });
}

INSTANTIATE_TEST_SUITE_P(Each, LongJobs, testing::ValuesIn(kJobs),
                         [](const auto& which) { return std::string(which.param.name); });

}  // namespace
}  // namespace tidewalk::test
