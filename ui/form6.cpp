// SPDX-License-Identifier: MIT
#include "ui/form6.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include "ui/fit_on_screen.h"
#include "ui/tool_tip.h"

namespace tidewalk {

Form6::Form6(Handlers& handlers, QWidget* parent)
    : QDialog(parent), handlers_(handlers), view_(new NumberGridView(grid_)) {
    setObjectName("Form6");
    setWindowTitle("Edit Number Values");
    view_->setObjectName("NumberGrid");
    auto* const sizes = new QHBoxLayout;
    AddSizes(sizes);
    sizes->addStretch();
    auto* const left = new QVBoxLayout;
    left->addLayout(sizes);
    left->addWidget(view_, 1);
    auto* const hint = new QLabel(tr("1 to 8 set an island; 0, a full stop or a blank set water."));
    hint->setWordWrap(true);
    left->addWidget(hint);
    auto* const buttons = new QVBoxLayout;
    AddButtons(buttons);
    auto* const all = new QHBoxLayout(this);
    all->addLayout(left, 1);
    all->addLayout(buttons);
    connect(&handlers_, &Handlers::Ending, this, &QDialog::reject);
}

QSpinBox* Form6::AddSize(const char* name, int cells) {
    auto* const box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(1, kMaxSide);
    box->setValue(cells);
    connect(box, &QSpinBox::valueChanged, this, [this] {
        grid_.Resize(rows_->value(), cols_->value());
        view_->update();
    });
    return box;
}

void Form6::AddSizes(QLayout* row) {
    rows_ = AddSize("SpinRows", grid_.Rows());
    cols_ = AddSize("SpinCols", grid_.Cols());
    for (const auto& [text, box] : {std::pair{tr("&Rows"), rows_}, std::pair{tr("&Columns"), cols_}}) {
        auto* const label = new QLabel(text);
        label->setBuddy(box);
        row->addWidget(label);
        row->addWidget(box);
    }
}

QPushButton* Form6::AddButton(const char* name, const QString& text, const QString& toolTip) {
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    GiveToolTip(*button, toolTip);
    // Enter belongs to the grid; it must not press a button that the player does not look at.
    button->setAutoDefault(false);
    return button;
}

void Form6::AddButtons(QVBoxLayout* column) {
    const auto add = [&](const char* name, const QString& text, const QString& toolTip, auto routine) {
        QPushButton* const button = AddButton(name, text, toolTip);
        connect(button, &QPushButton::clicked, this, [this, routine] {
            handlers_.Run([&](Game& game) { routine(game); });
            ShowGrid();
        });
        column->addWidget(button);
    };
    add("cmduse", tr("&Use"), tr("Make this grid the puzzle in the main window"), [this](Game& game) {
        if (UseNumberGrid(game, grid_)) accept();
    });
    add("cmdload6", tr("&Load ..."), tr("Read a grid from a file"),
        [this](Game& game) { LoadNumberGrid(game, grid_); });
    add("cmdsave6", tr("&Save ..."), tr("Write this grid to a file"),
        [this](Game& game) { SaveNumberGrid(game, grid_); });
    add("cmdcurrent", tr("Current &Puzzle"), tr("Take the numbers of the puzzle in the main window"),
        [this](Game& game) { EditCurrentPuzzle(game, grid_); });
    add("cmdclear", tr("Cl&ear"), tr("Make every cell water"), [this](Game&) { grid_.Clear(); });
    column->addStretch();
    add("cmdclose", tr("Cl&ose"), tr("Close and keep what was typed"), [this](Game&) { reject(); });
}

/// The grid may have another size now.
void Form6::ShowGrid() {
    const QSignalBlocker quietRows(rows_);
    const QSignalBlocker quietCols(cols_);
    rows_->setValue(grid_.Rows());
    cols_->setValue(grid_.Cols());
    view_->update();
    view_->setFocus();
}

void Form6::Open() {
    if (isVisible()) return;
    ShowGrid();
    FitOnScreen(*this);
    exec();
}

}  // namespace tidewalk
