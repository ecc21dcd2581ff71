// SPDX-License-Identifier: MIT
// The number editor `Form6`.
#pragma once

#include <QDialog>

#include "model/number_grid.h"
#include "ui/handlers.h"
#include "ui/number_grid_view.h"

class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace tidewalk {

/// A blank grid of chosen rows and columns into which island numbers are typed. What was typed stays from one opening
/// to the next.
class Form6 final : public QDialog {
    Q_OBJECT

 public:
    Form6(Handlers& handlers, QWidget* parent);

    /// Shows the window until it is closed.
    void Open();

    const NumberGrid& grid() const { return grid_; }

 private:
    QSpinBox* AddSize(const char* name, int cells);
    QPushButton* AddButton(const char* name, const QString& text, const QString& toolTip);
    void AddSizes(QLayout* row);
    void AddButtons(QVBoxLayout* column);
    void ShowGrid();

    Handlers& handlers_;
    NumberGrid grid_;
    QSpinBox* rows_ = nullptr;
    QSpinBox* cols_ = nullptr;
    NumberGridView* view_;
};

}  // namespace tidewalk
