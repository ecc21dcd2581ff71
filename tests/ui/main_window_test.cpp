// SPDX-License-Identifier: MIT
// The main window: its commands, tool bar, lists and colours, and how it is left.
#include <QClipboard>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QSvgRenderer>
#include <set>

#include "drawing/contrast.h"
#include "game/job.h"
#include "game/recent_files.h"
#include "model/numbers.h"
#include "options/colour_scheme.h"
#include "ui/colours.h"
#include "ui/icons.h"
#include "ui/tool_tip.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const std::vector<std::string> kFive(5, kSmallPuzzle);

/// What can be seen of a window, by subject.
std::map<std::string, std::string> StateOf(WindowGame& window) {
    return {{"puzzle", std::to_string(window.game.collection.PuzzleNumber)},
            {"cells", std::to_string(window.board.layout.CellSize)},
            {"view", window.board.fits ? "fit" : NumText(static_cast<int>(window.board.magnification))},
            {"frame", window.form.isFullScreen() ? "gone" : "there"},
            {"moves", std::to_string(window.board.history.UndoList().size())},
            {"selected", std::to_string(SelectedIsland(window.board))},
            {"help", window.program.help().isVisible() ? "open" : "closed"},
            {"popup", QApplication::activePopupWidget() != nullptr ? "open" : "closed"},
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
    // There is a checkpoint before the move, and one more move that was taken back.
    window.Trigger("mnucheckpoint");
    window.ClickIslands({{1, 3}, {1, 7}, {1, 3}, {1, 7}});
    window.Trigger("cmdundo");
    window.ClickIslands({{1, 3}});
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
        "cmdzoom2=cells 700|mnufit=cells 700|mnuactual=view 1|mnufullscreen=frame gone|mnuhelp=help "
        "open|mnuabout=About|mnuexit=Exit?|mnuloadpuz=file: Tidewalk|"
        "mnuappend=file: Add Puzzle to File|mnudelete=Delete current puzzle from file:\r\n|arrows0=puzzle 2|"
        "arrows2=puzzle 4|arrows0right=puzzle 1|arrows2right=puzzle 5|arrows1=puzzle "
        "2|mnuchoose=Chooser|cmdchoose=Chooser|"
        "mnunewpuzx=works: Creating 7x7 puzzle ...|mnucreatemany=Form3|mnustopbatch=|mnupuzreset=Reset?|"
        "mnuexport=file: Export Puzzle|mnuimport=file: Select a grid file|mnupastepuzzle=status Error importing puzzle|"
        "Command3=This collection is not of the older layout:\r\n|Command4=works:|Command5=system: "
        "|can1=|mnuautosol=works:Auto solving ...|mnusolutions=works:Looking for solutions ...|cmdneworder=popup "
        "open|cmdnew1right=popup "
        "open|"
        "cmdverify=status Not done yet|cmdundo=moves 0|cmdredo=moves 2|"
        "mnucheckpoint=status Checkpoint set|mnubacktocheckpoint=moves 0|mnulines=status Lines hidden|can2=selected 0|"
        "mnuprintcurrent=Print Current Puzzle and its Solution?|mnuprintpreview=PrintPreview|control27=Form5|"
        "mnuprintbooklet=Booklet|"
        "mnucopyclippuz=status Puzzle copied to clipboard|mnucopyclipsol=status Solution copied to clipboard|"
        "mnucopytext=status Puzzle copied as text|"
        "mnusavepuzpicture=file: Save Picture As|mnusavesolpicture=file: Save Picture As|"
        "can3=|cmdsave=file: Add Puzzle to File|cmdload=file: Tidewalk|cmdedit=Form6|cmdviewcol=|"
        "cmdnew1=works: Creating 7x7 puzzle ...|cmdcancel=|cmdexit=Exit?|";
    const auto expect = [&](const QString& name, const std::function<void(WindowGame&)>& give) {
        EXPECT_EQ(EffectOf(give), effects.section("|" + name + "=", 1).section('|', 0, 0).toStdString())
            << name.toStdString();
    };
    for (const Command& command : Commands()) {
        if (command.handler == nullptr) continue;
        const QString name = command.ObjectName();
        const std::string control = name.toStdString();
        if (*command.menu != '\0') expect(name, [&](WindowGame& window) { window.Trigger(control.c_str()); });
        if (command.bar == 0) continue;
        expect(name, [&](WindowGame& window) { window.Click(control.c_str()); });
        const bool isAnother = name == "arrows0" || name == "arrows2" || name == "cmdnew1";
        expect(isAnother ? name + "right" : name,
               [&](WindowGame& window) { window.Click(control.c_str(), Qt::RightButton); });
    }
}

TEST(Window, KeysAreTheirOwnAndControlsSayWhatTheyAre) {
    WindowGame window;
    std::set<QString> taken;
    const auto isNew = [&](const QString& what) { return taken.insert(what).second; };
    for (const Command& command : Commands()) {
        const QByteArray name = command.ObjectName().toLatin1();
        const std::string shown = name.toStdString();
        EXPECT_TRUE(isNew(name) && (command.bar == 0 || isNew(QString::number(command.bar)))) << shown;
        for (const QKeySequence& key : command.keys)
            EXPECT_TRUE(!key.isEmpty() && isNew(key.toString())) << shown;
        if (*command.icon != '\0' && *command.menu != '\0') {
            EXPECT_FALSE(Of<QAction>(window.form, name).icon().isNull()) << shown;
        }
        // The tip of this one tells what is ordered.
        if (command.bar != 0 && !command.IsSeparator() && shown != "cmdnew1") {
            EXPECT_EQ(Of(window.form, name).toolTip(), ToolTipText(command.toolTip)) << shown;
        }
    }
    EXPECT_EQ(ToolTipText("Set <size>|A & B"), "<p style='white-space:pre'><b>Set &lt;size&gt;</b><br>A &amp; B</p>");
    EXPECT_EQ(PlainTipText("/a|b&c.tdw"), "<p style='white-space:pre'>/a|b&amp;c.tdw</p>");
}

QStringList TextsOf(const QList<QAction*>& actions) {
    QStringList texts;
    for (const QAction* const action : actions)
        if (!action->isSeparator()) texts += action->text();
    return texts;
}

/// The texts of a window's buttons, of its labels that stand for a control, and of frames that lead to one.
QStringList TextsOf(const QWidget& window) {
    QStringList texts;
    for (const auto* const widget : window.findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        // The buttons of the tool bar are there for the mouse: their commands have keys, or letters in the menus.
        if (qobject_cast<const BoxControl*>(widget) != nullptr) continue;
        const bool speaks = label != nullptr ? label->buddy() != nullptr : widget->inherits("QAbstractButton");
        const QString text = widget->property(speaks ? "text" : "title").toString();
        // Windows that belong to this one have letters of their own.
        if (widget->window() == &window && (speaks ? !text.isEmpty() : text.contains('&'))) texts += text;
    }
    return texts;
}

void ExpectLetterForEach(const QStringList& texts) {
    EXPECT_FALSE(texts.isEmpty());
    QString taken;
    for (const QString& text : texts) {
        const QString letter = text.section('&', 1).left(1).toLower();
        EXPECT_TRUE(!letter.isEmpty() && !taken.contains(letter))
            << text.toStdString() << " beside " << taken.toStdString();
        taken += letter;
    }
}

TEST(Window, EveryMenuAndWindowCanBeUsedWithAltAndALetter) {
    WindowGame window({Record({"3.3", "...", "3.3"})});
    ExpectLetterForEach(TextsOf(window.form.menuBar()->actions()) + TextsOf(window.form));
    for (const QMenu* const menu : window.form.findChildren<QMenu*>())
        if (!menu->title().isEmpty()) ExpectLetterForEach(TextsOf(menu->actions()));
    ExpectLetterForEach(TextsOf(window.program.help()));
    window.form.OpenOrder();
    auto& order = Of<QDialog>(window.form, "NewOrder");
    ExpectLetterForEach(TextsOf(order));
    order.reject();
    const Act look = [](QDialog& open) { ExpectLetterForEach(TextsOf(open)); };
    for (const auto& [command, dialog] : {std::pair{"mnuoptset", "Form2"},
                                          {"mnucreatemany", "Form3"},
                                          {"control27", "Form5"},
                                          {"mnuprintbooklet", "Booklet"},
                                          {"mnueditor", "Form6"},
                                          {"mnuabout", "About"},
                                          {"mnusolutions", "Solutions"},
                                          {"mnuprintpreview", "PrintPreview"}}) {
        window.Expect(dialog, look);
        window.Trigger(command);
    }
    for (const char* const style : {"vbyesnocancel", "vbcontinuecancel", "vbabortretryignore"}) {
        window.Expect("text", look);
        window.game.prompts.Show("text", style);
    }
}

TEST(Window, ButtonsAndBoxesTakeTheMouseAndTheKeyboard) {
    WindowGame window(kFive);
    auto& next = Of(window.form, "arrows2");
    const int& number = window.game.collection.PuzzleNumber;
    window.Click("arrows2", Qt::MiddleButton);
    QTest::mousePress(&next, Qt::RightButton);
    QTest::mouseRelease(&next, Qt::RightButton, {}, QPoint(-5, -5));
    EXPECT_EQ(number, 1) << "no press and release of one button over it";
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space})
        QTest::keyClick(&next, key);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&next, &held);
    EXPECT_EQ(number, 3) << "a key that is held down is pressed once";
    QTest::keyClick(&next, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(number, 5);
    Set(window.form, "PuzNumNow=2");
    QTest::keyClick(&Of(window.form, "PuzNumNow"), Qt::Key_Enter);
    EXPECT_EQ(number, 2);
    auto& size = Of(window.form, "GridSize");
    QTest::mouseClick(&size, Qt::LeftButton);
    EXPECT_EQ(Get(window.form, "GridSize"), "7x7");
    QTest::mouseClick(&size, Qt::RightButton);
    EXPECT_EQ(Get(window.form, "GridSize"), "");
    QTest::keyClicks(&size, "12x8");
    window.Click("cmdnew1");
    EXPECT_EQ(window.board.puzzle.Size(), (BoardSize{12, 8}));
}

