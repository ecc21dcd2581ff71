// SPDX-License-Identifier: MIT
// Choosing a puzzle of the collection by its picture.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include "ui/chooser.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const std::string kTree = Record({"1.2.1"});
const std::string kSeveral = Record({"3.3", "...", "3.3"});
const std::string kWide = Record({"1" + std::string(19, '.') + "1"});

/// A window with five lines to choose from, of which the fourth is none, and the third one is begun.
struct ChooserGame : WindowGame {
    ChooserGame() : WindowGame({kTree, kSeveral, kWide, "no puzzle", kTree}) {
        Click("arrows2");
        Click("arrows2");
        ClickIslands({{1, 1}, {1, 21}});
    }

    /// Opens the chooser and does something there.
    void Choose(const std::function<void(Chooser&, QTableView&)>& act) {
        Expect("Chooser", [&](QDialog& dialog) {
            auto& chooser = dynamic_cast<Chooser&>(dialog);
            act(chooser, Of<QTableView>(chooser, "ChooserPuzzles"));
        });
        Trigger("mnuchoose");
    }
};

/// The texts of the puzzles that the chooser shows once it knows all there is to know.
QString ShownIn(QTableView& table) {
    const auto texts = [&] {
        QStringList all;
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            for (int col = 0; col < table.model()->columnCount(); ++col) {
                const QString text = table.model()->index(row, col).data(Qt::AccessibleTextRole).toString();
                if (!text.isEmpty()) all += text;
            }
        }
        return all.join("; ");
    };
    QString last;
    // The file may have been written too short a time ago to be trusted, and grades take theirs.
    for (int quiet = 0; quiet < 3; last == texts() ? ++quiet : quiet = 0) {
        last = texts();
        QTest::qWait(100);
    }
    return last;
}

TEST(Chooser, ShowsWhatIsKnownOfEachPuzzle) {
    ChooserGame game;
    game.Choose([&](Chooser& chooser, QTableView& table) {
        EXPECT_EQ(
            ShownIn(table).remove(QRegularExpression(", \\d:\\d\\d")).toStdString(),
            "Puzzle 1, 1x5, Very easy, one solution; Puzzle 2, 3x3, several solutions; Puzzle 3, 1x21, Very easy, one "
            "solution, solved; Puzzle 4, not a puzzle; Puzzle 5, 1x5, Very easy, one solution");
        EXPECT_EQ(Of<QLabel>(chooser, "ChooserCount").text(), "5 puzzles");
        EXPECT_EQ(chooser.Chosen(), 3) << "the one on the board";
        table.grab();
    });
    EXPECT_EQ(game.game.collection.PuzzleNumber, 3) << "closed by its frame";
}

TEST(Chooser, FiltersBySizeGradeAndState) {
    ChooserGame game;
    game.Choose([&](Chooser& chooser, QTableView& table) {
        const auto shown = [&](int size, int grade, int state) {
            Of<QComboBox>(chooser, "ChooserSize").setCurrentIndex(size);
            Of<QComboBox>(chooser, "ChooserGrade").setCurrentIndex(grade);
            Of<QComboBox>(chooser, "ChooserState").setCurrentIndex(state);
            return ShownIn(table).remove("Puzzle ").replace(QRegularExpression(",[^;]*"), "").toStdString();
        };
        EXPECT_EQ(shown(4, 0, 0), "3");
        EXPECT_EQ(shown(1, 0, 1), "1; 2; 5");
        EXPECT_EQ(shown(1, 1, 0), "1; 5");
        EXPECT_EQ(shown(0, 4, 0), "");
        EXPECT_EQ(chooser.Chosen(), 0);
        EXPECT_EQ(shown(0, 0, 3), "3");
        EXPECT_EQ(Of<QLabel>(chooser, "ChooserCount").text(), "1 of 5 puzzles");
        EXPECT_EQ(shown(0, 0, 0), "1; 2; 3; 4; 5");
    });
}

TEST(Chooser, OpensWhatWasTypedOrGoneTo) {
    ChooserGame game;
    game.Choose([&](Chooser& chooser, QTableView& table) {
        ShownIn(table);
        QTest::keyClick(&table, Qt::Key_5);
        EXPECT_EQ(chooser.Chosen(), 5);
        QTest::keyClick(&Of(chooser, "ChooserNumber"), Qt::Key_7);
        EXPECT_EQ(chooser.Chosen(), 0) << "there is no 57";
        QTest::keyClick(&Of(chooser, "ChooserNumber"), Qt::Key_Backspace);
        QTest::keyClick(&Of(chooser, "ChooserNumber"), Qt::Key_Return);
    });
    EXPECT_EQ(game.game.collection.PuzzleNumber, 5);
    game.Choose([&](Chooser&, QTableView& table) {
        ShownIn(table);
        QTest::keyClick(&table, Qt::Key_Left);
        QTest::keyClick(&table, Qt::Key_Left);
        QTest::keyClick(&table, Qt::Key_Left);
        QTest::keyClick(&table, Qt::Key_Return);
    });
    EXPECT_EQ(game.game.collection.PuzzleNumber, 2);
}

TEST(Chooser, NoticesThatTheFileIsAnotherOne) {
    ChooserGame game;
    game.Choose([&](Chooser& chooser, QTableView& table) {
        ShownIn(table);
        const auto shows = [&](const QString& count) {
            return QTest::qWaitFor([&] { return Of<QLabel>(chooser, "ChooserCount").text() == count; }, 9000);
        };
        std::filesystem::remove(game.game.collection.CollectionPath);
        EXPECT_TRUE(shows("0 puzzles"));
        game.folder.Write(game.game.collection.CollectionPath, kSeveral + "\n" + kTree + "\n");
        EXPECT_TRUE(shows("2 puzzles"));
        EXPECT_TRUE(ShownIn(table).startsWith("Puzzle 1, 3x3, several solutions; Puzzle 2, 1x5"));
        EXPECT_EQ(chooser.Chosen(), 0);
    });
}

}  // namespace
}  // namespace tidewalk::test
