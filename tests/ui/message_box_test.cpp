// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QLabel>
#include <QPushButton>

#include "ui/message_style.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

/// The style's buttons as "Caption=code ..." in their order.
std::string Buttons(std::string_view style) {
    std::string all;
    for (const MessageButton& button : ParseMessageStyle(style).buttons) {
        all += std::string(button.caption) + "=" + std::to_string(button.code) + " ";
    }
    return all;
}

TEST(MessageStyle, EachWordGivesItsButtons) {
    EXPECT_EQ(Buttons("vbok"), "Ok=1 ");
    EXPECT_EQ(Buttons("vbokonly"), "Ok=1 ");
    EXPECT_EQ(Buttons("vbokcancel"), "Ok=1 Cancel=2 ");
    EXPECT_EQ(Buttons("vbYesNo"), "Yes=6 No=7 ");
    EXPECT_EQ(Buttons("vbyesnocancel"), "Yes=6 No=7 Cancel=2 ");
    EXPECT_EQ(Buttons("vbretrycancel"), "Retry=4 Cancel=2 ");
    EXPECT_EQ(Buttons("vbabortretryignore"), "Abort=3 Retry=4 Ignore=5 ");
    EXPECT_EQ(Buttons("vbcontinuecancel"), "Continue=6 Cancel=2 ");
    EXPECT_EQ(Buttons("vbcancel+vbignore"), "Cancel=2 Ignore=5 ");
    EXPECT_EQ(Buttons("vbcancelok"), "Cancel=2 Ok=1 ");
    EXPECT_EQ(Buttons("vbyes+vbno+vbabort+vbretry"), "Yes=6 No=7 Abort=3 Retry=4 ");
    EXPECT_EQ(Buttons("vbnormal"), "Ok=1 ");
    EXPECT_EQ(Buttons("nonsense+vb+ok++vbprint"), "");
}

TEST(MessageStyle, TheFrameAnswersTheMildestThatIsOffered) {
    EXPECT_EQ(ParseMessageStyle("vbyesnocancel").FrameAnswer(), 2);
    EXPECT_EQ(ParseMessageStyle("vbyesno").FrameAnswer(), 7);
    EXPECT_EQ(ParseMessageStyle("vbhappy+vbok").FrameAnswer(), 1);
    EXPECT_EQ(ParseMessageStyle("vbhappy").FrameAnswer(), 0);
}

TEST(MessageStyle, EveryPictureWordHasAPicture) {
    const MessageStyle style = ParseMessageStyle(
        "vbopen+vbsave+vbexit+vblighton+vbcustom+vbtrash+vbprint+vbhappy+vbcritical+vberror+vbexclamation+vbquestion+"
        "VBINFORMATION");
    EXPECT_EQ(style.icons.size(), 13U);
    const MsgForm box("text", style, "caption", nullptr);
    for (const std::string_view icon : style.icons) {
        auto* const picture = box.findChild<QLabel*>("vb" + QString::fromStdString(std::string(icon)));
        ASSERT_NE(picture, nullptr) << icon;
        EXPECT_FALSE(picture->pixmap().isNull()) << icon;
    }
}

/// Shows a box and presses one key in it; the answer is the box's result.
int AnswerOfKey(std::string_view style, Qt::Key key) {
    MsgForm box("text", ParseMessageStyle(style), "caption", nullptr);
    QTimer::singleShot(0, &box, [&] {
        box.activateWindow();
        QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, key);
    });
    QTimer::singleShot(2000, &box, [&] { box.done(-1); });
    return box.exec();
}

TEST(MessageBox, KeysPressTheFirstButtonOrLeaveByTheFrame) {
    EXPECT_EQ(AnswerOfKey("vbyesno", Qt::Key_Return), 6);
    EXPECT_EQ(AnswerOfKey("vbyesno", Qt::Key_Enter), 6);
    EXPECT_EQ(AnswerOfKey("vbcancelok", Qt::Key_Space), 2);
    EXPECT_EQ(AnswerOfKey("vbyesno", Qt::Key_Escape), 7);
    EXPECT_EQ(AnswerOfKey("vbhappy", Qt::Key_Escape), 0);
}

TEST(MessageBox, ShowsPlainTextWithItsLinesAndCarriesTheCodes) {
    const MsgForm box("<b>Delete</b>:\r\n/a/b", ParseMessageStyle("vbretrycancel"), "caption", nullptr);
    EXPECT_EQ(box.findChild<QLabel*>("Label1")->text(), "<b>Delete</b>:\n/a/b");
    EXPECT_EQ(box.findChild<QLabel*>("Label1")->textFormat(), Qt::PlainText);
    EXPECT_EQ(box.findChild<QPushButton*>("cmd0")->property("Tag"), "4");
    EXPECT_EQ(box.findChild<QPushButton*>("cmd1")->property("Tag"), "2");
}

TEST(MessageBox, AnswersOfAQuestionReachTheGame) {
    WindowGame window;
    window.ClickIsland(1, 3);
    window.ClickIsland(1, 7);
    {
        const BoxAnswer no("Reset?", "No");
        window.Find<QAction>("mnupuzreset").trigger();
    }
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 1);
    {
        const BoxAnswer frame("Reset?", "");
        window.Find<QAction>("mnupuzreset").trigger();
    }
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 1);
    {
        const BoxAnswer yes("Reset?", "Yes");
        window.Find<QAction>("mnupuzreset").trigger();
    }
    EXPECT_EQ(window.Bridges(1, 3, 1, 7), 0);
}

}  // namespace
}  // namespace tidewalk::test