TEST(Window, TextsAndProgressReachTheirControls) {
    WindowGame window;
    MainWindow& texts = window.game.window;
    const std::vector<const char*> controls{"pb", "PuzNumNow", "PuzNumber", "Puzfile", "GridSize"};
    for (std::size_t i = 0; i < controls.size(); ++i) {
        texts.SetText(static_cast<WindowText>(i), controls[i]);
        texts.SetToolTip(static_cast<WindowText>(i), controls[i]);
        EXPECT_EQ(Get(window.form, controls[i]), controls[i]);
        EXPECT_EQ(Of(window.form, controls[i]).toolTip(), PlainTipText(controls[i]));
    }
    auto& progress = Of<QProgressBar>(window.form, "Progress");
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
    EXPECT_EQ(lines("UndoList"), "R1C3 - R3C3: 0 to 1;R1C3 - R1C7: 0 to 1;Beginning;");
    window.Click("cmdverify");
    EXPECT_EQ(lines("List1"), "") << "nobody looks";
    window.Trigger("viewList1");
    window.Trigger("viewList2");
    window.program.handlers().Run([&](Game& game) {
        game.List1.SetLines({"b", "a"});
        game.List2.SetLines({"c"});
        game.events.DoEvents();
        EXPECT_EQ(lines("List1") + lines("List2"), "a;b;c;") << "in the middle of a job";
    });
}

