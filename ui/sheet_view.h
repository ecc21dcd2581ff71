// SPDX-License-Identifier: MIT
// A sheet of paper on the screen.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "drawing/sheet.h"

namespace tidewalk {

/// Shows what is drawn on one sheet, as large as the widget lets it be or at a size of its own, at which the widget
/// wants to be scrolled.
class SheetView final : public QWidget {
    Q_OBJECT

 public:
    /// Draws on the whole sheet, with pen widths as on paper.
    using Drawing = std::function<void(Surface&)>;

    /// Shows another sheet; `drawing` is kept for the sizes to come.
    void ShowSheet(const Sheet& sheet, Drawing drawing);
    void SetEnlarged(bool enlarged);
    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    QSizeF SizeOf(double pixelsPerInch) const;
    double PixelsPerInch() const;
    void Draw(double pixelsPerInch);

    Sheet sheet_;
    Drawing drawing_;
    bool enlarged_ = false;
    QPixmap drawn_;       ///< the sheet as it was painted last; null when it has to be drawn
    double drawnAt_ = 0;  ///< pixels per inch
};

}  // namespace tidewalk
