// SPDX-License-Identifier: MIT
#include "ui/grid_chooser.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/whole_board.h"

namespace tidewalk {

namespace {

constexpr int kPictureLines = 5;    ///< a picture is so many lines of text high
constexpr int kMostPictures = 200;  ///< that are held
constexpr int kShownGrids = 5;      ///< at first, without scrolling
constexpr int kScreenShare = 90;    ///< per cent of the screen that the window may take

}  // namespace

GridListModel::GridListModel(const std::vector<FoundGrid>& grids, Options options, int side, double ratio)
    : grids_(grids), options_(std::move(options)), side_(side), ratio_(ratio), pictures_(kMostPictures) {
    // Small pictures are clearer without the lines that would join all islands.
    options_.ShowLines = 0;
}

int GridListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grids_.size());
}

QVariant GridListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const FoundGrid& grid = grids_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DecorationRole) return Picture(index.row());
    if (role != Qt::DisplayRole) return {};
    QString text = tr("%1:  ").arg(index.row() + 1);
    if (grid.fits) text += tr("%1x%2, ").arg(grid.puzzle.Rows).arg(grid.puzzle.Cols);
    text += tr("line %1").arg(grid.line);
    return grid.isPuzzle ? text : text + tr(", not a puzzle");
}

/// All of the same size, so that the texts beside them begin at one place.
QPixmap GridListModel::Picture(int row) const {
    if (const QPixmap* const known = pictures_.object(row)) return *known;
    const FoundGrid& grid = grids_[static_cast<std::size_t>(row)];
    QPixmap picture((QSizeF(side_, side_) * ratio_).toSize());
    picture.setDevicePixelRatio(ratio_);
    picture.fill(Qt::transparent);
    if (grid.fits) {
        Board board;
        board.puzzle = grid.puzzle;
        board.layout = WholeBoardLayout(grid.puzzle.Size());
        const QPixmap drawn = DrawWholeBoard(board, options_, ScaleInto(board, QSizeF(side_, side_)), ratio_);
        const QSizeF free = QSizeF(side_, side_) - drawn.deviceIndependentSize();
        QPainter(&picture).drawPixmap(QPointF(free.width() / 2, free.height() / 2), drawn);
    }
    pictures_.insert(row, new QPixmap(picture));
    return picture;
}

GridChooser::GridChooser(const GridChoice& choice, const Options& options, QWidget* parent)
    : QDialog(parent),
      grids_(choice.grids),
      model_(choice.grids, options, kPictureLines * fontMetrics().lineSpacing(), devicePixelRatioF()),
      list_(new QListView) {
    setObjectName("Grids");
    setWindowTitle(tr("Choose Grid"));
    auto* const column = new QVBoxLayout(this);
    auto* const caption = new QLabel(QString::fromStdString(choice.caption));
    caption->setObjectName("GridsCaption");
    caption->setTextFormat(Qt::PlainText);
    caption->setWordWrap(true);
    column->addWidget(caption);
    setAccessibleDescription(caption->text());

    const int side = kPictureLines * fontMetrics().lineSpacing();
    ShowList(side);
    const auto first =
        std::find_if(choice.grids.begin(), choice.grids.end(), [](const FoundGrid& grid) { return grid.isPuzzle; });
    list_->setCurrentIndex(model_.index(static_cast<int>(first - choice.grids.begin())));
    column->addWidget(list_, 1);
    AddButtons(*column);
    resize(QSize(kShownGrids * side, kShownGrids * side).boundedTo(screen()->availableSize() * kScreenShare / 100));
    list_->setFocus();
}

void GridChooser::ShowList(int side) {
    list_->setObjectName("GridsList");
    list_->setAccessibleName(tr("Grids"));
    list_->setModel(&model_);
    list_->setIconSize(QSize(side, side));
    // Else every picture would be drawn to know its size.
    list_->setUniformItemSizes(true);
    list_->setSpacing(2);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
}

void GridChooser::AddButtons(QVBoxLayout& column) {
    auto* const row = new QHBoxLayout;
    auto* const open = new QPushButton(tr("&Open"));
    auto* const cancel = new QPushButton(tr("&Cancel"));
    open->setObjectName("GridsOpen");
    open->setDefault(true);
    cancel->setObjectName("GridsCancel");
    row->addStretch(1);
    row->addWidget(open);
    row->addWidget(cancel);
    column.addLayout(row);
    const auto take = [this] {
        if (Chosen() > 0) accept();
    };
    const auto allow = [this, open] { open->setEnabled(Chosen() > 0); };
    allow();
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this, allow);
    connect(open, &QPushButton::clicked, this, take);
    connect(list_, &QListView::doubleClicked, this, take);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

int GridChooser::Chosen() const {
    const QModelIndex current = list_->currentIndex();
    return current.isValid() && grids_[static_cast<std::size_t>(current.row())].fits ? current.row() + 1 : 0;
}

}  // namespace tidewalk