TEST(Window, TheListOfMovesPointsAtThemAndGoesThere) {
    WindowGame window;
    window.ClickIslands({{1, 3}, {1, 7}, {1, 3}, {3, 3}, {1, 3}, {3, 3}});
    auto& list = Of<QListView>(window.form, "UndoList");
    const auto row = [&](int number) { return list.visualRect(list.model()->index(number, 0)).center(); };
    const auto isGrey = [&](int number) { return list.model()->index(number, 0).data(Qt::ForegroundRole).isValid(); };
    const auto move = [&](QPoint to) {
        QMouseEvent event(QEvent::MouseMove, to, list.viewport()->mapToGlobal(to), Qt::NoButton, {}, {});
        QApplication::sendEvent(list.viewport(), &event);
    };
    const QImage bare = window.Shown();
    move(row(2));
    EXPECT_EQ(window.board.pointed, (Board::PointedPair{3, 7}));
    EXPECT_NE(window.Shown(), bare);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(list.viewport(), &leave);
    EXPECT_EQ(window.Shown(), bare);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row(2));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row(2));
    EXPECT_EQ(window.board.history.Done(), 1);
    EXPECT_TRUE(isGrey(1) && !isGrey(2));
    list.setFocus();
    list.setCurrentIndex(list.model()->index(0, 0));
    EXPECT_EQ(window.board.pointed, (Board::PointedPair{3, 17})) << "the current one, for the keyboard";
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(window.board.history.Done(), 3);
    EXPECT_EQ(list.currentIndex().row(), 0) << "the keyboard stays where it was";
    window.view.setFocus();
    EXPECT_EQ(window.board.pointed, Board::PointedPair());
}

