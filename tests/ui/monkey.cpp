// SPDX-License-Identifier: MIT
#include "monkey.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QWheelEvent>
#include <array>

#include "model/job.h"
#include "support/invariants.h"

namespace tidewalk::test {

namespace {

constexpr int kDeepest = 4;       ///< so many things at most are done one inside another
constexpr int kJobPatience = 12;  ///< looks at a job before it is cancelled
constexpr int kJobLimit = 60;     ///< looks at a job before the window is closed over it
constexpr int kDialogLimit = 25;  ///< looks at dialogs before every one of them is left
constexpr std::size_t kLogLines = 40;

const std::array kTexts{"7", "8x9", "7x7", "10", "", "1", "3", "99999", "-1", "x", "9x", "1e9", "abc", "2.5"};
const std::array kFiles{"collection.tdw", "other.tdw", "grid.txt", "out.pdf", "new", "missing/x.tdw", "puzzles.txt"};
const std::array kClipboard{"2.2\n...\n2.2\n", "", "no grid", "1.2.1\n.....\n2.4.2", "#0303\n1.1\n"};
const std::array kKeys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,
                       Qt::Key_Down,   Qt::Key_Tab,    Qt::Key_1,     Qt::Key_7,     Qt::Key_Delete, Qt::Key_Backspace,
                       Qt::Key_F5,     Qt::Key_F9,     Qt::Key_Plus,  Qt::Key_Minus, Qt::Key_Home,   Qt::Key_End};
const std::array kModifiers{Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
const std::array kButtons{Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

/// A puzzle without a stored solution, and one that cannot be solved.
const std::vector<std::string> kRecords{kSmallPuzzle, Record({"2.3.2", ".....", "3.4.3", ".....", "2.3.2"}),
                                        Record({"8.1", "...", "1.."}), kSmallPuzzle};

}  // namespace

Monkey::Monkey(unsigned seed) : seed_(seed), random_(seed) {
    StartProgram();
    LookAgain();
}

void Monkey::Note(const std::string& what) {
    log_.push_back(std::string(static_cast<std::size_t>(depth_), '>') + what);
    if (log_.size() > kLogLines) log_.pop_front();
}

void Monkey::StartProgram() {
    // The old program's folder has to be left before the new one is entered.
    window_.reset();
    window_ = std::make_unique<WindowGame>(kRecords);
    std::string grids;
    for (const char* const line : {"#0303", "2.2", "...", "2.2"})
        grids += std::string(line) + "\r\n";
    window_->folder.Write("grid.txt", grids);
    window_->folder.Write("other.tdw", kRecords[1] + "\r\n" + kRecords[0] + "\r\nno puzzle\r\n");
    window_->folder.Write("puzzles.txt", kRecords[0] + "\r\n");
}

/// Looks again as soon as events are let through, also by a dialog or a job that a look has started: a timer that
/// repeats would wait for its own look to end.
void Monkey::LookAgain() {
    QTimer::singleShot(0, &context_, [this] {
        LookAgain();
        Look();
    });
}

void Monkey::Look() {
    if (window_ == nullptr) return;
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) return Answer(*dialog);
    if (JobRuns(window_->game()) && !window_->game().ending) Interfere();
}

/// What a player may do who sees a job run.
void Monkey::Interfere() {
    ++looksAtJob_;
    if (looksAtJob_ > kJobLimit) {
        Note("close over a job");
        window_->form().close();
        return;
    }
    ++interferences;
    if (looksAtJob_ > kJobPatience) {
        Note("cancel");
        window_->ClickButton("cmdcancel");
        return;
    }
    if (depth_ < kDeepest) ActByChance();
}

void Monkey::ActByChance() {
    ++depth_;
    const int chance = Draw(100);
    if (chance < 35) {
        GiveCommand();
    } else if (chance < 65) {
        ClickBoard();
    } else if (chance < 78) {
        QWidget* const focus = QApplication::focusWidget();
        PressKey(focus != nullptr ? focus : &window_->form());
    } else if (chance < 88) {
        TypeIntoBox();
    } else if (chance < 93) {
        TurnWheel();
    } else if (chance < 97) {
        Resize();
    } else if (chance < 98) {
        QApplication::clipboard()->setText(OneOf(kClipboard));
    } else if (Draw(3) == 0) {
        Note("close");
        window_->form().close();
    }
    --depth_;
}

void Monkey::GiveCommand() {
    const Command& command = OneOf(Commands());
    if (command.IsSeparator() || !command.IsEnabled()) return;
    const QString name = command.ObjectName();
    const bool menu = *command.menu != '\0' && (command.bar == 0 || Draw(2) == 0);
    Note("command " + name.toStdString());
    if (menu) {
        window_->Find<QAction>(name.toLatin1()).trigger();
    } else if (*command.icon != '\0') {
        window_->ClickButton(name.toLatin1(), OneOf(kButtons));
    }
}

void Monkey::ClickBoard() {
    const Game& game = window_->game();
    QPoint at(Draw(800) - 50, Draw(800) - 50);
    if (game.CellCount > 0 && Draw(4) != 0) {
        const CellNumber id = 1 + Draw(game.CellCount);
        at = {qRound(game.IslandX[id] / kTwipsPerPixel), qRound(game.IslandY[id] / kTwipsPerPixel)};
    }
    const Qt::MouseButton button = OneOf(kButtons);
    Note("board " + std::to_string(at.x()) + " " + std::to_string(at.y()));
    window_->MoveTo(at, Draw(8) == 0 ? Qt::LeftButton : Qt::NoButton);
    const Qt::KeyboardModifiers modifiers = OneOf(kModifiers);
    const int kind = Draw(8);
    if (kind != 0) QTest::mousePress(&window_->board(), button, modifiers, at);
    if (kind != 1) QTest::mouseRelease(&window_->board(), button, modifiers, at);
    if (kind == 2) QTest::mouseClick(&window_->form().Container(), button, modifiers, QPoint(2, 2));
}

void Monkey::PressKey(QWidget* target) {
    const Qt::Key key = OneOf(kKeys);
    Note("key " + std::to_string(key));
    QTest::keyClick(target, key, OneOf(kModifiers));
}

void Monkey::TypeIntoBox() {
    const std::string box = Draw(2) == 0 ? "PuzNumNow" : "GridSize";
    auto& edit = window_->Find<QLineEdit>(box.c_str());
    const std::string text = OneOf(kTexts);
    Note("type " + text + " into " + box);
    edit.setText(QString::fromStdString(text));
    QTest::keyClick(&edit, Qt::Key_Return);
}

void Monkey::TurnWheel() {
    Note("wheel");
    const QPoint at(Draw(300), Draw(300));
    const QPoint turn(0, Draw(2) == 0 ? 120 : -120);
    QWheelEvent event(at, window_->board().mapToGlobal(at), {}, turn, Qt::NoButton, OneOf(kModifiers),
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&window_->board(), &event);
}

void Monkey::Resize() {
    const int side = 300 + Draw(500);
    Note("size " + std::to_string(side));
    window_->form().resize(side, 300 + Draw(500));
}

void Monkey::Answer(QDialog& dialog) {
    ++answers;
    // Whoever opens dialogs from dialogs without end is taken out of them.
    if (++looksAtDialogs_ > kDialogLimit || depth_ >= kDeepest) {
        dialog.reject();
        return;
    }
    ++depth_;
    const std::string kind = dialog.metaObject()->className();
    Note("answer " + kind);
    if (auto* const files = qobject_cast<QFileDialog*>(&dialog)) {
        AnswerFileDialog(*files);
    } else if (kind.starts_with("QPrint") || kind.starts_with("QPage") || Draw(10) == 0) {
        dialog.reject();
    } else {
        UseControl(dialog);
    }
    --depth_;
}

/// A name in the program's own folder; the dialog's other controls could reach files that are no test's.
void Monkey::AnswerFileDialog(QFileDialog& dialog) {
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (name == nullptr || Draw(4) == 0) return dialog.reject();
    const std::string file = OneOf(kFiles);
    Note("file " + file);
    name->setText(QString::fromStdString(window_->folder.Path(file)));
    // `accept` is no public name of this dialog but it is one of every dialog.
    static_cast<QDialog&>(dialog).accept();
}

void Monkey::UseControl(QDialog& dialog) {
    QList<QWidget*> controls;
    for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
        if (widget->isVisible() && widget->isEnabled()) controls.append(widget);
    }
    if (controls.isEmpty()) return dialog.reject();
    QWidget* const control = controls.at(Draw(static_cast<int>(controls.size())));
    const int chance = Draw(4);
    if (auto* const button = qobject_cast<QAbstractButton*>(control)) {
        Note("press " + button->text().toStdString());
        button->click();
    } else if (auto* const edit = qobject_cast<QLineEdit*>(control); edit != nullptr && chance != 0) {
        const std::string text = Draw(3) == 0 ? window_->folder.Path(OneOf(kFiles)) : OneOf(kTexts);
        Note("type " + text);
        edit->setText(QString::fromStdString(text));
    } else if (auto* const choice = qobject_cast<QComboBox*>(control); choice != nullptr && choice->count() > 0) {
        choice->setCurrentIndex(Draw(choice->count()));
    } else if (auto* const spin = qobject_cast<QSpinBox*>(control)) {
        spin->setValue(1 + Draw(25));
    } else if (chance == 1) {
        QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(Draw(control->width() + 1), Draw(control->height() + 1)));
    } else {
        PressKey(control);
    }
}

