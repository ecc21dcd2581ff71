// SPDX-License-Identifier: MIT
// The window that shows a page before it is printed.
#pragma once

#include <QDialog>
#include <QPageLayout>

class QHBoxLayout;
class QPrinter;
class QPrintPreviewWidget;
class QPushButton;

namespace tidewalk {

/// Shows the one page of a printer, portrait or landscape, at any size, and is accepted when it is to be printed so.
/// Unlike the toolkit's own window it offers nothing that pages of a fixed layout have no answer to: other sheets,
/// margins, several pages beside each other.
class PrintPreview final : public QDialog {
    Q_OBJECT

 public:
    PrintPreview(QPrinter& device, QWidget* parent);

    QPageLayout::Orientation Orientation() const;

 signals:
    /// The page is to be drawn on this printer.
    void PaintRequested(QPrinter* target);

 private:
    QPushButton* AddButton(QHBoxLayout& row, const char* name, const QString& text);

    QPrintPreviewWidget* page_;
};

}  // namespace tidewalk
