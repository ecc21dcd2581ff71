// SPDX-License-Identifier: MIT
#include "ui/form2.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolTip>

#include "options/colour_scheme.h"
#include "ui/colours.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

constexpr int kDarker = 1;
constexpr int kLighter = 2;
constexpr Colour kNearlyWhite = Rgb(254, 254, 254);  ///< a button's white, where white itself stands for no colour

}  // namespace

Form2::Form2(Handlers& handlers, QWidget* parent)
    : QDialog(parent),
      handlers_(handlers),
      combo1_(new QComboBox),
      colPik1_(new ColPik),
      line1_(new Swatch(Swatch::Shape::Bridge, "Line1")),
      line2_(new Swatch(Swatch::Shape::ThinLine, "Line2")),
      label1_(new Swatch(Swatch::Shape::Number, "Label1")),
      label2_(new Swatch(Swatch::Shape::Island, "Label2")),
      text3_(new QLineEdit),
      option1_(new QRadioButton("S&quare")),
      option2_(new QRadioButton("&Circle")),
      check1_(new QCheckBox("Sho&w")) {
    setObjectName("Form2");
    setWindowTitle("Tide Options");
    auto* const small = new QHBoxLayout;
    small->addWidget(NodeShapeBox());
    small->addWidget(LinesBox());
    small->addWidget(PrintBox());
    auto* const all = new QVBoxLayout(this);
    all->addWidget(SchemeBox());
    all->addWidget(ColoursBox());
    all->addLayout(small);
    auto* const play = new QHBoxLayout;
    play->addWidget(MistakesBox());
    play->addWidget(PlayBox());
    all->addLayout(play);
    all->addStretch();
    all->addLayout(ButtonRow());
    connect(&handlers_, &Handlers::Ending, this, &QDialog::reject);
}

QPushButton* Form2::AddButton(const char* name, const QString& text, const QString& toolTip) {
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    GiveToolTip(*button, toolTip);
    button->setAutoDefault(false);
    return button;
}

QWidget* Form2::SchemeBox() {
    auto* const box = new QGroupBox(tr("Colo&ur scheme"));
    auto* const row = new QHBoxLayout(box);
    combo1_->setObjectName("Combo1");
    GiveToolTip(*combo1_, tr("Colour scheme|The colours of the windows"));
    combo1_->setAccessibleName(tr("Colour scheme"));
    row->addWidget(combo1_, 1);
    for (const int index : {kDarker, kLighter}) {
        const bool lighter = index == kLighter;
        auto* const button =
            AddButton(lighter ? "cmdadjust42" : "cmdadjust41", lighter ? tr("&Lighter") : tr("&Darker"),
                      lighter ? tr("Make buttons and frames lighter") : tr("Make buttons and frames darker"));
        button->setAutoRepeat(true);
        connect(button, &QPushButton::clicked, this, [this, index] { AdjustBrightness(index); });
        row->addWidget(button);
    }
    connect(combo1_, &QComboBox::textActivated, this, &Form2::ChooseScheme);
    return box;
}

QWidget* Form2::ColoursBox() {
    auto* const box = new QGroupBox(tr("Board colours"));
    auto* const layout = new QGridLayout(box);
    AddColourRow(layout, AddButton("cmdgridcol", tr("&Grid"), "Set grid colour|Select colour first"), line2_,
                 cmdgridcol_Click);
    AddColourRow(layout, AddButton("cmdchaincol", tr("C&hain"), "Set chain colour|Select colour first"), line1_,
                 cmdchaincol_Click);
    AddColourRow(layout,
                 AddButton("cmdgivenfg", tr("Gi&ven numbers"), "Set colour of given numbers|Select colour first"),
                 label1_, cmdgivenfg_Click);
    AddColourRow(layout, AddButton("cmdnodecol", tr("&Nodes"), "Set node colour|Select colour first"), label2_,
                 cmdnodecol_Click);
    colPik1_->setObjectName("ColPik1");
    layout->setColumnMinimumWidth(2, 16);
    layout->addWidget(colPik1_, 0, 3, 4, 1);
    layout->setColumnStretch(3, 1);
    return box;
}

