// SPDX-License-Identifier: MIT
#include "ui/form2.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QInputDialog>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>

#include "options/colour_scheme.h"
#include "ui/colour_preview.h"
#include "ui/colours.h"
#include "ui/tool_tip.h"
#include "ui/window_colours_box.h"

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
      check1_(new QCheckBox("Sho&w")),
      windowColours_(new WindowColoursBox),
      preview_(new ColourPreview),
      previewNote_(new QLabel) {
    setObjectName("Form2");
    setWindowTitle("Tide Options");
    auto* const all = new QGridLayout(this);
    all->addWidget(settings_ = Settings(), 0, 0);
    all->addLayout(PreviewColumn(), 0, 1);
    all->addLayout(ButtonRow(), 1, 0, 1, 2);
    all->setColumnStretch(0, 1);
    connect(&handlers_, &Handlers::Ending, this, &QDialog::reject);
    connect(colPik1_, &ColPik::Picked, this, &Form2::ChangeInPicker);
    for (QAbstractButton* const button : settings_->findChildren<QAbstractButton*>()) {
        if (qobject_cast<QCheckBox*>(button) == nullptr) continue;
        connect(button, &QAbstractButton::clicked, this, [this] {
            TakeControls();
            ShowForm();
        });
    }
}

QBoxLayout* Form2::FoldingRow() {
    folding_.push_back(new QHBoxLayout);
    return folding_.back();
}

