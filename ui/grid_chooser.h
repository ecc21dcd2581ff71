// SPDX-License-Identifier: MIT
// The window that asks which of several grids is meant.
#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QDialog>
#include <QListView>
#include <QPixmap>

#include "game/questions.h"
#include "options/options.h"

class QVBoxLayout;

namespace tidewalk {

/// The grids with their numbers, sizes and lines. A small picture is drawn when somebody looks at it.
class GridListModel final : public QAbstractListModel {
    Q_OBJECT

 public:
    /// Pictures have sides of so many pixels, on a screen of this pixel ratio. `grids` has to live as long.
    GridListModel(const std::vector<FoundGrid>& grids, Options options, int side, double ratio);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

 private:
    QPixmap Picture(int row) const;

    const std::vector<FoundGrid>& grids_;
    Options options_;
    int side_;
    double ratio_;
    mutable QCache<int, QPixmap> pictures_;
};

/// A list of the grids; those that no board can hold can be looked at, but not opened.
class GridChooser final : public QDialog {
    Q_OBJECT

 public:
    /// `choice` has to live as long.
    GridChooser(const GridChoice& choice, const Options& options, QWidget* parent);

    /// The number of the grid that is chosen, from 1; 0 for none, and for one that no board can hold.
    int Chosen() const;

 private:
    void ShowList(int side);
    void AddButtons(QVBoxLayout& column);

    const std::vector<FoundGrid>& grids_;
    GridListModel model_;
    QListView* list_;
};

}  // namespace tidewalk
