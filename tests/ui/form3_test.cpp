// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "support/layout_checker.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

/// Opens the window by its menu item and lets `use` work in it.
void InForm3(WindowGame& window, const std::function<void(QDialog&)>& use) {
    QTimer::singleShot(0, &window.form(), [&] {
        auto* const form3 = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(form3, nullptr);
        ASSERT_EQ(form3->objectName(), "Form3");
        EXPECT_EQ(form3->windowTitle(), "Create New Puzzles");
        use(*form3);
        if (form3->isVisible()) form3->reject();
    });
    window.Find<QAction>("mnucreatemany").trigger();
}

void Type(QDialog& form3, const char* count, const char* rows, const char* cols, const char* file) {
    form3.findChild<QLineEdit*>("Text1")->setText(count);
    form3.findChild<QComboBox*>("Combo1")->setCurrentText(rows);
    form3.findChild<QComboBox*>("Combo2")->setCurrentText(cols);
    form3.findChild<QLineEdit*>("FileNow")->setText(file);
}

void Press(QDialog& form3, const char* button) {
    QTest::mouseClick(form3.findChild<QPushButton*>(button), Qt::LeftButton);
}

TEST(Form3Window, MakesABatch) {
    WindowGame window;
    const BoxAnswer proceed("Create 3 7x9 puzzles\r\nOutput file: out.txt\r\n\r\nProceed?", "Yes");
    const BoxAnswer created("Created 3 puzzles in file:\r\nout.txt", "Ok");
    InForm3(window, [](QDialog& form3) {
        EXPECT_EQ(form3.findChild<QComboBox*>("Combo1")->count(), 19);
        EXPECT_EQ(form3.findChild<QComboBox*>("Combo2")->itemText(18), "25");
        Type(form3, "3", "7", "9", "out");
        Press(form3, "Command1");
        EXPECT_EQ(form3.property("Tag"), "Y");
    });
    const std::string bytes = window.folder.Read("out.txt");
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 3);
    EXPECT_EQ(FaultOfRecord(bytes.substr(0, bytes.find('\r')), 7, 9), "");
    EXPECT_TRUE(window.board().updatesEnabled());
    EXPECT_EQ(window.game().Rows, 7);
    EXPECT_EQ(window.game().Cols, 7);
}

TEST(Form3Window, StaysOpenWhenSomethingIsWrong) {
    WindowGame window;
    const BoxAnswer wrong("Incorrect Number or Size of Puzzles", "Ok");
    const BoxAnswer noFile("Specify an output file", "Ok");
    InForm3(window, [](QDialog& form3) {
        Type(form3, "3", "6", "9", "out");
        Press(form3, "Command1");
        EXPECT_TRUE(form3.isVisible());
        Type(form3, "3", "7", "9", "  ");
        Press(form3, "Command1");
        EXPECT_TRUE(form3.isVisible());
        EXPECT_EQ(form3.property("Tag"), "X");
        Press(form3, "command2");
        EXPECT_FALSE(form3.isVisible());
    });
    EXPECT_FALSE(std::filesystem::exists("out.txt"));
}

TEST(NewPuzzleWindow, TheRightButtonEmptiesTheSizeBoxAndTheButtonMakesAPuzzle) {
    WindowGame window;
    auto& size = window.Find<QLineEdit>("GridSize");
    QTest::mouseClick(&size, Qt::RightButton);
    EXPECT_EQ(size.text(), "");
    size.setText("12x8");
    window.ClickButton("cmdnew1");
    EXPECT_EQ(window.game().Rows, 12);
    EXPECT_EQ(window.game().Cols, 8);
    EXPECT_EQ(window.game().CollectionPath, "temp.txt");
}

}  // namespace
}  // namespace tidewalk::test