TEST(Window, TheTimeShowsWhenWantedAndTicksWhileTheWindowIsActive) {
    WindowGame window;
    auto& time = Of<QLabel>(window.form, "PlayTime");
    EXPECT_FALSE(time.isVisible());
    window.game.options.ShowTime = true;
    window.form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window.form));
    EXPECT_TRUE(QTest::qWaitFor([&] { return time.isVisible() && time.text() > "0:00"; }, 9000));
    QMainWindow other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    const auto seconds = [&](int later) {
        return window.game.playTime.Seconds(window.game.clock.Milliseconds() + later);
    };
    EXPECT_EQ(seconds(100000), seconds(0)) << "it does not count while another window is active";
}

TEST(Window, TheKeyboardComesToWhatANarrowOneHidesOfItsToolBar) {
    WindowGame window;
    window.form.resize(400, 500);
    window.form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window.form));
    auto& hidden = Of<BoxControl>(window.form, "cmdexit");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hidden.isVisible(); }));
    const auto walkTo = [](const QString& name) {
        for (int step = 0; step < 40 && QApplication::focusWidget()->objectName() != name; ++step)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        return QApplication::focusWidget()->objectName() == name;
    };
    EXPECT_TRUE(walkTo("qt_toolbar_ext_button"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return hidden.isVisible(); }));
    EXPECT_TRUE(walkTo("cmdexit"));
}

TEST(Window, ANewPuzzleIsOrderedAtItsButton) {
    WindowGame window;
    auto& make = Of<BoxControl>(window.form, "cmdnew1");
    const auto tip = [&] { return make.accessibleDescription().section('.', 0, 0).toStdString(); };
    make.findChild<QTimer*>()->setInterval(1);
    QTest::mousePress(&make, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.form.findChild<QDialog*>("NewOrder") != nullptr; }))
        << "a long press";
    auto& popup = Of<QDialog>(window.form, "NewOrder");
    EXPECT_TRUE(popup.isVisible());
    QTest::mouseRelease(&make, Qt::LeftButton);
    EXPECT_EQ(window.game.collection.CollectionPath, window.folder.Path("collection.tdw")) << "and no click";
    EXPECT_EQ(Get(popup, "OrderSize Grade0 OrderOneSolution"), "7x7 true true");
    Press(popup, "OrderOneSolution");
    EXPECT_EQ(tip(), "Any grade, any number of solutions");
    Press(popup, "Grade1");
    EXPECT_EQ(Get(popup, "Grade1 OrderOneSolution"), "true true") << "a grade asks for one solution";
    EXPECT_EQ(tip(), "Very easy, one solution");
    Set(popup, "OrderSize=8x9");
    QTest::keyClick(&popup, Qt::Key_Return);
    EXPECT_FALSE(popup.isVisible());
    EXPECT_EQ(window.board.puzzle.Size(), (BoardSize{8, 9}));
    QtChoices nextRun;
    nextRun.UseFolder(QString::fromStdString(window.folder.Path("")));
    EXPECT_EQ(ReadOrder(nextRun, OrderedFor::Board), (OrderChoice{false, Grade::VEasy, 0}));
    QTest::keyClick(&Of(window.form, "cmdneworder"), Qt::Key_Space);
    Press(popup, "Grade0");
    EXPECT_EQ(Get(popup, "OrderSize OrderOneSolution"), "8x9 false") << "the player's own wish is back";
}