bool Monkey::Step() {
    looksAtJob_ = 0;
    looksAtDialogs_ = 0;
    ActByChance();
    QCoreApplication::processEvents();
    // What a click has only set going, such as a click on a button in its animation, ends here.
    for (int i = 0; i < 3 && !IsQuiet(); ++i)
        QCoreApplication::processEvents();
    const bool whole = Check();
    if (whole && window_->game().ending) {
        ++ends;
        StartProgram();
    }
    return whole;
}

bool Monkey::IsQuiet() {
    return QApplication::activeModalWidget() == nullptr && !JobRuns(window_->game());
}

bool Monkey::Check() {
    std::string wrong = CheckInvariants(window_->game());
    if (window_->game().ending) {
        if (!window_->ended) wrong += "the program was closed but goes on\n";
    } else {
        // No handler runs between two steps, so nothing of a job may be left.
        if (JobRuns(window_->game())) wrong += "a job is left\n";
        if (QApplication::overrideCursor() != nullptr) wrong += "the busy pointer is left\n";
        if (!window_->board().updatesEnabled()) wrong += "the board stays frozen\n";
        if (!window_->form().isVisible()) wrong += "the main window is gone\n";
    }
    if (wrong.empty()) return true;
    std::string log;
    for (const std::string& line : log_)
        log += line + "\n";
    ADD_FAILURE() << wrong << "seed " << seed_ << ", what was done last:\n" << log;
    return false;
}

}  // namespace tidewalk::test
