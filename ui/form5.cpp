// SPDX-License-Identifier: MIT
#include "ui/form5.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>

#include "board/copy_and_print.h"
#include "ui/controls.h"
#include "ui/file_name.h"
#include "ui/fit_on_screen.h"

namespace tidewalk {

namespace {

constexpr int kPathWidth = 380;   ///< in pixels
constexpr int kNumberWidth = 80;  ///< in pixels

}  // namespace

Form5::Form5(Handlers& handlers, PrintRequest& request, QWidget* parent)
    : QDialog(parent),
      handlers_(handlers),
      request_(request),
      fileNow_(Named(new QLineEdit, "FileNow", tr("File"))),
      text1_(Named(new QLineEdit, "Text1", tr("First puzzle"))),
      text2_(Named(new QLineEdit, "Text2", tr("Last puzzle"))),
      count_(Named(new QLabel, "Count", {})),
      combo1_(Named(new QComboBox, "Combo1", tr("Printer"))) {
    setObjectName("Form5");
    setWindowTitle(tr("Print Puzzles From File"));
    AddControls();
    connect(&handlers_, &Handlers::Ending, this, &QDialog::reject);
    handlers_.Run([this](Game& game) { Form5_Activate(game, request_); });
    for (const std::string& name : request_.printers)
        combo1_->addItem(QString::fromStdString(name));
    Show();
    text1_->setFocus();
    text1_->selectAll();
    FitOnScreen(*this);
}

void Form5::AddControls() {
    fileNow_->setMinimumWidth(kPathWidth);
    text1_->setFixedWidth(kNumberWidth);
    text2_->setFixedWidth(kNumberWidth);
    auto* const browse = Named(new QPushButton(tr("&Browse ...")), "gf1", tr("Select a file"));
    browse->setAutoDefault(false);
    auto* const range = new QHBoxLayout;
    range->addWidget(text1_);
    range->addWidget(LabelFor(tr("&to"), text2_));
    range->addWidget(text2_);
    range->addWidget(count_);
    range->addStretch();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* const ok = buttons->button(QDialogButtonBox::Ok);
    auto* const cancel = buttons->button(QDialogButtonBox::Cancel);
    ok->setText(tr("&OK"));
    cancel->setText(tr("&Cancel"));
    ok->setObjectName("Command1");
    cancel->setObjectName("command2");
    // Some desktops put pictures on these two, and on no other button of the program.
    for (QPushButton* const button : {ok, cancel})
        button->setIcon({});

    auto* const grid = new QGridLayout(this);
    grid->addWidget(LabelFor(tr("&File"), fileNow_), 0, 0);
    grid->addWidget(fileNow_, 0, 1);
    grid->addWidget(browse, 0, 2);
    grid->addWidget(LabelFor(tr("&Puzzles"), text1_), 1, 0);
    grid->addLayout(range, 1, 1, 1, 2);
    grid->addWidget(LabelFor(tr("P&rinter"), combo1_), 2, 0);
    grid->addWidget(combo1_, 2, 1, 1, 2);
    grid->addWidget(buttons, 3, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    connect(browse, &QPushButton::clicked, this, &Form5::Pick);
    connect(buttons, &QDialogButtonBox::accepted, this, &Form5::Accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void Form5::Show() {
    fileNow_->setText(FileNameText(request_.collection));
    text1_->setText(QString::fromStdString(request_.first));
    text2_->setText(QString::fromStdString(request_.last));
    count_->setText(tr("of %1").arg(request_.puzzleCount));
    combo1_->setCurrentText(QString::fromStdString(request_.printer));
}

void Form5::Take() {
    request_.collection = FileNameBytes(fileNow_->text());
    request_.first = text1_->text().toStdString();
    request_.last = text2_->text().toStdString();
    request_.printer = combo1_->currentText().toStdString();
}

void Form5::Pick() {
    Take();
    handlers_.Run([this](Game& game) { Form5_gf1_Click(game, request_); });
    Show();
}

void Form5::Accept() {
    Take();
    bool decided = false;
    handlers_.Run([this, &decided](Game& game) { decided = Form5_Command1_Click(game, request_); });
    Show();
    if (decided) accept();
}

}  // namespace tidewalk
