// SPDX-License-Identifier: MIT
#include "ui/guide_panel.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "techniques/explain_board.h"
#include "techniques/show_guide.h"

namespace tidewalk {

namespace {

constexpr int kCharacters = 40;  ///< a line, about
constexpr int kStepGap = 8;      ///< in pixels, between two steps of the list

/// Gives each step more height than its lines: the style draws only lines that fit whole, and measures them tightly.
class StepDelegate final : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kStepGap);
    }
};

}  // namespace

GuidePanel::GuidePanel(Handlers& handlers)
    : QDockWidget(tr("Hints")),
      handlers_(handlers),
      text_(new QPlainTextEdit),
      steps_(new QListWidget),
      previous_(new QPushButton(tr("&Back"))),
      next_(new QPushButton(tr("Ne&xt"))) {
    setObjectName("GuidePanel");
    text_->setObjectName("GuideText");
    text_->setReadOnly(true);
    text_->setTabChangesFocus(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setAccessibleName(tr("Hint"));
    text_->setPlaceholderText(tr("Hints and explanations are shown here."));
    steps_->setObjectName("GuideSteps");
    steps_->setWordWrap(true);
    steps_->setItemDelegate(new StepDelegate(steps_));
    // A step is measured before the scroll bar comes, and must not lose its last line to it.
    steps_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    steps_->setResizeMode(QListView::Adjust);
    steps_->setTextElideMode(Qt::ElideNone);
    steps_->setAccessibleName(tr("Steps of the explanation"));
    previous_->setObjectName("GuideBack");
    next_->setObjectName("GuideNext");

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(previous_);
    buttons->addWidget(next_);
    auto* const inside = new QWidget;
    auto* const column = new QVBoxLayout(inside);
    column->addWidget(text_, 2);
    column->addWidget(steps_, 3);
    column->addLayout(buttons);
    setWidget(inside);
    hide();

    connect(steps_, &QListWidget::currentRowChanged, this, &GuidePanel::ShowStep);
    connect(previous_, &QPushButton::clicked, this, [this] { ShowStep(handlers_.game()->guidance.step - 1); });
    connect(next_, &QPushButton::clicked, this, [this] { ShowStep(handlers_.game()->guidance.step + 1); });
    connect(&handlers_, &Handlers::Changed, this, &GuidePanel::Refresh);
}

QSize GuidePanel::sizeHint() const {
    return {kCharacters * fontMetrics().averageCharWidth(), QDockWidget::sizeHint().height()};
}

void GuidePanel::closeEvent(QCloseEvent* event) {
    event->accept();
    handlers_.Run(EndExplanation);
}

void GuidePanel::ShowStep(int step) {
    handlers_.Run([step](Game& game) { ShowExplainedStep(game, step); });
}

void GuidePanel::Refresh() {
    const Game* const game = handlers_.game();
    if (game == nullptr) return;
    const QString text = QString::fromStdString(GuidanceText(*game));
    ShowSteps(*game);
    if (text == text_->toPlainText()) return;
    text_->setPlainText(text);
    if (text.isEmpty()) return;
    show();
    QAccessibleEvent alert(text_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void GuidePanel::ShowSteps(const Game& game) {
    const Guidance& guidance = game.guidance;
    const int count = static_cast<int>(guidance.steps.size());
    const QSignalBlocker quiet(steps_);
    if (shown_ != guidance.revision) {
        shown_ = guidance.revision;
        steps_->clear();
        for (int i = 0; i < count; ++i) {
            const std::string& text = guidance.steps[static_cast<std::size_t>(i)].text;
            steps_->addItem(QString::number(i + 1) + ". " + QString::fromStdString(text));
        }
        if (count > 0) steps_->addItem(tr("The end"));
    }
    for (QWidget* const control : std::initializer_list<QWidget*>{steps_, previous_, next_})
        control->setVisible(count > 0);
    previous_->setEnabled(guidance.step > 0);
    next_->setEnabled(guidance.step < count);
    steps_->setCurrentRow(guidance.step);
}

}  // namespace tidewalk
