// SPDX-License-Identifier: MIT
#include "ui/solutions_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/fit_on_screen.h"
#include "ui/solution_view.h"

namespace tidewalk {

namespace {

constexpr int kScreenShare = 90;  ///< per cent of the screen that the window may take
constexpr int kListLines = 5;     ///< that are seen at once; the pictures need the room more
constexpr int kListRoom = 4;      ///< in pixels, so that the last line is seen whole

}  // namespace

SolutionsWindow::SolutionsWindow(const FoundSolutions& found, const Options& options, QWidget* parent)
    : QDialog(parent) {
    setObjectName("Solutions");
    setWindowTitle(tr("Solutions"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* const column = new QVBoxLayout(this);
    auto* const caption = new QLabel(QString::fromStdString(found.caption));
    caption->setObjectName("Caption");
    caption->setWordWrap(true);
    column->addWidget(caption);
    AddPictures(*column, found, options);
    if (!found.differences.empty()) AddList(*column, found);
    AddClose(*column);
    setAccessibleDescription(caption->text());
    resize(sizeHint().boundedTo(screen()->availableSize() * kScreenShare / 100));
    FitOnScreen(*this);
}

void SolutionsWindow::AddPictures(QVBoxLayout& column, const FoundSolutions& found, const Options& options) {
    auto* const row = new QHBoxLayout;
    const bool several = found.solutions.size() > 1;
    for (const Puzzle& solution : found.solutions) {
        auto* const view = new SolutionView(solution, found.differences, options);
        const QString name = !several ? tr("Solution") : views_.empty() ? tr("First solution") : tr("Second solution");
        view->setObjectName("Solution" + QString::number(views_.size() + 1));
        view->setAccessibleName(name);
        auto* const picture = new QVBoxLayout;
        if (several) picture->addWidget(new QLabel(name), 0, Qt::AlignHCenter);
        picture->addWidget(view, 1);
        row->addLayout(picture);
        views_.push_back(view);
    }
    column.addLayout(row, 1);
}

void SolutionsWindow::AddList(QVBoxLayout& column, const FoundSolutions& found) {
    auto* const list = new QListWidget;
    list->setObjectName("Differences");
    list->setAccessibleName(tr("Where they differ"));
    list->setWordWrap(true);
    for (const Difference& difference : found.differences)
        list->addItem(QString::fromStdString(difference.text));
    const int lines = std::min(list->count(), kListLines);
    list->setFixedHeight(list->sizeHintForRow(0) * lines + 2 * list->frameWidth() + kListRoom);
    connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
        for (SolutionView* const view : views_)
            view->Choose(row);
    });
    auto* const label = new QLabel(tr("&Where they differ, marked by rings, dashed where there is no bridge:"));
    label->setBuddy(list);
    label->setWordWrap(true);
    column.addWidget(label);
    column.addWidget(list);
}

void SolutionsWindow::AddClose(QVBoxLayout& column) {
    auto* const close = new QPushButton(tr("&Close"));
    close->setObjectName("SolutionsClose");
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    column.addWidget(close, 0, Qt::AlignRight);
}

}  // namespace tidewalk
