// SPDX-License-Identifier: MIT
// How a puzzle is painted in the list to choose from.
#pragma once

#include <QStyledItemDelegate>

#include "ui/puzzle_list_model.h"

namespace tidewalk {

/// A small picture, and up to four lines: number and size, grade, solutions, how far it is played and in what time.
class PuzzleCardDelegate final : public QStyledItemDelegate {
 public:
    PuzzleCardDelegate(PuzzleBook& book, const PuzzleListModel& model, QObject* parent);

    /// Of a picture, in pixels: some twelve lines of text high.
    static int PictureSide(const QFontMetrics& font);
    /// Of a whole card, in pixels.
    static QSize CardSize(const QFontMetrics& font);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
    PuzzleBook& book_;
    const PuzzleListModel& model_;
};

}  // namespace tidewalk
