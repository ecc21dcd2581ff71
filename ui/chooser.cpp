// SPDX-License-Identifier: MIT
#include "ui/chooser.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "game/order_choices.h"
#include "ui/fit_on_screen.h"
#include "ui/puzzle_card.h"

namespace tidewalk {

namespace {

constexpr int kColumns = 6;  ///< at first
constexpr int kRows = 3;
constexpr int kScreenShare = 90;  ///< per cent of the screen that the window may take

/// The sizes to choose from, by the longer side.
constexpr std::array<PuzzleFilter::Sides, 4> kSides{{{1, 10}, {11, 15}, {16, 20}, {21, kMaxSide}}};
constexpr std::array<PlayState, 3> kStates{PlayState::Untouched, PlayState::Begun, PlayState::Solved};

QString TextOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

Chooser::Chooser(const Game& game, PlayStates states, QWidget* parent)
    : QDialog(parent),
      book_(game.collection.CollectionPath, game.lineIndex, game.options, std::move(states)),
      model_(book_),
      table_(new QTableView),
      number_(new QLineEdit),
      count_(new QLabel),
      open_(new QPushButton(tr("&Open"))),
      wanted_(game.collection.PuzzleNumber) {
    setObjectName("Chooser");
    setWindowTitle(tr("Choose Puzzle"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* const column = new QVBoxLayout(this);
    AddFilters(*column);
    AddTable(*column);
    AddButtons(*column);
    connect(&book_, &PuzzleBook::Grown, this, &Chooser::Refresh);
    connect(&book_, &PuzzleBook::Replaced, this, &Chooser::Filter);
    connect(&search_, &PuzzleSearch::Found, this, [this](const QList<int>& numbers, int looked, bool atEnd) {
        model_.Add(numbers);
        looked_ = looked;
        searching_ = !atEnd;
        Refresh();
    });
    const QSize card = PuzzleCardDelegate::CardSize(fontMetrics());
    const QSize usual(kColumns * card.width() + table_->verticalScrollBar()->sizeHint().width(), kRows * card.height());
    const QSize around = sizeHint() - table_->sizeHint();
    resize((usual + QSize(around.width(), around.height())).boundedTo(screen()->availableSize() * kScreenShare / 100));
    FitOnScreen(*this);
    table_->setFocus();
    Filter();
}

QComboBox* Chooser::AddFilter(const char* name, const QString& caption, QLayout& row) {
    auto* const label = new QLabel(caption);
    auto* const box = new QComboBox;
    box->setObjectName(name);
    label->setBuddy(box);
    row.addWidget(label);
    row.addWidget(box);
    connect(box, &QComboBox::currentIndexChanged, this, &Chooser::Filter);
    return box;
}

void Chooser::AddFilters(QVBoxLayout& column) {
    auto* const row = new QHBoxLayout;
    size_ = AddFilter("ChooserSize", tr("&Size"), *row);
    size_->addItem(tr("Any size"));
    for (const auto& [least, most] : kSides)
        size_->addItem(least == 1 ? tr("Up to %1").arg(most) : tr("%1 to %2").arg(least).arg(most));
    grade_ = AddFilter("ChooserGrade", tr("&Grade"), *row);
    for (const std::optional<Grade> grade : kGradeChoices)
        grade_->addItem(TextOf(NameOf(grade)));
    state_ = AddFilter("ChooserState", tr("St&ate"), *row);
    state_->addItems({tr("Any state"), tr("Untouched"), tr("Begun"), tr("Solved")});
    row->addStretch(1);
    number_->setObjectName("ChooserNumber");
    number_->setAlignment(Qt::AlignRight);
    number_->setMaximumWidth(fontMetrics().horizontalAdvance("0000000000"));
    number_->installEventFilter(this);
    connect(number_, &QLineEdit::textEdited, this, &Chooser::GoToTyped);
    auto* const label = new QLabel(tr("&Number"));
    label->setBuddy(number_);
    row->addWidget(label);
    row->addWidget(number_);
    column.addLayout(row);
}

void Chooser::AddTable(QVBoxLayout& column) {
    const QSize card = PuzzleCardDelegate::CardSize(fontMetrics());
    table_->setObjectName("ChooserPuzzles");
    table_->setAccessibleName(tr("Puzzles"));
    table_->setItemDelegate(new PuzzleCardDelegate(book_, model_, table_));
    table_->setModel(&model_);
    table_->setShowGrid(false);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (QHeaderView* const header : {table_->horizontalHeader(), table_->verticalHeader()}) {
        header->hide();
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    table_->verticalHeader()->setDefaultSectionSize(card.height());
    table_->setMinimumSize(card.width() + table_->verticalScrollBar()->sizeHint().width() + 2 * table_->frameWidth(),
                           card.height());
    table_->installEventFilter(this);
    table_->viewport()->installEventFilter(this);
    connect(table_, &QTableView::doubleClicked, this, [this] {
        if (Chosen() > 0) accept();
    });
    connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        // Whoever goes about has found another one.
        if (Chosen() > 0) wanted_ = 0;
        Refresh();
    });
    column.addWidget(table_, 1);
}

void Chooser::AddButtons(QVBoxLayout& column) {
    auto* const row = new QHBoxLayout;
    count_->setObjectName("ChooserCount");
    row->addWidget(count_, 1);
    open_->setObjectName("ChooserOpen");
    open_->setDefault(true);
    connect(open_, &QPushButton::clicked, this, &QDialog::accept);
    row->addWidget(open_);
    auto* const close = new QPushButton(tr("&Close"));
    close->setObjectName("ChooserClose");
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    row->addWidget(close);
    column.addLayout(row);
}

PuzzleFilter Chooser::Wanted() const {
    PuzzleFilter filter;
    const auto place = [](const QComboBox* box) { return static_cast<std::size_t>(box->currentIndex()); };
    if (place(size_) > 0) filter.sides = kSides.at(place(size_) - 1);
    filter.grade = kGradeChoices.at(place(grade_));
    if (place(state_) > 0) filter.state = kStates.at(place(state_) - 1);
    return filter;
}

/// Shows what the filter takes now; the puzzle that was selected stays so if it is among them.
void Chooser::Filter() {
    // The boxes are made one after the other.
    if (state_ == nullptr || state_->count() == 0) return;
    if (const int selected = Chosen(); selected > 0) wanted_ = selected;
    const PuzzleFilter filter = Wanted();
    search_.Stop();
    looked_ = 0;
    searching_ = !filter.TakesAll();
    if (searching_) {
        model_.ShowFound();
        search_.Start(book_.Path(), filter, book_.States());
    } else {
        model_.ShowAll();
    }
    Refresh();
}

void Chooser::TakeColumns() {
    const QSize card = PuzzleCardDelegate::CardSize(table_->fontMetrics());
    const int room = table_->viewport()->width();
    const int columns = std::max(1, room / card.width());
    if (const int selected = Chosen(); selected > 0) wanted_ = selected;
    model_.SetColumns(columns);
    table_->horizontalHeader()->setDefaultSectionSize(std::max(1, room / columns));
    book_.SetPictures(PuzzleCardDelegate::PictureSide(table_->fontMetrics()), devicePixelRatioF());
    Refresh();
}

int Chooser::Chosen() const {
    return model_.NumberAt(table_->currentIndex());
}

void Chooser::Select(int number) {
    const QModelIndex at = model_.IndexOf(number);
    // What is not there is not opened in the place of another one; it may come yet.
    table_->setCurrentIndex(at);
    wanted_ = at.isValid() ? 0 : number;
    if (at.isValid()) table_->scrollTo(at, QAbstractItemView::PositionAtCenter);
    Refresh();
}

void Chooser::GoToTyped() {
    Select(std::max(0, number_->text().toInt()));
}

/// Says how many there are, and selects what is to be selected once it is there.
void Chooser::Refresh() {
    if (wanted_ > 0 && model_.IndexOf(wanted_).isValid()) Select(wanted_);
    const QLocale locale;
    const QString count = locale.toString(model_.Count());
    const QString all = locale.toString(book_.Lines());
    if (Wanted().TakesAll()) {
        count_->setText(book_.HasAllLines() ? tr("%1 puzzles").arg(count) : tr("%1 puzzles so far ...").arg(count));
    } else {
        count_->setText(searching_ ? tr("%1 of %2 puzzles so far ...").arg(count, locale.toString(looked_))
                                   : tr("%1 of %2 puzzles").arg(count, all));
    }
    open_->setEnabled(Chosen() > 0);
}

void Chooser::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    TakeColumns();
}

/// Digits that are typed over the pictures are a number; arrow keys in the number's box go about in the pictures.
bool Chooser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table_->viewport() && event->type() == QEvent::Resize) TakeColumns();
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    auto* const key = static_cast<QKeyEvent*>(event);
    const bool enters = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (watched == table_ && enters) {
        open_->click();
        return true;
    }
    if (watched == table_ && key->matches(QKeySequence::MoveToEndOfDocument)) {
        Select(model_.NumberAt(model_.Last()));
        return true;
    }
    const bool digit = key->text().size() == 1 && key->text().at(0).isDigit();
    if (watched == table_ && digit && !key->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier)) {
        number_->setText(key->text());
        number_->setFocus();
        GoToTyped();
        return true;
    }
    const bool moves = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down || key->key() == Qt::Key_PageUp ||
                       key->key() == Qt::Key_PageDown;
    if (watched == number_ && moves) {
        table_->setFocus();
        QCoreApplication::sendEvent(table_, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace tidewalk
