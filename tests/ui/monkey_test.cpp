// SPDX-License-Identifier: MIT
// Somebody who does anything at any moment to the whole program.
#include <QClipboard>
#include <QFileDialog>
#include <QMetaProperty>
#include <QWheelEvent>
#include <random>

#include "support/invariants.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const QStringList kTexts{"7", "8x9", "7x7", "10", "", "1", "3", "99999", "-1", "x", "9x", "1e9", "2.5", "other.tdw"};
const QStringList kFiles{"collection.tdw", "other.tdw", "grid.txt", "out.pdf", "new", "missing/x.tdw", "puzzles.txt"};
const QStringList kClipboard{"2.2\n...\n2.2\n", "", "no grid", "1.2.1\n.....\n2.4.2", "#0303\n1.1\n"};
const QList kKeys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,
                  Qt::Key_Down,   Qt::Key_Tab,    Qt::Key_1,     Qt::Key_7,     Qt::Key_Delete, Qt::Key_Backspace,
                  Qt::Key_F5,     Qt::Key_F9,     Qt::Key_Plus,  Qt::Key_Minus, Qt::Key_Home,   Qt::Key_End};
const QList kModifiers{Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
const QList kButtons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

/// A puzzle without a stored solution, and one that cannot be solved, among others.
const std::vector<std::string> kRecords{kSmallPuzzle, Record({"2.3.2", ".....", "3.4.3", ".....", "2.3.2"}),
                                        Record({"8.1", "...", "1.."}), kSmallPuzzle};

/// Gives commands, clicks, types, turns the wheel, resizes and closes in the main window, in whatever dialog comes up
/// and in the middle of jobs: the same things again for the same seed.
struct Monkey {
    explicit Monkey(unsigned seed) : random(seed) { StartProgram(); }

    int Draw(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    template <class List>
    const auto& OneOf(const List& list) {
        return *std::next(list.begin(), Draw(static_cast<int>(list.size())));
    }
    void Note(const QString& what) { log = (log + QStringList(QString(depth, '>') + what)).mid(log.size() - 40); }

    void StartProgram() {
        // The old program's folder has to be left before the new one is entered.
        window.reset();
        window = std::make_unique<WindowGame>(kRecords);
        window->lookout = std::make_unique<Lookout>([this] { Look(); });
        window->folder.Write("grid.txt", "#0303\r\n2.2\r\n...\r\n2.2\r\n");
        window->folder.Write("other.tdw", kRecords[1] + "\r\n" + kRecords[0] + "\r\nno puzzle\r\n");
        window->folder.Write("puzzles.txt", kRecords[0] + "\r\n");
    }

    /// Does something in the dialog that is open, or interferes with the job that runs. Dialogs without end are left,
    /// jobs without end cancelled and in the end closed over.
    void Look() {
        const JobState& job = window->game.job;
        const bool deep = depth >= 4;
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        } else if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            ++answers;
            const QString kind = dialog->metaObject()->className();
            Note("answer " + kind);
            // The controls of some dialogs could reach files that are no test's.
            const bool isQts = kind.startsWith("QPrint") || kind.startsWith("QPage") || kind.startsWith("QFile");
            if (++dialogLooks > 25 || deep || Draw(10) == 0 || (isQts && kind != "QFileDialog"))
                return dialog->reject();
            if (isQts) return Choose(window->folder.Path(OneOf(kFiles).toStdString()))(*dialog);
            UseControlOf(*dialog);
        } else if (job.BusyFlag() && !job.Ending()) {
            ++interferences;
            if (++jobLooks > 60) {
                window->form.close();
            } else if (jobLooks > 12) {
                window->Click("cmdcancel");
            } else if (!deep) {
                Act();
            }
        }
    }

    void Act() {
        const int chance = Draw(100);
        if (chance < 35) {
            QAction* const action = OneOf(window->form.findChildren<QAction*>());
            Note("command " + action->objectName());
            ++depth;
            action->trigger();
            --depth;
        } else if (chance < 60 && window->board.puzzle.CellCount() > 0) {
            const Puzzle& puzzle = window->board.puzzle;
            const CellPlace cell = puzzle.PlaceOf(1 + Draw(puzzle.CellCount()));
            Note(QString("cell %1 %2").arg(cell.row).arg(cell.col));
            if (Draw(2) == 0) window->MoveTo(window->At(cell), Draw(4) == 0 ? Qt::LeftButton : Qt::NoButton);
            window->ClickIsland(cell, OneOf(kButtons), OneOf(kModifiers));
        } else if (chance < 95) {
            UseControlOf(window->form);
        } else if (chance < 97) {
            window->form.resize(300 + Draw(500), 300 + Draw(500));
        } else if (chance < 98) {
            QApplication::clipboard()->setText(OneOf(kClipboard));
        } else if (Draw(3) == 0) {
            Note("close");
            window->form.close();
        }
    }

    void UseControlOf(QWidget& form) {
        QList<QWidget*> controls{QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &form};
        for (QWidget* const control : form.findChildren<QWidget*>()) {
            if (control->isVisible() && control->isEnabled()) controls.append(control);
        }
        QWidget& control = *OneOf(controls);
        const QPoint at(Draw(control.width() + 40) - 20, Draw(control.height() + 40) - 20);
        const int chance = Draw(7);
        Note(QString("control %1, %2").arg(control.objectName()).arg(chance));
        ++depth;
        if (auto* const button = qobject_cast<QAbstractButton*>(&control); button != nullptr && chance < 4) {
            QTest::mouseClick(button, OneOf(kButtons));
        } else if (chance < 2) {
            if (const QMetaProperty value = control.metaObject()->userProperty(); value.isValid())
                value.write(&control, OneOf(kTexts));
        } else if (chance < 5) {
            QTest::keyClick(&control, OneOf(kKeys), OneOf(kModifiers));
        } else if (chance < 6) {
            const Qt::MouseButton mouse = OneOf(kButtons);
            if (Draw(4) != 0) QTest::mousePress(&control, mouse, OneOf(kModifiers), at);
            if (Draw(4) != 0) QTest::mouseRelease(&control, mouse, OneOf(kModifiers), at);
        } else {
            QWheelEvent turn(at, control.mapToGlobal(at), {}, {0, 240 * Draw(2) - 120}, {}, OneOf(kModifiers), {},
                             false);
            QApplication::sendEvent(&control, &turn);
        }
        --depth;
    }

    /// Does one more thing and lets it come to its end. Returns what is wrong then.
    std::string Step() {
        jobLooks = dialogLooks = 0;
        Act();
        // What a click has only set going, such as a click on a button in its animation, ends here.
        QCoreApplication::processEvents();
        for (int i = 0; i < 3 && (QApplication::activeModalWidget() != nullptr || window->game.job.BusyFlag()); ++i)
            QCoreApplication::processEvents();
        std::string wrong = CheckInvariants(window->game);
        if (window->game.job.Ending()) {
            if (!window->ended) wrong += "the program was closed but goes on\n";
            if (!wrong.empty()) return wrong;
            ++ends;
            StartProgram();
        }
        // No handler runs between two steps, so nothing of a job may be left.
        if (window->game.job.BusyFlag()) wrong += "a job is left\n";
        if (QApplication::overrideCursor() != nullptr) wrong += "the busy pointer is left\n";
        if (!window->view.updatesEnabled()) wrong += "the board stays frozen\n";
        if (!window->form.isVisible()) wrong += "the main window is gone\n";
        // AutoSolve's solution shows until the board is drawn again.
        const QImage picture = Draw(5) == 0 ? window->Bare() : QImage();
        const bool fresh = picture.isNull() || picture == window->Fresh(false) || picture == window->Fresh(true);
        return fresh ? wrong : wrong + "a fresh redraw looks otherwise\n";
    }

    std::mt19937 random;
    std::unique_ptr<WindowGame> window;
    QStringList log;
    int jobLooks = 0;
    int dialogLooks = 0;
    int depth = 0;
    int interferences = 0;
    int answers = 0;
    int ends = 0;
};

TEST(Monkey, NothingThatIsDoneAtAnyMomentBreaksTheGame) {
    // It has to be repeatable and short enough for every build; other seeds can be tried by hand.
    const int seed = qEnvironmentVariable("TIDEWALK_MONKEY_SEED", "20260607").toInt();
    Monkey monkey(static_cast<unsigned>(seed));
    for (int step = 1; step <= 2000; ++step) {
        const std::string faults = monkey.Step();
        ASSERT_EQ(faults, "") << "seed " << seed << ", step " << step << ", what was done last:\n"
                              << monkey.log.join('\n').toStdString();
    }
    // A monkey that was locked out would find nothing.
    EXPECT_GT(monkey.interferences, 100);
    EXPECT_GT(monkey.answers, 300);
    EXPECT_GT(monkey.ends, 5);
    RecordProperty("interferences", monkey.interferences);
    RecordProperty("answers", monkey.answers);
    RecordProperty("ends", monkey.ends);
}

}  // namespace
}  // namespace tidewalk::test