TEST(Window, ClosingStopsAJobAndLeavesWhateverIsOpen) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"mnuloadpuz", "file: Tidewalk"}, {"Command5", "system: collection-noduprandom.txt randomized"},
        {"mnuoptset", "Form2"},           {"mnucreatemany", "Form3"},
        {"control27", "Form5"},           {"mnuprintbooklet", "Booklet"},
        {"mnueditor", "Form6"},           {"mnuabout", "About"},
        {"mnusolutions", "Solutions"},    {"mnuprintpreview", "PrintPreview"}};
    for (const auto& [command, dialog] : cases) {
        WindowGame window;
        window.game.collection.CollectionPath = "collection.tdw";
        window.Trigger("mnuhelp");
        window.Expect(dialog, [&](QDialog& open) {
            const Job job(window.game, "AutoSolve");
            window.form.close();
            EXPECT_TRUE(window.game.job.MustStop());
            EXPECT_FALSE(open.isVisible());
            EXPECT_FALSE(window.ended) << "the handler has not returned yet";
            // Nobody is asked any more.
            EXPECT_EQ(window.game.prompts.Show("Save?", "vbyesno"), kNo);
            EXPECT_EQ(window.game.prompts.SystemBox("Sure?", SystemButtons::YesNo), kNo);
            EXPECT_EQ(window.game.filePicker.Pick({}), "");
        });
        window.Trigger(command);
        EXPECT_TRUE(window.ended) << command;
        for (const QWidget* const widget : QApplication::topLevelWidgets())
            EXPECT_FALSE(widget->isVisible()) << command << " " << widget->objectName().toStdString();
    }
}

TEST(Window, AFaultOfAHandlerIsToldUnderTheArrowAndEndsNothing) {
    WindowGame window;
    const auto pointer = [] {
        const QCursor* const shown = QApplication::overrideCursor();
        return shown == nullptr ? -1 : static_cast<int>(shown->shape());
    };
    for (const char* const box : {"out of paper", "system: told"})
        window.Expect(box, [&](QDialog&) { EXPECT_EQ(pointer(), Qt::ArrowCursor); });
    window.game.window.SetPointer(Pointer::Busy);
    window.program.handlers().Run([](Game&) { throw std::runtime_error("out of paper"); });
    window.game.prompts.SystemBox("told", SystemButtons::Ok);
    EXPECT_EQ(pointer(), Qt::BusyCursor);
    window.game.window.SetPointer(Pointer::Default);
    EXPECT_EQ(pointer(), -1);
    window.form.close();
    EXPECT_TRUE(window.ended);
}