void Form2::AddColourRow(QGridLayout* layout, QPushButton* button, Swatch* swatch, ColourButton routine) {
    const int row = layout->rowCount() - (layout->count() == 0 ? 1 : 0);
    swatch->setToolTip(tr("Take this colour into the picker"));
    swatch->setAccessibleName(button->text().remove('&'));
    layout->addWidget(button, row, 0);
    layout->addWidget(swatch, row, 1);
    connect(swatch, &Swatch::clicked, this, [this, swatch] { colPik1_->Select(swatch->Value()); });
    connect(button, &QPushButton::clicked, this, [this, button, routine] {
        TakeControls();
        if (!routine(form_, colPik1_->Selected())) {
            QToolTip::showText(button->mapToGlobal(button->rect().bottomLeft()), button->toolTip(), button);
        }
        ShowForm();
    });
}

QWidget* Form2::NodeShapeBox() {
    auto* const box = new QGroupBox("Node shape");
    auto* const layout = new QVBoxLayout(box);
    option1_->setObjectName("Option1");
    option2_->setObjectName("Option2");
    layout->addWidget(option1_);
    layout->addWidget(option2_);
    connect(option2_, &QRadioButton::toggled, this, [this] {
        TakeControls();
        ShowForm();
    });
    return box;
}

QWidget* Form2::LinesBox() {
    auto* const box = new QGroupBox("Show lines between cells");
    auto* const layout = new QVBoxLayout(box);
    check1_->setObjectName("Check1");
    layout->addWidget(check1_);
    AddKept(layout, "StoredLinesOnly", &Options::StoredLinesOnly, tr("Stored bridges onl&y"),
            tr("Show lines only where the stored solution has bridges"));
    layout->addStretch();
    return box;
}

/// A box for an option that is kept by name.
void Form2::AddKept(QLayout* layout, const char* name, bool Options::*value, const QString& text,
                    const QString& toolTip) {
    auto* const box = new QCheckBox(text);
    box->setObjectName(name);
    GiveToolTip(*box, toolTip);
    layout->addWidget(box);
    kept_.emplace_back(box, value);
}

QWidget* Form2::MistakesBox() {
    auto* const box = new QGroupBox(tr("Show on the board"));
    auto* const layout = new QVBoxLayout(box);
    AddKept(layout, "Check2", &Options::ShowFinished, tr("&Finished islands paler"),
            tr("Show islands with all their bridges paler"));
    AddKept(layout, "ShowOverfull", &Options::ShowOverfull, tr("Too &many bridges"),
            tr("Put a box around an island with more bridges than its number"));
    AddKept(layout, "ShowCrossings", &Options::ShowCrossings, tr("Cro&ssings"),
            tr("Put a diamond where bridges cross or run over an island"));
    AddKept(layout, "ShowClosedGroups", &Options::ShowClosedGroups, tr("Closed grou&ps"),
            tr("Put brackets at the islands of a finished group while others remain"));
    layout->addStretch();
    return box;
}

QWidget* Form2::PlayBox() {
    auto* const box = new QGroupBox(tr("Play"));
    auto* const layout = new QVBoxLayout(box);
    AddKept(layout, "KeepPlay", &Options::KeepPlay, tr("Keep play for ne&xt time"),
            tr("Bring bridges, marks and moves back with the puzzle"));
    AddKept(layout, "ShowTime", &Options::ShowTime, tr("Show time spent on pu&zzle"),
            tr("Show the time spent on the puzzle in the status line"));
    AddKept(layout, "StrictCheck", &Options::StrictCheck, tr("Strict chec&k"),
            tr("Check looks at crossings and groups, too"));
    layout->addStretch();
    return box;
}

