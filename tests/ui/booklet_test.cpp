// SPDX-License-Identifier: MIT
// The window that asks for a booklet and shows its pages.
#include <QComboBox>
#include <QScrollArea>

#include "ui/booklet_form.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const std::string kLarge = Record(std::vector<std::string>(25, "1.......................1"));
const std::string kHard = Record({"2.3.2", ".....", "3.4.3", ".....", "2.3.2"});

/// A window with five puzzles to make booklets of.
struct BookletGame : WindowGame {
    explicit BookletGame(const std::vector<std::string>& records = {kSmallPuzzle, kHard, kSmallPuzzle, "no puzzle",
                                                                    kSmallPuzzle, kSmallPuzzle})
        : WindowGame(records) {}

    /// Opens the window and does something there.
    void Open(const std::function<void(QDialog&)>& act) {
        Expect("Booklet", act);
        Trigger("mnuprintbooklet");
    }
};

void Pick(const QDialog& dialog, const char* box, const char* text) {
    Of<QComboBox>(dialog, box).setCurrentText(text);
}

/// Where the preview is once nothing more is read: "Page 1 of 3".
std::string Place(const QDialog& dialog) {
    const auto settled = [&] { return Get(dialog, "BookletProgress").empty(); };
    QCoreApplication::processEvents();
    EXPECT_TRUE(QTest::qWaitFor(settled, 9000));
    return Get(dialog, "BookletPlace");
}

QImage Page(const QDialog& dialog) {
    return Of(dialog, "BookletPage").grab().toImage();
}

TEST(Booklet, ThePreviewFollowsWhatIsAskedPageByPage) {
    BookletGame game;
    game.Open([](QDialog& open) {
        Pick(open, "BookletPerPage", "1 puzzle");
        EXPECT_EQ(Place(open), "Page 1 of 8") << "a cover, the rules, five puzzles, the solutions";
        std::vector<QImage> seen{Page(open)};
        const auto turn = [&](const char* to) {
            EXPECT_EQ(Place(open), to);
            EXPECT_EQ(std::count(seen.begin(), seen.end(), Page(open)), 0) << to;
            seen.push_back(Page(open));
        };
        QTest::keyClicks(&Of(open, "BookletTitle"), "Bridges");
        turn("Page 1 of 8");
        QTest::keyClick(&open, Qt::Key_PageDown);
        turn("Page 2 of 8");
        Press(open, "BookletNextPage");
        turn("Page 3 of 8");
        Pick(open, "BookletIslands", "Squares");
        turn("Page 3 of 8");
        Press(open, "BookletLastPage");
        turn("Page 8 of 8");
        EXPECT_FALSE(Of(open, "BookletNextPage").isEnabled());
        QTest::keyClick(&open, Qt::Key_PageDown);
        Set(open, "BookletCover=false BookletRules=false BookletFirst=2 BookletLast=3");
        turn("Page 3 of 3");
        Press(open, "BookletFirstPage");
        EXPECT_EQ(Place(open), "Page 1 of 3");
        Pick(open, "BookletOrientation", "Landscape");
        turn("Page 1 of 3");
        auto& area = Of<QScrollArea>(open, "BookletPageArea");
        const auto fits = [&] { return area.widget()->height() <= area.viewport()->height(); };
        EXPECT_TRUE(fits());
        Press(open, "BookletEnlarge");
        QCoreApplication::processEvents();
        EXPECT_FALSE(fits());
        turn("Page 1 of 3");
    });
}

TEST(Booklet, WhatIsSeenIsPrintedAndChosenTheNextTime) {
    BookletGame game;
    game.Open([&](QDialog& open) {
        Pick(open, "BookletPerPage", "2 puzzles");
        Pick(open, "BookletOrder", "By grade");
        Pick(open, "BookletPaper", "A5");
        EXPECT_EQ(Place(open), "Page 1 of 6");
        game.Expect("file: Print to a PDF file", Choose(game.folder.Path("a.pdf")));
        game.Expect("Printed 5 puzzles on 6 pages to file:\r\n" + game.folder.Path("a.pdf") +
                    "\r\n\r\nLines that are no puzzles and were left out: 4");
        Press(open, "BookletPrint");
    });
    EXPECT_EQ(PagesOf("a.pdf"), 6);
    game.Open([](QDialog& open) {
        EXPECT_EQ(Get(open, "BookletPerPage BookletOrder BookletPaper"), "2 puzzles By grade A5");
    });
}

TEST(Booklet, WhyThereIsNoneIsSeenAndToldByPrint) {
    BookletGame game({kSmallPuzzle, kLarge});
    const std::string other = game.folder.Write("other.tdw", std::string(kSmallPuzzle) + "\r\n");
    game.Open([&](QDialog& open) {
        EXPECT_EQ(Place(open).substr(0, 9), "Page 1 of");
        const auto refused = [&](const std::string& why) {
            EXPECT_EQ(Place(open), "No pages");
            EXPECT_EQ(Get(open, "BookletMessage").substr(0, why.size()), why);
            game.Expect(Get(open, "BookletMessage"));
            Press(open, "BookletPrint");
            EXPECT_TRUE(open.isVisible());
        };
        Set(open, "BookletLast=3");
        refused("Incorrect start or end puzzle number");
        Set(open, "BookletLast=2");
        Pick(open, "BookletPaper", "A5");
        Pick(open, "BookletPerPage", "9 puzzles");
        refused("");
        Set(open, "BookletFile=missing.tdw");
        emit Of<QLineEdit>(open, "BookletFile").editingFinished();
        refused("No puzzles in this file: missing.tdw");
        game.Expect("file: Select a Puzzle file to print", Choose(other));
        Press(open, "BookletBrowse");
        EXPECT_EQ(Get(open, "BookletFile BookletFirst BookletLast BookletCount"), other + " 1 1 of 1");
        EXPECT_EQ(Place(open).substr(0, 9), "Page 1 of");
    });
}

TEST(Booklet, LeavingStopsWhatIsBeingReadAtAnyMoment) {
    // Grading these takes minutes.
    std::string largest;
    LineIndex().Read(std::string(TIDEWALK_DATA_DIR) + "/puzzles.txt", 200, largest);
    BookletGame game(std::vector<std::string>(3000, largest));
    QElapsedTimer clock;
    for (const int wait : {0, 1, 300, 30}) {
        game.Open([&](QDialog& open) {
            QTest::qWait(wait);
            for (const char* last : {"2999", "2998", "3000"})
                Set(open, QString("BookletLast=%1").arg(last));
            EXPECT_TRUE(wait < 300 || !Get(open, "BookletProgress").empty());
            clock.start();
            if (wait == 30) game.form.close();
        });
        EXPECT_LT(clock.elapsed(), 15000);
    }
    EXPECT_TRUE(game.ended);
}

}  // namespace
}  // namespace tidewalk::test
