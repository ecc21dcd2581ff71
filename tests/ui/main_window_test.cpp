// SPDX-License-Identifier: MIT
// The main window: its commands, tool bar, lists and colours, and how it is left.
#include <QClipboard>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <set>

#include "drawing/contrast.h"
#include "game/job.h"
#include "options/colour_scheme.h"
#include "ui/colours.h"
#include "ui/tool_tip.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const std::vector<std::string> kFive(5, kSmallPuzzle);

/// What can be seen of a window, by subject.
std::map<std::string, std::string> StateOf(WindowGame& window) {
    return {{"puzzle", std::to_string(window.game.collection.PuzzleNumber)},
            {"cells", std::to_string(window.board.layout.CellSize)},
            {"moves", std::to_string(window.board.history.UndoList().size())},
            {"selected", std::to_string(SelectedIsland(window.board))},
            {"help", window.program.help().isVisible() ? "open" : "closed"},
            {"status", Get(window.form, "pb")}};
}

/// What a command does that is given at the third of five puzzles, with a move made and an island selected: whatever
/// comes up, which is left by its frame, or what is another afterwards. A job is cut short by the end of the program.
std::string EffectOf(const std::function<void(WindowGame&)>& give) {
    WindowGame window(kFive);
    std::string effect;
    window.lookout = std::make_unique<Lookout>([&] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            effect += NameOf(*dialog);
            dialog->reject();
        } else if (window.game.job.BusyFlag() && !window.game.job.Ending()) {
            effect += "works:" + Get(window.form, "pb");
            window.program.handlers().End();
        }
    });
    for (const char* const button : {"arrows2", "arrows2", "cmdzoom0"})
        window.Click(button);
    window.ClickIslands({{1, 3}, {1, 7}, {1, 3}});
    window.game.window.SetText(WindowText::Status, "");
    QApplication::clipboard()->clear();
    const auto before = StateOf(window);
    give(window);
    if (window.ended) return effect;
    const auto after = StateOf(window);
    // With another puzzle everything is another.
    if (after.at("puzzle") != before.at("puzzle")) return "puzzle " + after.at("puzzle");
    for (const auto& [subject, now] : after) {
        if (now != before.at(subject)) effect += subject + " " + now;
    }
    return effect.substr(0, effect.find(window.folder.Path("")));
}

TEST(Window, EveryCommandDoesWhatItIsNamedAfter) {
    const QString effects =
        "|mnuoptset=Form2|mnuoptsave=status Options saved|mnueditor=Form6|cmdzoom0=cells 567|cmdzoom1=cells 693|"
        "cmdzoom2=cells 700|mnuhelp=help open|mnuabout=About|mnuexit=Exit?|mnuloadpuz=file: Tidewalk|"
        "mnuappend=file: Add Puzzle to File|mnudelete=Delete current puzzle from file:\r\n|arrows0=puzzle 2|"
        "arrows2=puzzle 4|arrows0right=puzzle 1|arrows2right=puzzle 5|arrows1=puzzle 2|"
        "mnunewpuzx=works: Creating 7x7 puzzle ...|mnucreatemany=Form3|mnustopbatch=|mnupuzreset=Reset?|"
        "mnuexport=file: Export Puzzle|mnuimport=file: Select a grid file|mnupastepuzzle=status Error importing puzzle|"
        "Command3=system: |Command4=works:|Command5=works:Dups 0|can1=|mnuautosol=works:Auto solving ...|"
        "cmdverify=status Not done yet|cmdundo=moves 0|can2=selected 0|"
        "mnuprintcurrent=Print Current Puzzle and its Solution?|mnuprintpreview=PrintPreview|control27=Form5|"
        "mnucopyclippuz=status Puzzle copied to clipboard|mnucopyclipsol=status Solution copied to clipboard|"
        "can3=|cmdsave=file: Add Puzzle to File|cmdload=file: Tidewalk|cmdedit=Form6|cmdviewcol=|"
        "cmdnew1=works: Creating 7x7 puzzle ...|cmdcancel=|cmdexit=Exit?|";
    for (const Command& command : Commands()) {
        if (command.handler == nullptr) continue;
        const std::string name = command.ObjectName().toStdString();
        const bool isArrow = name == "arrows0" || name == "arrows2";
        const auto effect = [&](const std::string& of) {
            return effects.section(("|" + of + "=").c_str(), 1).section('|', 0, 0).toStdString();
        };
        const auto onMenu = [&](WindowGame& window) { window.Trigger(name.c_str()); };
        const auto left = [&](WindowGame& window) { window.Click(name.c_str()); };
        const auto right = [&](WindowGame& window) { window.Click(name.c_str(), Qt::RightButton); };
        EXPECT_TRUE(*command.menu == '\0' || EffectOf(onMenu) == effect(name)) << name << ": " << EffectOf(onMenu);
        if (command.bar == 0) continue;
        EXPECT_EQ(EffectOf(left), effect(name)) << name;
        EXPECT_EQ(EffectOf(right), effect(isArrow ? name + "right" : name)) << name;
    }
}

