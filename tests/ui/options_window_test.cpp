// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <functional>

#include "ui/colours.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

/// Triggers the command and runs `act` on the window that it opens, which has to be closed by then.
void InWindow(WindowGame& window, const char* command, const char* name, const std::function<void(QWidget&)>& act) {
    bool ran = false;
    QTimer::singleShot(0, &window.form(), [&] {
        QWidget* const opened = QApplication::activeModalWidget();
        ASSERT_NE(opened, nullptr);
        EXPECT_EQ(opened->objectName(), name);
        act(*opened);
        ran = true;
        if (opened->isVisible()) opened->close();
    });
    window.Find<QAction>(command).trigger();
    EXPECT_TRUE(ran);
}

template <class Widget>
Widget& Of(QWidget& parent, const char* name) {
    auto* const found = parent.findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

void Press(QWidget& parent, const char* name) {
    QTest::mouseClick(&Of<QPushButton>(parent, name), Qt::LeftButton);
}

void Choose(QWidget& form2, const QString& scheme) {
    auto& combo = Of<QComboBox>(form2, "Combo1");
    combo.setCurrentText(scheme);
    emit combo.textActivated(scheme);
}

TEST(OptionsWindow, TheSchemeColoursEveryWindowWhenItIsApplied) {
    WindowGame window;
    InWindow(window, "mnuoptset", "Form2", [](QWidget& form2) {
        EXPECT_EQ(form2.windowTitle(), "Tide Options");
        EXPECT_EQ(Of<QComboBox>(form2, "Combo1").currentText(), "xp");
        Choose(form2, "dusk");
        Of<QRadioButton>(form2, "Option2").click();
        Press(form2, "command1");
        EXPECT_FALSE(form2.isVisible());
    });
    QCoreApplication::processEvents();
    const auto& colours = window.game().SchemeColours;
    EXPECT_EQ(window.game().ColourSchemeName, "dusk.col");
    EXPECT_EQ(window.game().NodeShape, 1);
    EXPECT_EQ(window.ColourAt({2, 2}), ToQColor(colours[2]));
    EXPECT_EQ(window.Find<QLineEdit>("PuzNumNow").palette().color(QPalette::Base), ToQColor(colours[2]));
    for (const auto& [command, name] : {std::pair{"mnuoptset", "Form2"}, std::pair{"mnueditor", "Form6"}}) {
        InWindow(window, command, name,
                 [&](QWidget& side) { EXPECT_EQ(side.palette().color(QPalette::Window), ToQColor(colours[4])); });
    }
    QTimer::singleShot(0, &window.form(), [&] {
        QWidget* const box = QApplication::activeModalWidget();
        EXPECT_EQ(box->palette().color(QPalette::Window), ToQColor(colours[2]));
        EXPECT_EQ(box->palette().color(QPalette::Button), ToQColor(colours[4]));
        box->close();
    });
    window.game().prompts.Show("text", "vbok");
}

TEST(OptionsWindow, ClosingLeavesEverythingAsItWas) {
    WindowGame window;
    const Options before = window.game();
    for (const char* way : {"command2", ""}) {
        InWindow(window, "mnuoptset", "Form2", [&](QWidget& form2) {
            Choose(form2, "sand");
            Press(form2, "cmdadjust42");
            Of<QScrollBar>(form2, "red").setValue(7);
            Press(form2, "cmdnodecol");
            *way != '\0' ? Press(form2, way) : static_cast<void>(form2.close());
        });
        EXPECT_EQ(window.game().ColourSchemeName, before.ColourSchemeName);
        EXPECT_EQ(window.game().SchemeColours, before.SchemeColours);
        EXPECT_EQ(window.game().NodeColour, before.NodeColour);
    }
}

TEST(OptionsWindow, FinishedIslandsLookFinishedOnlyWhenThePlayerWishesIt) {
    WindowGame window({Record({"2...2", ".....", "....."})});
    const QPoint corner = window.IslandAt(1, 5) - QPoint(1, 1) * qRound(window.game().HalfCell / kTwipsPerPixel * 0.5);
    const QColor plain = window.ColourAt(corner);
    for (int bridge = 0; bridge < 2; ++bridge) {
        window.ClickIsland(1, 1);
        window.ClickIsland(1, 5);
    }
    EXPECT_EQ(window.ColourAt(corner), plain);
    InWindow(window, "mnuoptset", "Form2", [](QWidget& form2) {
        auto& box = Of<QCheckBox>(form2, "Check2");
        EXPECT_FALSE(box.isChecked());
        box.click();
        Press(form2, "command1");
    });
    EXPECT_GT(window.ColourAt(corner).lightness(), plain.lightness() + 50);
    window.ClickIsland(1, 1);
    window.ClickIsland(1, 5, Qt::RightButton);
    EXPECT_EQ(window.ColourAt(corner), plain);
}

TEST(OptionsWindow, AColourIsCopiedOnceOneWasPicked) {
    WindowGame window;
    InWindow(window, "mnuoptset", "Form2", [&](QWidget& form2) {
        auto& swatch = Of<Swatch>(form2, "Line2");
        const Colour before = swatch.Value();
        Press(form2, "cmdgridcol");
        EXPECT_EQ(swatch.Value(), before);
        Of<QScrollBar>(form2, "red").setValue(200);
        Of<QScrollBar>(form2, "green").setValue(100);
        Of<QScrollBar>(form2, "blue").setValue(0);
        Press(form2, "cmdgridcol");
        EXPECT_EQ(swatch.Value(), Rgb(200, 100, 0));
        Press(form2, "command1");
    });
    EXPECT_EQ(window.game().GridColour, Rgb(200, 100, 0));
}

TEST(NumberEditor, APuzzleIsTypedWithoutTheMouseAndPlayed) {
    WindowGame window;
    InWindow(window, "mnueditor", "Form6", [](QWidget& form6) {
        EXPECT_EQ(form6.windowTitle(), "Edit Number Values");
        Of<QSpinBox>(form6, "SpinRows").setValue(2);
        Of<QSpinBox>(form6, "SpinCols").setValue(3);
        QWidget& grid = Of<QWidget>(form6, "NumberGrid");
        QTest::keyClicks(&grid, "2.29");
        QTest::keyClick(&grid, Qt::Key_Down);
        QTest::keyClick(&grid, Qt::Key_End);
        QTest::keyClicks(&grid, "7");
        QTest::keyClick(&grid, Qt::Key_Backspace);
        QTest::keyClick(&grid, Qt::Key_F1);
        Press(form6, "cmduse");
    });
    EXPECT_EQ(window.game().Rows, 2);
    EXPECT_EQ(window.game().GivenGrid(1, 3), 2);
    EXPECT_EQ(window.game().GivenGrid(2, 3), 0);
    EXPECT_EQ(window.folder.Read("tempeditpuzzle.txt"), "#0203\r\n2.2\r\n...\r\n");
    window.ClickIsland(1, 1);
    window.ClickIsland(1, 3);
    EXPECT_EQ(window.Bridges(1, 1, 1, 3), 1);
}

TEST(PastePuzzleCommand, TakesTheDesktopsClipboardAndRefusesAPicture) {
    WindowGame window;
    QGuiApplication::clipboard()->setText("2..2\n\xC3\xA9..1\n");
    window.Find<QAction>("mnupastepuzzle").trigger();
    EXPECT_EQ(window.game().Cols, 4);
    EXPECT_EQ(window.Find<QLabel>("pb").text(), "Puzzle imported");
    QGuiApplication::clipboard()->setPixmap(QPixmap(10, 10));
    window.Find<QAction>("mnupastepuzzle").trigger();
    EXPECT_EQ(window.Find<QLabel>("pb").text(), "Error importing puzzle");
}

TEST(ExitCommand, SavesAndEnds) {
    WindowGame window(std::vector<std::string>(7, kSmallPuzzle));
    window.ClickButton("arrows0");
    {
        const BoxAnswer answer("Exit?", "Yes");
        window.ClickButton("cmdexit");
    }
    EXPECT_TRUE(window.ended);
    EXPECT_EQ(window.folder.Read("tide.cfg").substr(0, 11), "xp.col\r\n 7 ");
}

}  // namespace
}  // namespace tidewalk::test