/// Everything that is set, scrolled where the screen is too small for it.
QScrollArea* Form2::Settings() {
    auto* const page = new QWidget;
    auto* const all = new QVBoxLayout(page);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(SchemeBox());
    all->addWidget(ColoursBox());
    all->addWidget(WindowColoursPart());
    auto* const small = FoldingRow();
    small->addWidget(NodeShapeBox());
    small->addWidget(LinesBox());
    small->addWidget(PrintBox());
    all->addLayout(small);
    auto* const play = FoldingRow();
    play->addWidget(MistakesBox());
    play->addWidget(PlayBox());
    all->addLayout(play);
    all->addStretch();
    auto* const area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

/// It stays in sight wherever the settings are scrolled to.
QLayout* Form2::PreviewColumn() {
    auto* const column = new QVBoxLayout;
    column->addWidget(preview_);
    previewNote_->setObjectName("PreviewNote");
    previewNote_->setWordWrap(true);
    previewNote_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    // The preview alone says how wide the column is.
    previewNote_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    column->addWidget(previewNote_);
    column->addStretch();
    return column;
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
    auto* const row = FoldingRow();
    box->setLayout(row);
    combo1_->setObjectName("Combo1");
    GiveToolTip(*combo1_, tr("Colour scheme|The colours of the windows"));
    combo1_->setAccessibleName(tr("Colour scheme"));
    row->addWidget(combo1_, 1);
    auto* const brightness = new QHBoxLayout;
    row->addLayout(brightness);
    for (const int index : {kDarker, kLighter}) {
        const bool lighter = index == kLighter;
        auto* const button =
            AddButton(lighter ? "cmdadjust42" : "cmdadjust41", lighter ? tr("&Lighter") : tr("&Darker"),
                      lighter ? tr("Make buttons and frames lighter") : tr("Make buttons and frames darker"));
        button->setAutoRepeat(true);
        connect(button, &QPushButton::clicked, this, [this, index] { AdjustBrightness(index); });
        brightness->addWidget(button);
    }
    auto* const make = AddButton("cmdnewscheme", tr("N&ew ..."),
                                 tr("New colour scheme|Make one of your own that looks like the chosen one"));
    deleteScheme_ =
        AddButton("cmddeletescheme", tr("Dele&te"), tr("Delete colour scheme|Only schemes of your own can be deleted"));
    auto* const own = new QHBoxLayout;
    own->addWidget(make);
    own->addWidget(deleteScheme_);
    row->addLayout(own);
    connect(make, &QPushButton::clicked, this, &Form2::MakeScheme);
    connect(deleteScheme_, &QPushButton::clicked, this, &Form2::RemoveScheme);
    connect(combo1_, &QComboBox::textActivated, this, &Form2::ChooseScheme);
    return box;
}

QWidget* Form2::ColoursBox() {
    auto* const box = new QGroupBox(tr("Board colours"));
    auto* const both = FoldingRow();
    box->setLayout(both);
    auto* const layout = new QGridLayout;
    AddColourRow(layout, AddButton("cmdgridcol", tr("T&hin lines"), "Set grid colour|Select colour first"), line2_,
                 &OptionsForm::Line2, cmdgridcol_Click);
    AddColourRow(layout, AddButton("cmdchaincol", tr("Brid&ges"), "Set chain colour|Select colour first"), line1_,
                 &OptionsForm::Line1, cmdchaincol_Click);
    AddColourRow(layout, AddButton("cmdgivenfg", tr("Gi&ven numbers"), "Set number colour|Select colour first"),
                 label1_, &OptionsForm::Label1, cmdgivenfg_Click);
    AddColourRow(layout, AddButton("cmdnodecol", tr("Isla&nds"), "Set island colour|Select colour first"), label2_,
                 &OptionsForm::Label2, cmdnodecol_Click);
    colPik1_->setObjectName("ColPik1");
    both->addLayout(layout);
    both->addSpacing(16);
    both->addWidget(colPik1_, 1);
    return box;
}

void Form2::AddColourRow(QGridLayout* layout, QPushButton* button, Swatch* swatch, Colour OptionsForm::*colour,
                         ColourButton routine) {
    const int row = layout->rowCount() - (layout->count() == 0 ? 1 : 0);
    layout->addWidget(button, row, 0);
    layout->addWidget(swatch, row, 1);
    AddSample(swatch, button->text().remove('&'), [this, colour](Colour to) { SetBoardColour(form_, colour, to); });
    connect(button, &QPushButton::clicked, this, [this, button, routine] {
        TakeControls();
        GiveToPicker(nullptr);
        if (!routine(form_, colPik1_->Selected())) {
            QToolTip::showText(button->mapToGlobal(button->rect().bottomLeft()), button->toolTip(), button);
        }
        ShowForm();
    });
}

void Form2::AddSample(Swatch* swatch, const QString& name, std::function<void(Colour)> change) {
    GiveToolTip(*swatch, tr("Change this colour with the picker"));
    swatch->setAccessibleName(name);
    samples_.push_back({swatch, std::move(change)});
    connect(swatch, &Swatch::clicked, this, [this, swatch] { GiveToPicker(swatch); });
}

/// From now on the picker changes this swatch, and has the keyboard for it; none with nullptr.
void Form2::GiveToPicker(const Swatch* swatch) {
    for (const Sample& sample : samples_)
        sample.swatch->setChecked(sample.swatch == swatch);
    if (swatch == nullptr) return;
    colPik1_->Select(swatch->Value());
    colPik1_->setFocus();
}

void Form2::ChangeInPicker(Colour colour) {
    for (const Sample& sample : samples_) {
        if (!sample.swatch->isChecked()) continue;
        TakeControls();
        sample.change(colour);
        return ShowForm();
    }
}

/// The colours of the scheme that are none of the board's.
QWidget* Form2::WindowColoursPart() {
    for (const auto& [swatch, name, entry] : windowColours_->Parts())
        AddSample(swatch, name, [this, entry = entry](Colour to) { SetSchemePart(form_, entry, to); });
    folding_.push_back(windowColours_->Columns());
    return windowColours_;
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
    AddKept(layout, "ShowOverfull", &Options::ShowOverfull, tr("Too many &bridges"),
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
    auto* const reset = AddButton("reset", tr("&Reset"), "Apply default options and exit");
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
        Leave([](Game& game, OptionsForm& form) { return command1_Click(game, form); });
    });
    connect(reset, &QPushButton::clicked, this, [this] { Leave(reset_Click); });
    return row;
}

/// Closes the window when `routine` has done what it should.
void Form2::Leave(bool (*routine)(Game&, OptionsForm&)) {
    bool done = true;
    handlers_.Run([&](Game& game) { done = routine(game, form_); });
    if (done) return accept();
    ShowForm();
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
    GiveToPicker(nullptr);
    ShowForm();
}