TEST(Window, NamesPlacesAndKeysAreTheirOwnAndControlsSayWhatTheyAre) {
    WindowGame window;
    std::set<QString> taken;
    const auto isNew = [&](const QString& what) { return taken.insert(what).second; };
    for (const Command& command : Commands()) {
        const QByteArray name = command.ObjectName().toLatin1();
        const std::string shown = name.toStdString();
        EXPECT_TRUE(isNew(name) && (command.bar == 0 || isNew(QString::number(command.bar)))) << shown;
        for (const QKeySequence& key : command.keys)
            EXPECT_TRUE(!key.isEmpty() && isNew(key.toString())) << shown;
        if (*command.menu != '\0') {
            const auto& action = Of<QAction>(window.form, name);
            const QString menu = QString(command.menu).section('/', -1);
            EXPECT_EQ(qobject_cast<QMenu*>(action.parent())->title().remove('&'), menu) << shown;
            EXPECT_EQ(action.isSeparator(), command.IsSeparator()) << shown;
            EXPECT_EQ(action.icon().isNull(), *command.icon == '\0') << shown;
        }
        if (command.bar == 0 || command.IsSeparator()) continue;
        EXPECT_EQ(*command.icon != '\0', !Of(window.form, name).property("icon").value<QIcon>().isNull()) << shown;
        EXPECT_EQ(Of(window.form, name).toolTip(), ToolTipText(command.toolTip)) << shown;
    }
    EXPECT_EQ(ToolTipText("Set <size>|A & B"), "<p style='white-space:pre'><b>Set &lt;size&gt;</b><br>A &amp; B</p>");
    EXPECT_EQ(PlainTipText("/a|b&c.tdw"), "<p style='white-space:pre'>/a|b&amp;c.tdw</p>");
    std::string titles;
    for (const QAction* const menu : window.form.menuBar()->actions()) {
        EXPECT_TRUE(isNew("Alt " + menu->text().section('&', 1).left(1).toLower()));
        titles += menu->text().remove('&').toStdString() + " ";
    }
    EXPECT_EQ(titles, "Tide Puzzle Solve Print ");
}

TEST(Window, ButtonsTakeTheMouseAndTheKeyboard) {
    WindowGame window(kFive);
    auto& next = Of(window.form, "arrows2");
    const int& number = window.game.collection.PuzzleNumber;
    window.Click("arrows2", Qt::MiddleButton);
    QTest::mousePress(&next, Qt::RightButton);
    QTest::mouseRelease(&next, Qt::RightButton, {}, QPoint(-5, -5));
    QTest::mouseRelease(&next, Qt::RightButton);
    EXPECT_EQ(number, 1) << "no press and release of one button over it";
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&next, key);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&next, &held);
    EXPECT_EQ(number, 4) << "a key that is held down is pressed once";
    QTest::keyClick(&next, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(number, 5);
}

TEST(Window, NumberAndSizeAreTyped) {
    WindowGame window(kFive);
    const std::vector<std::tuple<const char*, Qt::Key, int>> cases{
        {"4", Qt::Key_F1, 1}, {"4", Qt::Key_Return, 4}, {"2", Qt::Key_Enter, 2}, {"99", Qt::Key_Enter, 2}};
    for (const auto& [text, key, leadsTo] : cases) {
        Set(window.form, QString("PuzNumNow=") + text);
        QTest::keyClick(&Of(window.form, "PuzNumNow"), key);
        EXPECT_EQ(window.game.collection.PuzzleNumber, leadsTo) << text;
    }
    auto& size = Of(window.form, "GridSize");
    QTest::mouseClick(&size, Qt::LeftButton);
    EXPECT_EQ(Get(window.form, "GridSize"), "7x7");
    QTest::mouseClick(&size, Qt::RightButton);
    EXPECT_EQ(Get(window.form, "GridSize"), "");
    QTest::keyClicks(&size, "12x8");
    window.Click("cmdnew1");
    EXPECT_EQ(window.board.puzzle.Size(), (BoardSize{12, 8}));
    EXPECT_EQ(Get(window.form, "Puzfile"), "temp.txt");
}

