// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>

#include "model/contrast.h"
#include "model/job.h"
#include "options/colour_scheme.h"
#include "ui/colours.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const std::vector<std::string> kFive(5, kSmallPuzzle);

TEST(Window, ArrowsTakeBothButtonsAndWrap) {
    WindowGame window(kFive);
    window.ClickButton("cmdverify");
    EXPECT_EQ(window.Find<QLabel>("pb").text(), "Not done yet");
    window.ClickButton("arrows0");
    EXPECT_EQ(window.game().PuzzleNumber, 5);
    EXPECT_EQ(window.Find<QLabel>("pb").text(), "") << "that was about another puzzle";
    window.ClickButton("arrows2");
    EXPECT_EQ(window.game().PuzzleNumber, 1);
    window.ClickButton("arrows2", Qt::RightButton);
    EXPECT_EQ(window.game().PuzzleNumber, 5);
    window.ClickButton("arrows0", Qt::RightButton);
    EXPECT_EQ(window.game().PuzzleNumber, 1);
    window.ClickButton("arrows2", Qt::MiddleButton);
    EXPECT_EQ(window.game().PuzzleNumber, 1);
    QTest::keyClick(&window.Button("arrows2"), Qt::Key_Return);
    EXPECT_EQ(window.game().PuzzleNumber, 2);
    QTest::keyClick(&window.Button("arrows2"), Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(window.game().PuzzleNumber, 5);
    window.Find<QAction>("arrows0right").trigger();
    EXPECT_EQ(window.game().PuzzleNumber, 1);
    EXPECT_EQ(window.Find<QLabel>("PuzNumber").text(), " of 5");
    EXPECT_EQ(window.Find<QLabel>("Puzfile").text(), "collection.tdw");
}

TEST(Window, ARightPressThatIsReleasedElsewhereIsNoClick) {
    WindowGame window(kFive);
    QTest::mousePress(&window.Button("arrows2"), Qt::RightButton);
    QTest::mouseRelease(&window.Button("arrows2"), Qt::RightButton, {}, QPoint(-5, -5));
    EXPECT_EQ(window.game().PuzzleNumber, 1);
}

TEST(Window, ATypedNumberLoadsOnEnterIfThereIsSuchAPuzzle) {
    WindowGame window(kFive);
    auto& box = window.Find<QLineEdit>("PuzNumNow");
    box.selectAll();
    QTest::keyClicks(&box, "4");
    EXPECT_EQ(window.game().PuzzleNumber, 1);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(window.game().PuzzleNumber, 4);
    box.selectAll();
    QTest::keyClicks(&box, "99");
    QTest::keyClick(&box, Qt::Key_Enter);
    EXPECT_EQ(window.game().PuzzleNumber, 4);
    EXPECT_EQ(box.text(), "99");
}

TEST(Window, ZoomStopsAtItsLimits) {
    WindowGame window;
    for (int i = 0; i < 30; ++i)
        window.ClickButton("cmdzoom0");
    EXPECT_EQ(window.game().CellSize, 200);
    EXPECT_EQ(window.board().width(), qRound(200 * 1.15 * 7 / kTwipsPerPixel));
    for (int i = 0; i < 30; ++i)
        window.ClickButton("cmdzoom1");
    EXPECT_EQ(window.game().CellSize, 700);
}

TEST(Window, TheRightButtonEmptiesTheSizeBox) {
    WindowGame window;
    auto& box = window.Find<QLineEdit>("GridSize");
    EXPECT_EQ(box.text(), "7x7");
    QTest::mouseClick(&box, Qt::RightButton);
    EXPECT_EQ(box.text(), "");
}

TEST(Window, AWorkListFollowsTheGameWhileItShows) {
    WindowGame window;
    window.ClickButton("cmdverify");
    auto& list = window.Find<QListView>("List1");
    EXPECT_EQ(list.model()->rowCount(), 0) << "nobody looks";
    window.Find<QAction>("viewList1").trigger();
    ASSERT_EQ(list.model()->rowCount(), 1);
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), "01 03 004 links=00");
}

