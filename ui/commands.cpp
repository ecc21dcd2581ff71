// SPDX-License-Identifier: MIT
#include "ui/commands.h"

#include <QFile>
#include <algorithm>

#include "board/board_commands.h"
#include "board/copy_and_print.h"
#include "board/magnify.h"
#include "booklet/print_booklet.h"
#include "game/recent_files.h"
#include "generator/batch.h"
#include "generator/new_puzzle.h"
#include "generator/shuffle.h"
#include "model/collection_commands.h"
#include "model/configuration.h"
#include "model/import_grid.h"
#include "options/options_form.h"
#include "program/escape.h"
#include "program/exit.h"
#include "solver/auto_solve.h"
#include "solver/show_solutions.h"
#include "techniques/explain_board.h"
#include "techniques/give_hint.h"
#include "ui/about.h"
#include "ui/program.h"

namespace tidewalk {

namespace {

/// The handler that runs a routine of the game.
template <void (*kRoutine)(Game&)>
void Do(Program& program, const Click&) {
    kRoutine(program.game());
}

/// The same for a routine that wants to know which control of an array it was.
template <void (*kRoutine)(Game&, int)>
void DoIndexed(Program& program, const Click& click) {
    kRoutine(program.game(), click.index);
}

template <void (*kRoutine)(Game&, int, MouseButton)>
void DoWithButton(Program& program, const Click& click) {
    kRoutine(program.game(), click.index, click.button);
}

void OpenOrder(Program& program, const Click&) {
    program.form1().OpenOrder();
}

/// The right mouse button asks first.
void MakeOrOrder(Program& program, const Click& click) {
    if (click.button == MouseButton::Right) {
        OpenOrder(program, click);
    } else {
        cmdnew1_Click(program.game());
    }
}

void ToggleFullScreen(Program& program, const Click&) {
    program.form1().ToggleFullScreen();
}

void OpenOptionsWindow(Program& program, const Click&) {
    program.form2().Open();
}

void OpenEditor(Program& program, const Click&) {
    program.form6().Open();
}

void ShowHelp(Program& program, const Click&) {
    program.help().Open(QFile::decodeName(program.game().AppFolder.c_str()));
}

void ShowAbout(Program& program, const Click&) {
    AboutBox box(&program.form1());
    QObject::connect(&program.handlers(), &Handlers::Ending, &box, &QDialog::reject);
    box.exec();
}

bool CanZoomOut(const Game& game) {
    return ZoomWouldShow(game, 0);
}

bool CanZoomIn(const Game& game) {
    return ZoomWouldShow(game, 1);
}

bool FillsWindow(const Game& game) {
    return game.board.fits;
}

bool IsActualSize(const Game& game) {
    return !game.board.fits && game.board.magnification == 1;
}

bool ShowsLines(const Game& game) {
    return game.options.ShowLines != 0;
}

QList<QKeySequence> Keys(QKeySequence::StandardKey key) {
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    // On most keyboards plus is reached with Shift, which nobody wants to hold for zooming.
    if (key == QKeySequence::ZoomIn) keys.append(QKeySequence("Ctrl+="));
    return keys;
}

QList<QKeySequence> Keys(const char* key) {
    return {QKeySequence(key)};
}

std::vector<Command> TideCommands() {
    constexpr const char* kMenu = "Tide";
    constexpr const char* kView = "Tide/View";
    return {
        {.menu = kMenu,
         .name = "mnuoptset",
         .text = "&Options ...",
         .icon = "options",
         .keys = Keys("Ctrl+,"),
         .handler = OpenOptionsWindow},
        {.menu = kMenu, .name = "mnuoptsave", .text = "&Save Options", .handler = Do<mnuoptsave_Click>},
        {.menu = kMenu,
         .name = "mnueditor",
         .text = "&Edit Number Values ...",
         .icon = "edit",
         .keys = Keys("Ctrl+E"),
         .handler = OpenEditor},
        {.menu = kMenu, .name = "dash1", .text = "-"},
        {.menu = kView,
         .name = "cmdzoom",
         .index = 0,
         .text = "Zoom &Out",
         .bar = 18,
         .word = "Out",
         .icon = "zoom-out",
         .toolTip = "Zoom out",
         .keys = Keys(QKeySequence::ZoomOut),
         .handler = DoIndexed<cmdzoom_Click>,
         .available = CanZoomOut},
        {.menu = kView,
         .name = "cmdzoom",
         .index = 1,
         .text = "Zoom &In",
         .bar = 19,
         .word = "In",
         .icon = "zoom-in",
         .toolTip = "Zoom in",
         .keys = Keys(QKeySequence::ZoomIn),
         .handler = DoIndexed<cmdzoom_Click>,
         .available = CanZoomIn},
        {.menu = kView,
         .name = "cmdzoom",
         .index = 2,
         .text = "&Reset Zoom",
         .bar = 20,
         .word = "Reset",
         .icon = "zoom-reset",
         .toolTip = "Reset zoom",
         .keys = Keys("Ctrl+0"),
         .handler = DoIndexed<cmdzoom_Click>},
        {.menu = kView,
         .name = "mnufit",
         .text = "&Fit to Window",
         .keys = Keys("Ctrl+2"),
         .handler = Do<mnufit_Click>,
         .checked = FillsWindow},
        {.menu = kView,
         .name = "mnuactual",
         .text = "10&0 %",
         .keys = Keys("Ctrl+1"),
         .handler = Do<mnuactual_Click>,
         .checked = IsActualSize},
        {.menu = kView,
         .name = "mnulines",
         .text = "Thin &Lines",
         .keys = Keys("Ctrl+L"),
         .handler = Do<mnulines_Click>,
         .checked = ShowsLines},
        {.menu = kView,
         .name = "mnufullscreen",
         .text = "Full &Screen",
         .keys = Keys("F11"),
         .handler = ToggleFullScreen},
        {.menu = kMenu, .name = "dash2", .text = "-"},
        {.menu = kMenu,
         .name = "mnuhelp",
         .text = "&Help",
         .icon = "help",
         .keys = Keys(QKeySequence::HelpContents),
         .handler = ShowHelp},
        {.menu = kMenu, .name = "mnuabout", .text = "&About Tidewalk", .icon = "about", .handler = ShowAbout},
        {.menu = kMenu, .name = "dash3", .text = "-"},
        {.menu = kMenu,
         .name = "mnuexit",
         .text = "E&xit",
         .icon = "exit",
         .keys = Keys("Ctrl+Q"),
         .handler = Do<cmdexit_Click>},
    };
}

std::vector<Command> PuzzleCommands() {
    constexpr const char* kMenu = "Puzzle";
    constexpr const char* kMaintenance = "Puzzle/Maintenance";
    return {
        {.menu = kMenu,
         .name = "mnuloadpuz",
         .text = "&Load Puzzle File",
         .icon = "open",
         .keys = Keys(QKeySequence::Open),
         .handler = Do<mnuloadpuz_Click>},
        {.menu = "Puzzle/Recent Files",
         .name = "mnuclearrecent",
         .text = "&Clear List",
         .handler = Do<mnuclearrecent_Click>,
         .available = HasRecentFiles},
        {.menu = kMenu,
         .name = "mnuappend",
         .text = "&Add Puzzle to File",
         .icon = "save",
         .keys = Keys(QKeySequence::Save),
         .handler = Do<mnuappend_Click>},
        {.menu = kMenu,
         .name = "mnudelete",
         .text = "&Delete Puzzle",
         .icon = "delete",
         .handler = Do<mnudelete_Click>,
         .available = CanDelete},
        {.menu = kMenu, .name = "dash4", .text = "-"},
        {.menu = kMenu,
         .name = "arrows",
         .index = 0,
         .text = "&Previous Puzzle",
         .bar = 1,
         .word = "Previous",
         .icon = "previous",
         .toolTip = "Previous puzzle, right-click for first puzzle",
         .keys = Keys(QKeySequence::Back),
         .handler = DoWithButton<arrows_Click>},
        {.menu = kMenu,
         .name = "arrows",
         .index = 2,
         .text = "&Next Puzzle",
         .bar = 3,
         .word = "Next",
         .icon = "next",
         .toolTip = "Next puzzle, right-click for last puzzle",
         .keys = Keys(QKeySequence::Forward),
         .handler = DoWithButton<arrows_Click>},
        {.menu = kMenu,
         .name = "arrows",
         .index = 0,
         .text = "&First Puzzle",
         .icon = "first",
         .toolTip = "First puzzle",
         .keys = Keys("Ctrl+Home"),
         .button = MouseButton::Right,
         .handler = DoWithButton<arrows_Click>},
        {.menu = kMenu,
         .name = "arrows",
         .index = 2,
         .text = "Last P&uzzle",
         .icon = "last",
         .toolTip = "Last puzzle",
         .keys = Keys("Ctrl+End"),
         .button = MouseButton::Right,
         .handler = DoWithButton<arrows_Click>},
        {.menu = kMenu,
         .name = "arrows",
         .index = 1,
         .text = "Rand&om Puzzle",
         .bar = 2,
         .word = "Random",
         .icon = "random",
         .toolTip = "Random puzzle",
         .keys = Keys("Ctrl+R"),
         .handler = DoWithButton<arrows_Click>},
        {.menu = kMenu,
         .name = "mnuchoose",
         .text = "C&hoose Puzzle ...",
         .keys = Keys("Ctrl+G"),
         .handler = Do<mnuchoose_Click>},
        {.menu = kMenu, .name = "dash5", .text = "-"},
        {.menu = kMenu,
         .name = "mnunewpuzx",
         .text = "Ne&w Puzzle",
         .icon = "new",
         .keys = Keys(QKeySequence::New),
         .handler = Do<mnunewpuzx_Click>},
        {.menu = kMenu,
         .name = "mnucreatemany",
         .text = "Create New Pu&zzles ...",
         .icon = "batch",
         .handler = Do<mnucreatemany_Click>},
        {.menu = kMenu,
         .name = "mnustopbatch",
         .text = "&Stop Creating",
         .toolTip = "Stop creating puzzles|Cancel cuts only one puzzle short",
         .handler = Do<mnustopbatch_Click>,
         .available = BatchRuns},
        {.menu = kMenu,
         .name = "mnupuzreset",
         .text = "Rese&t Puzzle",
         .icon = "reset",
         .handler = Do<mnupuzreset_Click>},
        {.menu = kMenu, .name = "dash6", .text = "-"},
        {.menu = kMenu,
         .name = "mnuexport",
         .text = "E&xport Puzzle",
         .icon = "export",
         .handler = Do<mnuexport_Click>},
        {.menu = kMenu,
         .name = "mnuimport",
         .text = "&Import",
         .icon = "import",
         .keys = Keys("Ctrl+I"),
         .handler = Do<mnuimport_Click>},
        {.menu = kMenu,
         .name = "mnupastepuzzle",
         .text = "Past&e",
         .icon = "paste",
         .keys = Keys(QKeySequence::Paste),
         .handler = Do<mnupastepuzzle_Click>},
        {.menu = kMenu, .name = "dash7", .text = "-"},
        {.menu = kMaintenance, .name = "Command3", .text = "&Convert Old Layout", .handler = Do<Command3_Click>},
        {.menu = kMaintenance, .name = "Command4", .text = "Create &Random Sizes", .handler = Do<Command4_Click>},
        {.menu = kMaintenance,
         .name = "Command5",
         .text = "&Shuffle without Duplicates",
         .handler = Do<Command5_Click>},
        {.menu = kMenu, .name = "dash8", .text = "-"},
        {.menu = kMenu, .name = "can1", .text = "&Cancel", .icon = "cancel", .handler = Do<cmdcancel_Click>},
    };
}

std::vector<Command> SolveCommands() {
    constexpr const char* kMenu = "Solve";
    return {
        {.menu = kMenu,
         .name = "mnuautosol",
         .text = "&AutoSolve",
         .icon = "solve",
         .keys = Keys("F9"),
         .handler = Do<mnuautosol_Click>},
        {.menu = kMenu,
         .name = "mnusolutions",
         .text = "&Solutions ...",
         .icon = "solutions",
         .keys = Keys("Shift+F9"),
         .handler = Do<mnusolutions_Click>},
        {.menu = kMenu,
         .name = "cmdverify",
         .text = "&Check",
         .bar = 13,
         .word = "Check",
         .icon = "check",
         .toolTip = "Check the bridges",
         .keys = Keys("F5"),
         .handler = Do<cmdverify_Click>},
        {.menu = kMenu,
         .name = "cmdundo",
         .text = "&Undo",
         .bar = 14,
         .word = "Undo",
         .icon = "undo",
         .toolTip = "Undo the last move",
         .keys = Keys(QKeySequence::Undo),
         .handler = Do<cmdundo_Click>},
        {.menu = kMenu,
         .name = "cmdredo",
         .text = "&Redo",
         .bar = 15,
         .word = "Redo",
         .icon = "redo",
         .toolTip = "Redo the move that was taken back last",
         .keys = {QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")},
         .handler = Do<cmdredo_Click>},
        {.menu = kMenu,
         .name = "mnucheckpoint",
         .text = "Set a Chec&kpoint",
         .icon = "checkpoint",
         .keys = Keys("Ctrl+K"),
         .handler = Do<mnucheckpoint_Click>},
        {.menu = kMenu,
         .name = "mnubacktocheckpoint",
         .text = "&Back to Checkpoint",
         .icon = "back-to-checkpoint",
         .keys = Keys("Ctrl+B"),
         .handler = Do<mnubacktocheckpoint_Click>},
        {.menu = kMenu,
         .name = "mnuhint",
         .text = "&Hint",
         .bar = 16,
         .word = "Hint",
         .icon = "hint",
         .toolTip = "Hint|Press again for the reason, and once more for the bridges",
         .keys = Keys("F3"),
         .handler = Do<mnuhint_Click>},
        {.menu = kMenu,
         .name = "mnuexplain",
         .text = "&Explain",
         .icon = "explain",
         .keys = Keys("Shift+F3"),
         .handler = Do<mnuexplain_Click>},
        {.menu = kMenu, .name = "dash9", .text = "-"},
        {.menu = kMenu,
         .name = "can2",
         .text = "Cance&l",
         .icon = "cancel",
         .keys = Keys("Esc"),
         .handler = Do<can2_Click>},
    };
}

std::vector<Command> PrintCommands() {
    constexpr const char* kMenu = "Print";
    return {
        {.menu = kMenu,
         .name = "mnuprintcurrent",
         .text = "&Print Current Puzzle",
         .icon = "print",
         .keys = Keys(QKeySequence::Print),
         .handler = Do<mnuprintcurrent_Click>},
        {.menu = kMenu,
         .name = "mnuprintpreview",
         .text = "Print Pre&view ...",
         .icon = "view",
         .handler = Do<mnuprintpreview_Click>},
        {.menu = kMenu,
         .name = "control27",
         .text = "Print Puzzles &From File ...",
         .icon = "print",
         .handler = Do<control27_Click>},
        {.menu = kMenu,
         .name = "mnuprintbooklet",
         .text = "Print &Booklet ...",
         .icon = "booklet",
         .handler = Do<mnuprintbooklet_Click>},
        {.menu = kMenu, .name = "dash10", .text = "-"},
        {.menu = kMenu,
         .name = "mnucopyclippuz",
         .text = "&Copy Puzzle to Clipboard",
         .icon = "copy",
         .keys = Keys(QKeySequence::Copy),
         .handler = Do<mnucopyclippuz_Click>},
        {.menu = kMenu,
         .name = "mnucopyclipsol",
         .text = "Copy &Solution to Clipboard",
         .icon = "copy",
         .keys = Keys("Ctrl+Shift+C"),
         .handler = Do<mnucopyclipsol_Click>},
        {.menu = kMenu,
         .name = "mnucopytext",
         .text = "Copy Puzzle as &Text",
         .icon = "copy",
         .handler = Do<mnucopytext_Click>},
        {.menu = kMenu,
         .name = "mnusavepuzpicture",
         .text = "Save Picture &As ...",
         .icon = "save",
         .handler = Do<mnusavepuzpicture_Click>},
        {.menu = kMenu,
         .name = "mnusavesolpicture",
         .text = "Save Picture of S&olution As ...",
         .icon = "save",
         .handler = Do<mnusavesolpicture_Click>},
        {.menu = kMenu, .name = "dash11", .text = "-"},
        {.menu = kMenu, .name = "can3", .text = "Cance&l", .icon = "cancel", .handler = Do<cmdcancel_Click>},
    };
}

/// What stands in the tool bar alone, its two text boxes and the label between them among it.
std::vector<Command> ToolBarOnlyCommands() {
    return {
        {.name = "PuzNumNow", .bar = 4, .toolTip = "Puzzle number|Press Enter to go there"},
        {.name = "cmdchoose",
         .text = "Choose Puzzle",
         .bar = 5,
         .icon = "down",
         .toolTip = "Choose a puzzle|From small pictures of all of them",
         .handler = Do<mnuchoose_Click>,
         .narrow = true},
        {.name = "PuzNumber", .bar = 6},
        {.name = "dash12", .text = "-", .bar = 7},
        {.name = "cmdsave",
         .text = "Add Puzzle to File",
         .bar = 8,
         .word = "Add",
         .icon = "save",
         .toolTip = "Add puzzle to file",
         .handler = Do<mnuappend_Click>},
        {.name = "cmdload",
         .text = "Load Puzzle File",
         .bar = 9,
         .word = "Load",
         .icon = "open",
         .toolTip = "Load a puzzle file",
         .handler = Do<cmdload_Click>},
        {.name = "cmdedit",
         .text = "Edit Number Values",
         .bar = 10,
         .word = "Edit",
         .icon = "edit",
         .toolTip = "Edit number values|Type in a puzzle of your own",
         .handler = OpenEditor},
        {.name = "dash13", .text = "-", .bar = 11},
        {.name = "cmdviewcol",
         .text = "View Solution",
         .bar = 12,
         .word = "Solution",
         .icon = "view",
         .toolTip = "View solution|Hold the button down",
         .handler = Do<cmdviewcol_Release>,
         .pressed = Do<cmdviewcol_Press>},
        {.name = "dash14", .text = "-", .bar = 17},
        {.name = "dash15", .text = "-", .bar = 21},
        {.name = "cmdnew1",
         .text = "New Puzzle",
         .bar = 22,
         .word = "New",
         .icon = "new",
         .toolTip = "New puzzle|Its size is set in the box beside",
         .handler = MakeOrOrder,
         .holds = true},
        {.name = "cmdneworder",
         .text = "New Puzzle to Order",
         .bar = 23,
         .icon = "down",
         .toolTip = "New puzzle to order|Its grade, its size, and whether it has one solution",
         .handler = OpenOrder,
         .narrow = true},
        {.name = "GridSize", .bar = 24, .toolTip = "Set grid size (7x7 to 25x25)|Rightclick to set random size"},
        {.name = "cmdcancel",
         .text = "Cancel",
         .bar = 25,
         .word = "Cancel",
         .icon = "cancel",
         .toolTip = "Cancel|Stop what is running",
         .handler = Do<cmdcancel_Click>},
        {.name = "dash16", .text = "-", .bar = 26},
        {.name = "cmdexit",
         .text = "Exit",
         .bar = 27,
         .word = "Exit",
         .icon = "exit",
         .toolTip = "Exit",
         .handler = Do<cmdexit_Click>},
    };
}

}  // namespace

QString Command::ObjectName() const {
    if (index == kNoIndex) return name;
    return name + QString::number(index) + (button == MouseButton::Right ? "right" : "");
}

const std::vector<Command>& Commands() {
    static const std::vector<Command> all = [] {
        std::vector<Command> joined;
        for (const auto& part :
             {TideCommands(), PuzzleCommands(), SolveCommands(), PrintCommands(), ToolBarOnlyCommands()}) {
            joined.insert(joined.end(), part.begin(), part.end());
        }
        return joined;
    }();
    return all;
}

std::vector<const Command*> ToolBarCommands() {
    std::vector<const Command*> found;
    for (const Command& command : Commands()) {
        if (command.bar > 0) found.push_back(&command);
    }
    std::sort(found.begin(), found.end(), [](const Command* a, const Command* b) { return a->bar < b->bar; });
    return found;
}

const std::vector<QString>& MenuTitles() {
    static const std::vector<QString> titles = {"Tide", "Puzzle", "Solve", "Print"};
    return titles;
}

}  // namespace tidewalk