QWidget* Form2::PrintBox() {
    auto* const box = new QGroupBox(tr("Printed line w&idth"));
    auto* const layout = new QVBoxLayout(box);
    text3_->setObjectName("Text3");
    GiveToolTip(*text3_, "Set line width for printer puzzles");
    text3_->setAccessibleName(text3_->accessibleDescription());
    text3_->setValidator(new QIntValidator(1, kWidestPrintLine, text3_));
    layout->addWidget(text3_);
    layout->addStretch();
    return box;
}

QLayout* Form2::ButtonRow() {
    auto* const row = new QHBoxLayout;
    auto* const reset = AddButton("reset", tr("Rese&t"), "Apply default options and exit");
    auto* const apply = AddButton("command1", tr("&Apply"), tr("Apply the options and close"));
    auto* const close = AddButton("command2", tr("Cl&ose"), tr("Close and leave the options as they were"));
    apply->setDefault(true);
    row->addWidget(reset);
    row->addStretch();
    row->addWidget(apply);
    row->addWidget(close);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(apply, &QPushButton::clicked, this, [this] {
        TakeControls();
        handlers_.Run([this](Game& game) { command1_Click(game, form_); });
        accept();
    });
    connect(reset, &QPushButton::clicked, this, [this] {
        handlers_.Run([this](Game& game) { reset_Click(game, form_); });
        accept();
    });
    return row;
}

void Form2::AdjustBrightness(int index) {
    TakeControls();
    // Where a button has the desktop's colour, that is what is made lighter or darker, and no white that stands for it.
    Colour& face = form_.draft.SchemeColours[static_cast<std::size_t>(form_.draft.AdjustIndex)];
    if (const Game* const game = handlers_.game()) face = FormColours(*game, form_).face;
    cmdadjust4_Click(form_, index);
    if (face == kWhite && IsDefaultScheme(form_.draft.ColourSchemeName))
        face = form_.draft.SchemeColours[kAdjustedEntry] = kNearlyWhite;
    ShowForm();
}

void Form2::ChooseScheme(const QString& name) {
    TakeControls();
    handlers_.Run([&](Game& game) { Combo1_Click(game, form_, name.toStdString()); });
    ShowForm();
}

/// What the player typed and ticked goes into the form before a routine looks at it.
void Form2::TakeControls() {
    form_.Text3 = text3_->text().toStdString();
    form_.Option2 = option2_->isChecked();
    form_.Check1 = check1_->isChecked();
    for (const auto& [box, value] : kept_)
        form_.draft.*value = box->isChecked();
}

void Form2::ShowForm() {
    const QSignalBlocker quietCombo(combo1_);
    const QSignalBlocker quietOption(option2_);
    combo1_->setCurrentText(QString::fromStdString(form_.Combo1));
    text3_->setText(QString::fromStdString(form_.Text3));
    option1_->setChecked(!form_.Option2);
    option2_->setChecked(form_.Option2);
    check1_->setChecked(form_.Check1);
    for (const auto& [box, value] : kept_)
        box->setChecked(form_.draft.*value);
    const Colour background = form_.draft.BoardBackground();
    line1_->Show(form_.Line1, background, form_.Label2, form_.Option2);
    line2_->Show(form_.Line2, background, form_.Label2, form_.Option2);
    label1_->Show(form_.Label1, background, form_.Label2, form_.Option2);
    label2_->Show(form_.Label2, background, form_.Label2, form_.Option2);
    // The window wears the scheme that is chosen, before the others do.
    if (const Game* const game = handlers_.game()) ColourFrame(*this, FormColours(*game, form_));
}

void Form2::Open() {
    const Game* const game = handlers_.game();
    if (game == nullptr || isVisible()) return;
    form_ = OpenOptions(*game);
    combo1_->clear();
    for (const std::string& name : form_.schemes)
        combo1_->addItem(QString::fromStdString(name));
    colPik1_->Clear();
    ShowForm();
    exec();
}

}  // namespace tidewalk
