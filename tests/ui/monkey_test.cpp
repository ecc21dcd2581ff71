// SPDX-License-Identifier: MIT
// Somebody who does anything at any moment to the whole program.
#include <QFileDialog>
#include <QMetaProperty>
#include <random>

#include "board/show_board.h"
#include "support/invariants.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

const QStringList kTexts{"7", "8x9", "", "1", "3", "99999", "-1", "x", "1e9", "2.5", "other.tdw"};
const QStringList kFiles{"collection.tdw", "other.tdw", "out.pdf", "new", "missing/x.tdw"};
const QList kKeys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Left, Qt::Key_Right,
                  Qt::Key_Up,     Qt::Key_Down,   Qt::Key_X,     Qt::Key_Tab,  Qt::Key_7,
                  Qt::Key_Delete, Qt::Key_F5,     Qt::Key_F9};
const QList kModifiers{Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
const QList kButtons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

/// A puzzle without a stored solution, and one that cannot be solved, among others.
const std::vector<std::string> kRecords{kSmallPuzzle, Record({"2.3.2", ".....", "3.4.3", ".....", "2.3.2"}),
                                        Record({"8.1", "...", "1.."}), kSmallPuzzle};

/// Gives commands, clicks, types, resizes and closes in the main window, in whatever dialog comes up and in the middle
/// of jobs: the same things again for the same seed.
struct Monkey {
    explicit Monkey(unsigned seed) : random(seed) { StartProgram(); }

    int Draw(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
    template <class List>
    const auto& OneOf(const List& list) {
        return *std::next(list.begin(), Draw(static_cast<int>(list.size())));
    }

    void StartProgram() {
        // The old program's folder has to be left before the new one is entered.
        window.reset();
        window = std::make_unique<WindowGame>(kRecords);
        window->lookout = std::make_unique<Lookout>([this] {
            ++depth;
            Look();
            --depth;
        });
        window->folder.Write("other.tdw", kRecords[1] + "\r\n" + kRecords[0] + "\r\nno puzzle\r\n");
    }

    /// Does something in the dialog that is open, or interferes with the job that runs. Dialogs without end are left,
    /// jobs without end cancelled and in the end closed over.
    void Look() {
        const JobState& job = window->game.job;
        const bool deep = depth > 4;
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        } else if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            // The controls of Qt's own dialogs could reach files that are no test's.
            const QString kind = dialog->metaObject()->className();
            ++looks;
            if (++dialogLooks > 25 || deep || Draw(10) == 0 || kind.startsWith("QP")) return dialog->reject();
            if (kind == "QFileDialog") return Choose(window->folder.Path(OneOf(kFiles).toStdString()))(*dialog);
            UseControlOf(*dialog);
        } else if (job.BusyFlag() && !job.Ending()) {
            ++looks;
            if (++jobLooks > 60) window->form.close();
            jobLooks > 12 || deep ? window->Click("cmdcancel") : Act();
        }
    }

    void Act() {
        const int chance = Draw(100);
        if (chance < 35) {
            OneOf(window->form.findChildren<QAction*>())->trigger();
        } else if (chance < 60 && window->board.puzzle.CellCount() > 0) {
            const CellPlace cell = window->board.puzzle.PlaceOf(1 + Draw(window->board.puzzle.CellCount()));
            window->ClickIsland(cell, OneOf(kButtons), OneOf(kModifiers));
        } else if (chance < 65 && window->board.puzzle.CellCount() > 0) {
            Drag();
        } else if (chance < 97) {
            UseControlOf(window->form);
        } else if (chance < 99) {
            window->form.resize(300 + Draw(500), 300 + Draw(500));
        } else if (Draw(3) == 0) {
            window->form.close();
        }
    }

    /// Draws from one cell to another; whatever comes in between may let the release go elsewhere.
    void Drag() {
        const auto cell = [&] {
            return window->At(window->board.puzzle.PlaceOf(1 + Draw(window->board.puzzle.CellCount())));
        };
        QTest::mousePress(&window->view, Qt::LeftButton, {}, cell());
        for (int i = Draw(3); i >= 0; --i)
            window->MoveTo(cell(), Qt::LeftButton);
        const int chance = Draw(6);
        if (chance == 0) QTest::keyClick(&window->view, Qt::Key_Escape);
        if (chance == 1) OneOf(window->form.findChildren<QAction*>())->trigger();
        if (chance != 2) QTest::mouseRelease(&window->view, Qt::LeftButton, OneOf(kModifiers), cell());
    }

    void UseControlOf(QWidget& form) {
        QList<QWidget*> controls{QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : &form};
        for (QWidget* const control : form.findChildren<QWidget*>()) {
            if (control->isVisible() && control->isEnabled()) controls.append(control);
        }
        QWidget& control = *OneOf(controls);
        const QMetaProperty value = control.metaObject()->userProperty();
        const int chance = Draw(6);
        if (chance < 2) {
            QTest::keyClick(&control, OneOf(kKeys), OneOf(kModifiers));
        } else if (value.isValid() && chance < 4) {
            value.write(&control, OneOf(kTexts));
        } else {
            // A press or a release alone comes where a dialog opens in between. Qt itself loses a little memory with a
            // panel that is still held when its window goes.
            const bool releases = Draw(8) != 0 || control.inherits("QDockWidget");
            const QPoint at(Draw(control.width()), Draw(control.height()));
            if (Draw(8) != 0) QTest::mousePress(&control, Qt::LeftButton, OneOf(kModifiers), at);
            if (releases) QTest::mouseRelease(&control, Qt::LeftButton, OneOf(kModifiers), at);
        }
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
        const QImage shown = window->view.grab().toImage();
        bool same = false;
        for (const bool solution : {true, false}) {
            RedrawBoard(window->game, solution);
            same = same || shown == window->view.grab().toImage();
        }
        return same ? wrong : wrong + "a redraw looks otherwise\n";
    }

    std::mt19937 random;
    std::unique_ptr<WindowGame> window;
    int jobLooks = 0;
    int dialogLooks = 0;
    int depth = 0;
    int looks = 0;
    int ends = 0;
};

TEST(Monkey, NothingThatIsDoneAtAnyMomentBreaksTheGame) {
    // It has to be repeatable and short enough for every build; other seeds can be tried by hand.
    const int seed = qEnvironmentVariable("TIDEWALK_MONKEY_SEED", "20260607").toInt();
    Monkey monkey(static_cast<unsigned>(seed));
    for (int step = 1; step <= 1500; ++step)
        ASSERT_EQ(monkey.Step(), "") << "seed " << seed << ", step " << step;
    // A monkey that was locked out would find nothing.
    EXPECT_GT(monkey.looks, 400);
    EXPECT_GT(monkey.ends, 5);
}

}  // namespace
}  // namespace tidewalk::test