TEST(Window, TextsAndProgressReachTheirControls) {
    WindowGame window;
    MainWindow& texts = window.game.window;
    const std::vector<const char*> controls{"pb", "PuzNumNow", "PuzNumber", "Puzfile", "GridSize"};
    for (std::size_t i = 0; i < controls.size(); ++i) {
        texts.SetText(static_cast<WindowText>(i), controls[i]);
        texts.SetToolTip(static_cast<WindowText>(i), std::string("of ") + controls[i]);
    }
    for (std::size_t i = 0; i < controls.size(); ++i) {
        EXPECT_EQ(Get(window.form, controls[i]), controls[i]);
        EXPECT_EQ(texts.Text(static_cast<WindowText>(i)), controls[i]);
        EXPECT_EQ(Of(window.form, controls[i]).toolTip(), PlainTipText(QString("of ") + controls[i]));
    }
    auto& progress = Of<QProgressBar>(window.form, "Progress");
    EXPECT_FALSE(progress.isVisible());
    texts.SetProgress(3, 12);
    EXPECT_TRUE(progress.isVisible());
    EXPECT_EQ(progress.value() * 100 / progress.maximum(), 25);
    texts.SetProgress(0, 0);
    EXPECT_FALSE(progress.isVisible());
}

TEST(Window, ListsFollowTheGameWhileTheyShow) {
    WindowGame window;
    const auto lines = [&](const char* list) {
        const QAbstractItemModel& model = *Of<QListView>(window.form, list).model();
        std::string all;
        for (int line = 0; line < model.rowCount(); ++line)
            all += model.index(line, 0).data().toString().toStdString() + ";";
        return all;
    };
    window.ClickIslands({{1, 3}, {1, 7}, {1, 3}, {3, 3}});
    EXPECT_EQ(lines("UndoList"), " 3, 17, 0; 3, 7, 0;");
    window.Click("cmdundo");
    EXPECT_EQ(lines("UndoList"), " 3, 7, 0;");
    window.Click("cmdverify");
    EXPECT_EQ(lines("List1"), "") << "nobody looks";
    window.Trigger("viewList1");
    EXPECT_EQ(lines("List1"), "01 03 004 links=01;");
    window.Trigger("viewList2");
    window.program.handlers().Run([&](Game& game) {
        game.List1.SetLines({"b", "a"});
        game.List2.SetLines({"c"});
        game.events.DoEvents();
        EXPECT_EQ(lines("List1") + lines("List2"), "a;b;c;") << "in the middle of a job";
    });
}

TEST(Window, ClosingWhileAJobRunsStopsItAndEndsAfterIt) {
    WindowGame window;
    window.program.handlers().Run([&](Game& game) {
        const Job job(game, "AutoSolve");
        window.form.close();
        EXPECT_TRUE(game.job.MustStop());
        EXPECT_FALSE(window.form.isVisible());
        EXPECT_FALSE(window.ended) << "the handler has not returned yet";
        // Nobody is asked any more.
        EXPECT_EQ(game.prompts.Show("Save?", "vbyesno"), kNo);
        EXPECT_EQ(game.prompts.SystemBox("Sure?", SystemButtons::YesNo), kNo);
        EXPECT_EQ(game.filePicker.Pick({}), "");
    });
    EXPECT_TRUE(window.ended);
}

TEST(Window, ClosingLeavesWhateverIsOpen) {
    const std::vector<std::pair<const char*, const char*>> cases{{"mnupuzreset", "Reset?"},
                                                                 {"mnuloadpuz", "file: Tidewalk"},
                                                                 {"Command3", "system: collection-newformat.txt done"},
                                                                 {"mnuoptset", "Form2"},
                                                                 {"mnucreatemany", "Form3"},
                                                                 {"control27", "Form5"},
                                                                 {"mnueditor", "Form6"},
                                                                 {"mnuabout", "About"},
                                                                 {"mnuprintpreview", "PrintPreview"}};
    for (const auto& [command, dialog] : cases) {
        WindowGame window;
        window.game.collection.CollectionPath = "collection.tdw";
        window.Trigger("mnuhelp");
        window.Expect(dialog, [&](QDialog& open) {
            window.form.close();
            EXPECT_FALSE(open.isVisible());
            EXPECT_FALSE(window.ended) << "the handler has not returned yet";
        });
        window.Trigger(command);
        EXPECT_TRUE(window.ended) << command;
        for (const QWidget* const widget : QApplication::topLevelWidgets())
            EXPECT_FALSE(widget->isVisible()) << command << " " << widget->objectName().toStdString();
    }
}