TEST(Window, TheBarsCanBeReadWhereButtonsAreUnlikeTheWindow) {
    QApplication::setPalette(QPalette(QColor(45, 45, 48), QColor(32, 32, 35)));
    WindowGame window;
    EXPECT_EQ(window.game.window.Desktop(DesktopColour::ButtonFace), Rgb(45, 45, 48));
    const auto icon = [](const auto& of) { return of.icon().pixmap(24).toImage(); };
    const QImage before = icon(Of<QAction>(window.form, "cmdundo"));
    window.game.options.ColourSchemeName = "default.col";
    window.game.options.SchemeColours[kAdjustedEntry] = Rgb(236, 233, 216);
    ApplyColourScheme(window.game);
    QCoreApplication::processEvents();
    EXPECT_NE(icon(Of<QAction>(window.form, "cmdundo")), before);
    EXPECT_EQ(icon(Of<BoxControl>(window.form, "cmdundo")), icon(Of<QAction>(window.form, "cmdundo")));
    QImage sharp(36, 36, QImage::Format_ARGB32_Premultiplied);
    sharp.fill(Qt::transparent);
    QPainter painter(&sharp);
    QSvgRenderer(QString(":/icons/tidewalk.svg")).render(&painter);
    EXPECT_EQ(ProgramIcon().pixmap(36).toImage(), sharp) << "at a ratio of 1.5: not scaled from another size";
    const auto drawn = [](QIcon::Mode mode, int side) { return ProgramIcon().pixmap(side, mode).toImage(); };
    EXPECT_EQ(drawn(QIcon::Normal, 36), sharp) << "the second time, too";
    EXPECT_LT(drawn(QIcon::Disabled, 36).pixelColor(18, 18).alpha(), 128) << "paler where it cannot be chosen";
    EXPECT_EQ(drawn(QIcon::Normal, 24).size(), QSize(24, 24));
    EXPECT_TRUE(MakeIcon("no such picture", QPalette()).isNull());
    for (QWidget* const bar : {&Of(window.form, "ToolBar"), static_cast<QWidget*>(window.form.menuBar())}) {
        const Colour back = ToColour(bar->palette().color(QPalette::Window));
        for (const QPalette::ColorRole text : {QPalette::ButtonText, QPalette::WindowText})
            EXPECT_GE(Contrast(back, ToColour(bar->palette().color(text))), kTextContrast);
    }
}

TEST(Window, AFileThatIsDroppedIsOpenedWhateverTheBytesOfItsName) {
    WindowGame window;
    const std::string path = window.folder.Write("k\xE4se %25.tdw", kSmallPuzzle + std::string("\r\n"));
    QMimeData file;
    file.setUrls({QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"))});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* const event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&drop)})
        QApplication::sendEvent(&window.form, event);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.game.collection.CollectionPath, path);
}

TEST(Window, ListsRecentFilesAsTheyWereOpened) {
    WindowGame window;
    auto* const menu = qobject_cast<QMenu*>(Of<QAction>(window.form, "mnuclearrecent").parent());
    const auto entries = [&] {
        emit menu->aboutToShow();
        QStringList texts;
        for (const QAction* const entry : menu->actions())
            texts += entry->text();
        return texts.join('|').toStdString();
    };
    const std::string odd = window.folder.Write("k\xE4 & %.tdw", kSmallPuzzle + std::string("\n"));
    for (const std::string& path : {odd, window.folder.Path("missing.tdw")})
        RememberOpened(window.game, path);
    EXPECT_EQ(entries(), "&1 missing.tdw|&2 k\uFFFD && %.tdw|&3 collection.tdw||&Clear List");
    window.Expect("puzzle 1 not found");
    menu->actions().at(0)->trigger();
    entries();
    menu->actions().at(0)->trigger();
    EXPECT_EQ(window.game.collection.CollectionPath, odd);
    EXPECT_EQ(entries(), "&1 k\uFFFD && %.tdw|&2 collection.tdw||&Clear List");
    window.Trigger("mnuclearrecent");
    EXPECT_EQ(entries(), "No file was opened yet|&Clear List");
    EXPECT_FALSE(Of<QAction>(window.form, "mnuclearrecent").isEnabled());
}

TEST(Window, FindsItsPlaceAgainUnlessWhatWasKeptOfItIsDamaged) {
    WindowGame window;
    Of<QDockWidget>(window.form, "dockUndoList").hide();
    window.program.handlers().End();
    for (const bool damaged : {false, true}) {
        std::string docks = window.game.choices.Get("window/docks", "");
        ASSERT_GT(docks.size(), 100U);
        if (damaged) docks[100] = docks[100] == 'A' ? 'B' : 'A';
        window.game.choices.Set("window/docks", docks);
        Handlers none;
        Form1 form(none, {});
        form.TakePlace(window.game.choices);
        EXPECT_NE(form.findChild<QDockWidget*>("dockUndoList")->isHidden(), damaged);
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