TEST(Window, ClosingWhileNothingRunsEndsAtOnce) {
    WindowGame window;
    window.form().close();
    EXPECT_TRUE(window.ended);
    EXPECT_TRUE(window.game().ending);
}

TEST(Window, ClosingInTheMiddleOfAJobStopsItAndEndsAfterIt) {
    WindowGame window;
    window.program->handlers().Run([&](Game& game) {
        const Job job(game);
        QTimer::singleShot(0, &window.form(), [&] { window.form().close(); });
        game.events.DoEvents();
        EXPECT_TRUE(CancelRequested(game));
        EXPECT_FALSE(window.form().isVisible());
        EXPECT_FALSE(window.ended) << "the handler has not returned yet";
        EXPECT_EQ(game.prompts.Show("Save?", "vbyesno"), 7) << "nobody is asked any more";
    });
    EXPECT_TRUE(window.ended);
}

TEST(Window, EndingWhileABoxIsOpenClosesTheBox) {
    WindowGame window;
    QTimer::singleShot(50, &window.form(), [&] { window.program->handlers().End(); });
    window.Find<QAction>("mnupuzreset").trigger();
    EXPECT_TRUE(window.ended);
}

TEST(Window, WearsTheColoursOfAScheme) {
    WindowGame window;
    window.game().SchemeColours[2] = Rgb(30, 30, 46);
    window.game().SchemeColours[13] = Rgb(240, 230, 200);
    ApplyColourScheme(window.game());
    QCoreApplication::processEvents();
    EXPECT_EQ(window.game().Picture1BackColor, Rgb(30, 30, 46));
    const QPalette palette = window.Find<QLineEdit>("PuzNumNow").palette();
    EXPECT_EQ(palette.color(QPalette::Base), QColor(30, 30, 46));
    EXPECT_EQ(palette.color(QPalette::Text), QColor(Qt::white));
    EXPECT_EQ(palette.color(QPalette::Window), QColor(240, 230, 200));
    EXPECT_EQ(palette.color(QPalette::ButtonText), QColor(Qt::black));
}

TEST(Window, TabGoesThroughTheToolBarToTheBoardAndTheUndoList) {
    WindowGame window;
    QStringList order;
    QWidget* at = &window.Button("arrows0");
    const QStringList wanted = {"arrows0", "arrows1", "arrows2", "PuzNumNow", "cmdload", "Picture1", "UndoList"};
    do {
        if (wanted.contains(at->objectName())) order += at->objectName();
        at = at->nextInFocusChain();
    } while (at != &window.Button("arrows0"));
    EXPECT_EQ(order.join(' ').toStdString(), wanted.join(' ').toStdString());
}

TEST(Window, TheBarsCanBeReadWhereButtonsAreUnlikeTheWindow) {
    QPalette dark(QColor(45, 45, 48), QColor(32, 32, 35));
    QApplication::setPalette(dark);
    WindowGame window;
    window.game().ColourSchemeName = "default.col";
    window.game().SchemeColours[kAdjustedEntry] = Rgb(236, 233, 216);
    ApplyColourScheme(window.game());
    QCoreApplication::processEvents();
    for (const QWidget* const bar :
         {window.form().findChild<QWidget*>("ToolBar"), static_cast<QWidget*>(window.form().menuBar())}) {
        const QPalette palette = bar->palette();
        const Colour back = ToColour(palette.color(QPalette::Window));
        EXPECT_GE(Contrast(back, ToColour(palette.color(QPalette::ButtonText))), kTextContrast);
        EXPECT_GE(Contrast(back, ToColour(palette.color(QPalette::WindowText))), kTextContrast);
    }
}

TEST(FilePicker, FiltersByThePatternsAndOffersAllFiles) {
    EXPECT_EQ(FileFilter("*.tdw;*.txt;*.dat", "Tidewalk Files"), "Tidewalk Files (*.tdw *.txt *.dat);;All files (*)");
}

TEST(Window, StartsWithTheBoardInFocusAndASquareContainer) {
    WindowGame window;
    EXPECT_EQ(window.form().focusWidget(), &window.board());
    EXPECT_EQ(window.form().Container().size(), QSize(680, 680));
}

}  // namespace
}  // namespace tidewalk::test
