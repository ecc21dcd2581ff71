// SPDX-License-Identifier: MIT
#include "ui/form3.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "generator/batch.h"
#include "generator/character_choices.h"
#include "ui/file_name.h"
#include "ui/fit_on_screen.h"
#include "ui/one_solution_box.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

constexpr int kFileWidth = 320;  ///< in pixels

QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Offers all sides; what stands in the box stays.
void FillSides(QComboBox* box) {
    const QString text = box->currentText();
    box->clear();
    for (int side = kMinSide; side <= kMaxSide; ++side)
        box->addItem(QString::number(side));
    box->setCurrentText(text);
}

QComboBox* MakeSideBox(const char* name) {
    auto* const box = new QComboBox;
    box->setObjectName(name);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCurrentText("10");
    return box;
}

}  // namespace

Form3::Form3(Handlers& handlers, QWidget* parent)
    : QDialog(parent),
      handlers_(handlers),
      text1_(new QLineEdit("10")),
      combo1_(MakeSideBox("Combo1")),
      combo2_(MakeSideBox("Combo2")),
      grade_(new QComboBox),
      oneSolution_(new OneSolutionBox(tr("One &solution"))),
      character_(new QComboBox),
      fileNow_(new QLineEdit) {
    setObjectName("Form3");
    setWindowTitle(tr("Create New Puzzles"));
    setProperty("Tag", "X");
    auto* const form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setContentsMargins(16, 16, 16, 16);
    AddFields(form);
    AddOrder(form);
    AddFile(form);
    AddButtons(form);
    connect(&handlers_, &Handlers::Ending, this, &QDialog::reject);
}

void Form3::AddFields(QFormLayout* form) {
    text1_->setObjectName("Text1");
    form->addRow(tr("# of &Puzzles"), text1_);
    form->addRow(tr("&Rows"), combo1_);
    form->addRow(tr("&Columns"), combo2_);
    combo1_->lineEdit()->setAccessibleName(tr("Rows"));
    combo2_->lineEdit()->setAccessibleName(tr("Columns"));
}

void Form3::AddOrder(QFormLayout* form) {
    grade_->setObjectName("Grade");
    for (const std::optional<Grade> grade : kGradeChoices)
        grade_->addItem(Text(NameOf(grade)));
    oneSolution_->setObjectName("OneSolution");
    character_->setObjectName("Character");
    for (const CharacterChoice& choice : CharacterChoices()) {
        character_->addItem(Text(choice.name));
        character_->setItemData(character_->count() - 1, Text(choice.hint), Qt::ToolTipRole);
    }
    connect(grade_, &QComboBox::currentIndexChanged, oneSolution_,
            [this](int index) { oneSolution_->FollowGrade(index == 0); });
    connect(character_, &QComboBox::currentIndexChanged, this, [this](int index) {
        GiveToolTip(*character_, Text(CharacterChoices()[static_cast<std::size_t>(index)].hint));
    });
    form->addRow(tr("&Grade"), grade_);
    form->addRow(QString(), oneSolution_);
    form->addRow(tr("C&haracter"), character_);
}

void Form3::AddFile(QFormLayout* form) {
    fileNow_->setObjectName("FileNow");
    fileNow_->setMinimumWidth(kFileWidth);
    auto* const pick = new QPushButton(tr("&Browse ..."));
    pick->setObjectName("gf1");
    GiveToolTip(*pick, tr("Select an output Puzzle file"));
    pick->setAutoDefault(false);
    connect(pick, &QPushButton::clicked, this, &Form3::Gf1);
    auto* const file = new QHBoxLayout;
    file->addWidget(fileNow_, 1);
    file->addWidget(pick);
    auto* const label = new QLabel(tr("Output &file"));
    label->setBuddy(fileNow_);
    form->addRow(label, file);
}

void Form3::AddButtons(QFormLayout* form) {
    auto* const ok = new QPushButton(tr("&OK"));
    ok->setObjectName("Command1");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &Form3::Command1);
    auto* const leave = new QPushButton(tr("Cance&l"));
    leave->setObjectName("command2");
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);
    auto* const row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(leave);
    form->addRow(row);
}

bool Form3::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        FillSides(combo1_);
        FillSides(combo2_);
    }
    return QDialog::event(event);
}

bool Form3::Ask(BatchRequest& request) {
    setProperty("Tag", "X");
    FillSides(combo1_);
    FillSides(combo2_);
    ShowOrder(request.order);
    text1_->setFocus();
    FitOnScreen(*this);
    exec();
    request = Typed();
    return property("Tag") == "Y";
}

BatchRequest Form3::Typed() const {
    return {text1_->text().toStdString(),
            combo1_->currentText().toStdString(),
            combo2_->currentText().toStdString(),
            FileNameBytes(fileNow_->text()),
            {oneSolution_->Wanted(), kGradeChoices.at(static_cast<std::size_t>(grade_->currentIndex())),
             static_cast<std::size_t>(character_->currentIndex())}};
}

void Form3::ShowOrder(const OrderChoice& order) {
    oneSolution_->SetWanted(order.oneSolution);
    grade_->setCurrentText(Text(NameOf(order.grade)));
    character_->setCurrentIndex(static_cast<int>(order.character));
}

void Form3::Show(const BatchRequest& request) {
    fileNow_->setText(FileNameText(request.outputFile));
}

void Form3::Command1() {
    handlers_.Run([this](Game& game) {
        BatchRequest request = Typed();
        if (!Form3_Command1_Click(game, request)) return;
        Show(request);
        setProperty("Tag", "Y");
        accept();
    });
}

void Form3::Gf1() {
    handlers_.Run([this](Game& game) {
        BatchRequest request = Typed();
        Form3_gf1_Click(game, request);
        Show(request);
    });
}

}  // namespace tidewalk