TEST(Window, ExitAsksSavesAndEnds) {
    WindowGame window(kFive);
    window.Click("arrows0");
    for (const char* const answer : {"No", "Yes"}) {
        EXPECT_FALSE(window.ended);
        window.Expect("Exit?", Answer(answer));
        window.Click("cmdexit");
    }
    EXPECT_TRUE(window.ended);
    EXPECT_EQ(window.folder.Read("tide.cfg").substr(0, 11), "xp.col\r\n 5 ");
}

TEST(Window, AFaultOfAHandlerIsToldAndEndsNothing) {
    WindowGame window;
    window.Expect("out of paper");
    window.program.handlers().Run([](Game&) { throw std::runtime_error("out of paper"); });
    EXPECT_FALSE(window.ended);
    window.form.close();
    EXPECT_TRUE(window.ended);
}

TEST(Window, TheBusyPointerGivesWayToBoxes) {
    WindowGame window;
    const auto pointer = [] {
        const QCursor* const shown = QApplication::overrideCursor();
        return shown == nullptr ? -1 : static_cast<int>(shown->shape());
    };
    for (const char* const box : {"told", "system: told"})
        window.Expect(box, [&](QDialog&) { EXPECT_EQ(pointer(), Qt::ArrowCursor); });
    {
        const BusyPointer outer(window.game);
        const BusyPointer inner(window.game);
        window.game.prompts.Show("told", "vbok");
        window.game.prompts.SystemBox("told", SystemButtons::Ok);
        EXPECT_EQ(pointer(), Qt::BusyCursor);
    }
    EXPECT_EQ(pointer(), -1);
}

TEST(Window, TheBarsCanBeReadWhereButtonsAreUnlikeTheWindow) {
    QApplication::setPalette(QPalette(QColor(45, 45, 48), QColor(32, 32, 35)));
    WindowGame window;
    EXPECT_EQ(window.game.window.Desktop(DesktopColour::WindowFace), Rgb(32, 32, 35));
    EXPECT_EQ(window.game.window.Desktop(DesktopColour::ButtonFace), Rgb(45, 45, 48));
    const auto icon = [](const auto& of) { return of.icon().pixmap(24).toImage(); };
    const QImage before = icon(Of<QAction>(window.form, "cmdundo"));
    window.game.options.ColourSchemeName = "default.col";
    window.game.options.SchemeColours[kAdjustedEntry] = Rgb(236, 233, 216);
    ApplyColourScheme(window.game);
    QCoreApplication::processEvents();
    EXPECT_NE(icon(Of<QAction>(window.form, "cmdundo")), before);
    EXPECT_EQ(icon(Of<BoxControl>(window.form, "cmdundo")), icon(Of<QAction>(window.form, "cmdundo")));
    for (const QWidget* const bar :
         std::initializer_list<QWidget*>{&Of(window.form, "ToolBar"), window.form.menuBar()}) {
        const Colour back = ToColour(bar->palette().color(QPalette::Window));
        for (const QPalette::ColorRole text : {QPalette::ButtonText, QPalette::WindowText})
            EXPECT_GE(Contrast(back, ToColour(bar->palette().color(text))), kTextContrast);
    }
}

TEST(Window, StartsWithTheBoardInFocusAndTabGoesAllTheWayRound) {
    WindowGame window;
    EXPECT_EQ(window.form.focusWidget(), &window.view);
    EXPECT_EQ(window.form.Container().size(), QSize(680, 680));
    const QStringList wanted{"Picture1", "UndoList", "arrows0", "arrows1", "arrows2", "PuzNumNow", "cmdload"};
    QStringList order{"Picture1"};
    for (QWidget* at = window.view.nextInFocusChain(); at != &window.view; at = at->nextInFocusChain()) {
        if (wanted.contains(at->objectName())) order += at->objectName();
    }
    EXPECT_EQ(order.join(' ').toStdString(), wanted.join(' ').toStdString());
}

}  // namespace
}  // namespace tidewalk::test
