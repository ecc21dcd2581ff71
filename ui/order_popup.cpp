// SPDX-License-Identifier: MIT
#include "ui/order_popup.h"

#include <QButtonGroup>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/mnemonic.h"
#include "ui/one_solution_box.h"

namespace tidewalk {

OrderPopup::OrderPopup(Handlers& handlers, QWidget* parent)
    : QDialog(parent, Qt::Popup),
      handlers_(handlers),
      size_(new QLineEdit),
      grades_(new QButtonGroup(this)),
      oneSolution_(new OneSolutionBox(tr("&One solution"))) {
    setObjectName("NewOrder");
    setWindowTitle(tr("New Puzzle to Order"));
    // A click on the arrow that opened it closes it, and does not open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    // Without a frame it could not be told from the tool bar.
    auto* const frame = new QFrame;
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    auto* const around = new QVBoxLayout(this);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(frame);
    auto* const column = new QVBoxLayout(frame);
    AddSize(*column);
    AddGrades(*column);
    AddButton(*column);
}

void OrderPopup::AddSize(QVBoxLayout& column) {
    size_->setObjectName("OrderSize");
    size_->setPlaceholderText(tr("random"));
    size_->setClearButtonEnabled(true);
    size_->setAccessibleName(tr("Size, empty for a random one"));
    connect(size_, &QLineEdit::textChanged, this, &OrderPopup::SizeTyped);
    auto* const label = new QLabel(tr("&Size"));
    label->setBuddy(size_);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(size_, 1);
    column.addLayout(row);
}

void OrderPopup::AddGrades(QVBoxLayout& column) {
    QString taken = "SOP";
    for (std::size_t i = 0; i < kGradeChoices.size(); ++i) {
        const std::string_view name = NameOf(kGradeChoices[i]);
        const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
        auto* const button = new QRadioButton(WithMnemonic(text, taken));
        button->setObjectName("Grade" + QString::number(i));
        grades_->addButton(button, static_cast<int>(i));
        column.addWidget(button);
    }
    oneSolution_->setObjectName("OrderOneSolution");
    column.addWidget(oneSolution_);
    connect(grades_, &QButtonGroup::idToggled, this, [this](int id, bool on) {
        if (on) oneSolution_->FollowGrade(id == 0);
    });
    connect(grades_, &QButtonGroup::idClicked, this, &OrderPopup::Keep);
    connect(oneSolution_, &QCheckBox::clicked, this, &OrderPopup::Keep);
}

void OrderPopup::AddButton(QVBoxLayout& column) {
    auto* const make = new QPushButton(tr("New &Puzzle"));
    make->setObjectName("OrderCreate");
    make->setDefault(true);
    connect(make, &QPushButton::clicked, this, [this] {
        accept();
        emit Create();
    });
    column.addWidget(make);
}

void OrderPopup::OpenAt(const QWidget& button, const QString& size) {
    const OrderChoice choice = ReadOrder(handlers_.game()->choices, OrderedFor::Board);
    size_->setText(size);
    oneSolution_->SetWanted(choice.oneSolution);
    const auto chosen = std::find(kGradeChoices.begin(), kGradeChoices.end(), choice.grade) - kGradeChoices.begin();
    grades_->button(static_cast<int>(chosen))->setChecked(true);
    adjustSize();
    const QRect room = button.screen()->availableGeometry();
    const QPoint below = button.mapToGlobal(QPoint(0, button.height()));
    move(std::clamp(below.x(), room.left(), std::max(room.left(), room.right() - width())),
         std::clamp(below.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    show();
    grades_->checkedButton()->setFocus(Qt::PopupFocusReason);
}

void OrderPopup::Keep() {
    handlers_.Run([this](Game& game) {
        OrderChoice choice;
        choice.oneSolution = oneSolution_->Wanted();
        choice.grade = kGradeChoices.at(static_cast<std::size_t>(grades_->checkedId()));
        KeepOrder(game.choices, OrderedFor::Board, choice);
    });
}

}  // namespace tidewalk