/// Asks for a name until there is one that will do, or the player thinks better of it.
void Form2::MakeScheme() {
    TakeControls();
    QInputDialog dialog(this);
    dialog.setObjectName("SchemeName");
    dialog.setWindowTitle(tr("New Colour Scheme"));
    dialog.setLabelText(tr("A scheme of your own, which looks like the chosen one at first.\n\nName:"));
    connect(&handlers_, &Handlers::Ending, &dialog, &QDialog::reject);
    while (dialog.exec() == QDialog::Accepted) {
        std::string refusal;
        handlers_.Run([&](Game& game) {
            refusal = AddScheme(game, form_, dialog.textValue().trimmed().toStdString());
            if (!refusal.empty()) game.prompts.Show(refusal, "vbinformation+vbok");
        });
        if (refusal.empty()) break;
    }
    GiveToPicker(nullptr);
    ShowSchemes();
    ShowForm();
}

void Form2::RemoveScheme() {
    TakeControls();
    handlers_.Run([&](Game& game) {
        const std::string question = "Delete the colour scheme \"" + form_.Combo1 + "\"?";
        if (game.prompts.Show(question, "vbYesNo+vbtrash") == kYes) DeleteScheme(game, form_);
    });
    GiveToPicker(nullptr);
    ShowSchemes();
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
    if (const Game* const game = handlers_.game()) ShowColours(*game);
}

void Form2::ShowSchemes() {
    combo1_->clear();
    for (const std::string& name : form_.schemes)
        combo1_->addItem(QString::fromStdString(name));
}

/// The window wears the scheme that is chosen, before the others do, and shows the board as it would be.
void Form2::ShowColours(const Game& game) {
    const Options applied = AppliedOptions(game, form_);
    const WindowColours windows = ColoursOfWindows(applied, game.window);
    const Colour background = applied.BoardBackground();
    line1_->Show(form_.Line1, background, form_.Label2, form_.Option2);
    line2_->Show(form_.Line2, background, form_.Label2, form_.Option2);
    label1_->Show(form_.Label1, background, form_.Label2, form_.Option2);
    label2_->Show(form_.Label2, background, form_.Label2, form_.Option2);
    windowColours_->Show(form_, windows);
    deleteScheme_->setEnabled(IsOwnScheme(form_));
    preview_->Show(applied);
    previewNote_->setText(IsDefaultScheme(form_.draft.ColourSchemeName)
                              ? tr("\"default\" chooses thin lines, bridges and islands that go with your desktop.")
                              : QString::fromStdString(HardToSee(applied)));
    ColourFrame(*this, windows);
}

/// As large as everything in it, where the screen is large enough. Where it is too narrow the preview becomes small,
/// and if that is not enough rows become columns.
void Form2::FitToScreen() {
    constexpr QSize kFrame(20, 40);  // what a window's frame and the desktop's bars may take, in pixels
    constexpr std::pair<int, QBoxLayout::Direction> kWays[] = {
        {230, QBoxLayout::LeftToRight}, {160, QBoxLayout::LeftToRight}, {160, QBoxLayout::TopToBottom}};
    const QSize most = screen()->availableSize() - kFrame;
    const int bar = settings_->verticalScrollBar()->sizeHint().width();
    QSize wanted;
    for (const auto& [side, direction] : kWays) {
        preview_->setFixedSize(side, side);
        for (QBoxLayout* const row : folding_)
            row->setDirection(direction);
        // Before a window is shown for the first time nobody else tells its layouts that something has changed.
        for (QLayout* const stale : {settings_->widget()->layout(), layout()}) {
            stale->invalidate();
            stale->activate();
        }
        wanted = layout()->sizeHint() - settings_->sizeHint() + settings_->widget()->sizeHint();
        if (wanted.height() > most.height()) wanted.rwidth() += bar;
        if (wanted.width() <= most.width()) break;
    }
    resize(wanted.boundedTo(most));
}

void Form2::Open() {
    const Game* const game = handlers_.game();
    if (game == nullptr || isVisible()) return;
    form_ = OpenOptions(*game);
    ShowSchemes();
    GiveToPicker(nullptr);
    colPik1_->Clear();
    ShowForm();
    FitToScreen();
    exec();
}

}  // namespace tidewalk
