// SPDX-License-Identifier: MIT
#include "ui/booklet_preview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/icons.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

constexpr int kSmallestSide = 240;      ///< of what shows the page, in pixels
constexpr int kMostShown = 9999;        ///< the page for whose number there is always room
constexpr std::size_t kMostRead = 300;  ///< puzzles that are held

}  // namespace

BookletPreview::BookletPreview()
    : stack_(new QStackedWidget),
      sheet_(new SheetView),
      area_(new QScrollArea),
      message_(new QLabel),
      place_(new QLabel),
      progress_(new QLabel) {
    sheet_->setObjectName("BookletPage");
    area_->setObjectName("BookletPageArea");
    area_->setAccessibleName(tr("Page"));
    area_->setWidget(sheet_);
    area_->setWidgetResizable(true);
    area_->setAlignment(Qt::AlignCenter);
    message_->setObjectName("BookletMessage");
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    message_->setAlignment(Qt::AlignCenter);
    message_->setMargin(16);
    message_->setFrameShape(area_->frameShape());
    message_->setFrameShadow(area_->frameShadow());
    stack_->addWidget(area_);
    stack_->addWidget(message_);
    stack_->setMinimumSize(kSmallestSide, kSmallestSide);
    place_->setObjectName("BookletPlace");
    place_->setAlignment(Qt::AlignCenter);
    // The buttons beside it stay where they are under the pointer.
    place_->setMinimumWidth(
        place_->fontMetrics().horizontalAdvance(tr("Page %1 of %2").arg(kMostShown).arg(kMostShown)));
    progress_->setObjectName("BookletProgress");
    progress_->setAlignment(Qt::AlignCenter);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(stack_, 1);
    auto* const row = new QHBoxLayout;
    AddButtons(*row);
    column->addLayout(row);
    column->addWidget(progress_);
    Refresh();
}

QToolButton* BookletPreview::AddButton(QHBoxLayout& row, const char* name, const QString& toolTip, const char* icon) {
    auto* const button = new QToolButton;
    button->setObjectName(name);
    button->setIcon(MakeIcon(icon, palette()));
    button->setAccessibleName(CaptionOf(toolTip));
    GiveToolTip(*button, toolTip);
    button->setFocusPolicy(Qt::StrongFocus);
    row.addWidget(button);
    return button;
}

void BookletPreview::AddButtons(QHBoxLayout& row) {
    row.addStretch(1);
    first_ = AddButton(row, "BookletFirstPage", tr("First page"), "first");
    previous_ = AddButton(row, "BookletPreviousPage", tr("Previous page|Page Up"), "previous");
    row.addWidget(place_);
    next_ = AddButton(row, "BookletNextPage", tr("Next page|Page Down"), "next");
    last_ = AddButton(row, "BookletLastPage", tr("Last page"), "last");
    row.addSpacing(place_->fontMetrics().averageCharWidth());
    enlarge_ = AddButton(row, "BookletEnlarge", tr("Larger|The whole page again with another click"), "zoom-in");
    enlarge_->setCheckable(true);
    row.addStretch(1);
    connect(first_, &QToolButton::clicked, this, [this] { GoTo(0); });
    connect(previous_, &QToolButton::clicked, this, [this] { Step(-1); });
    connect(next_, &QToolButton::clicked, this, [this] { Step(1); });
    connect(last_, &QToolButton::clicked, this, [this] { GoTo(PageCount() - 1); });
    connect(enlarge_, &QToolButton::toggled, sheet_, &SheetView::SetEnlarged);
}

int BookletPreview::PageCount() const {
    return booklet_ ? static_cast<int>(booklet_->Pages().size()) : 0;
}

void BookletPreview::ShowBooklet(const std::string& collection, Booklet booklet, const Sheet& sheet) {
    if (collection_ != collection) read_.clear();
    collection_ = collection;
    booklet_ = std::move(booklet);
    size_ = sheet;
    GoTo(page_);
}

void BookletPreview::ShowMessage(const QString& message) {
    booklet_.reset();
    message_->setText(message);
    Refresh();
}

void BookletPreview::ShowProgress(const QString& text) {
    progress_->setText(text);
}

void BookletPreview::GoTo(int page) {
    if (PageCount() == 0) return;
    page_ = std::clamp(page, 0, PageCount() - 1);
    sheet_->ShowSheet(size_, [this, shown = page_](Surface& surface) {
        if (booklet_) booklet_->DrawPage(shown, surface, [this](int number) { return Read(number); });
    });
    Refresh();
}

/// Whoever types a title does not want the page's puzzles solved again with every letter.
std::optional<Puzzle> BookletPreview::Read(int number) {
    if (const auto known = read_.find(number); known != read_.end()) return known->second;
    if (read_.size() >= kMostRead) read_.clear();
    return read_[number] = ReadSolvedPuzzle(lines_, collection_, number);
}

void BookletPreview::Refresh() {
    const int count = PageCount();
    stack_->setCurrentWidget(booklet_ ? static_cast<QWidget*>(area_) : message_);
    place_->setText(count > 0 ? tr("Page %1 of %2").arg(page_ + 1).arg(count) : tr("No pages"));
    sheet_->setAccessibleName(place_->text());
    for (QToolButton* const back : {first_, previous_})
        back->setEnabled(count > 0 && page_ > 0);
    for (QToolButton* const forth : {next_, last_})
        forth->setEnabled(page_ + 1 < count);
    enlarge_->setEnabled(count > 0);
}

}  // namespace tidewalk
