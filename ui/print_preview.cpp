// SPDX-License-Identifier: MIT
#include "ui/print_preview.h"

#include <QHBoxLayout>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace tidewalk {

namespace {

constexpr int kWidth = 760;  ///< in pixels
constexpr int kHeight = 820;
constexpr int kScreenShare = 90;  ///< per cent of the screen that the window may take

}  // namespace

PrintPreview::PrintPreview(QPrinter& device, QWidget* parent)
    : QDialog(parent), page_(new QPrintPreviewWidget(&device)) {
    setObjectName("PrintPreview");
    setWindowTitle(tr("Print Preview"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    page_->setObjectName("Page");
    page_->setAccessibleName(tr("Page"));
    auto* const row = new QHBoxLayout;
    auto* const portrait = AddButton(*row, "Portrait", tr("Po&rtrait"));
    auto* const landscape = AddButton(*row, "Landscape", tr("&Landscape"));
    auto* const out = AddButton(*row, "ZoomOut", tr("Zoom &Out"));
    auto* const in = AddButton(*row, "ZoomIn", tr("Zoom &In"));
    auto* const fit = AddButton(*row, "Fit", tr("&Fit"));
    row->addStretch();
    auto* const print = AddButton(*row, "Print", tr("&Print ..."));
    auto* const close = AddButton(*row, "Close", tr("&Close"));
    auto* const all = new QVBoxLayout(this);
    all->addLayout(row);
    all->addWidget(page_);
    connect(page_, &QPrintPreviewWidget::paintRequested, this, &PrintPreview::PaintRequested);
    connect(portrait, &QPushButton::clicked, page_, &QPrintPreviewWidget::setPortraitOrientation);
    connect(landscape, &QPushButton::clicked, page_, &QPrintPreviewWidget::setLandscapeOrientation);
    connect(out, &QPushButton::clicked, page_, [this] { page_->zoomOut(); });
    connect(in, &QPushButton::clicked, page_, [this] { page_->zoomIn(); });
    connect(fit, &QPushButton::clicked, page_, &QPrintPreviewWidget::fitInView);
    connect(print, &QPushButton::clicked, this, &QDialog::accept);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    resize(QSize(kWidth, kHeight).boundedTo(screen()->availableSize() * kScreenShare / 100));
}

QPushButton* PrintPreview::AddButton(QHBoxLayout& row, const char* name, const QString& text) {
    auto* const button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    row.addWidget(button);
    return button;
}

QPageLayout::Orientation PrintPreview::Orientation() const {
    return page_->orientation();
}

}  // namespace tidewalk
