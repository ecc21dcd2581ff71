// SPDX-License-Identifier: MIT
#include "ui/col_pik.h"

#include <QColorDialog>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include "drawing/contrast.h"
#include "ui/qt_surface.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

constexpr int kBrightest = 255;
constexpr int kPage = 16;
constexpr int kBarWidth = 160;  ///< in pixels

}  // namespace

ColPik::ColPik(QWidget* parent) : QWidget(parent), swatch_(new QLabel) {
    setAccessibleName(tr("Colour picker"));
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    AddChannel(layout, 0, tr("Red"), "red");
    AddChannel(layout, 1, tr("Green"), "green");
    AddChannel(layout, 2, tr("Blue"), "blue");
    swatch_->setObjectName("swatch");
    swatch_->setAlignment(Qt::AlignCenter);
    swatch_->setFrameShape(QFrame::Box);
    swatch_->setMinimumHeight(36);
    swatch_->setAutoFillBackground(true);
    swatch_->setCursor(Qt::PointingHandCursor);
    swatch_->installEventFilter(this);
    layout->addWidget(swatch_, 3, 0, 1, 3);
    layout->setRowStretch(3, 1);
    auto* const more = new QPushButton(tr("&More colours ..."));
    more->setObjectName("cmdmorecolours");
    more->setAutoDefault(false);
    GiveToolTip(*more, tr("Choose in the system's colour dialog"));
    connect(more, &QPushButton::clicked, this, &ColPik::OpenDialog);
    layout->addWidget(more, 4, 0, 1, 3);
    layout->setColumnStretch(1, 1);
    setFocusProxy(bars_.front());
    Clear();
}

void ColPik::AddChannel(QGridLayout* layout, int channel, const QString& text, const char* name) {
    const auto at = static_cast<std::size_t>(channel);
    auto* const bar = bars_[at] = new QScrollBar(Qt::Horizontal);
    bar->setObjectName(name);
    bar->setRange(0, kBrightest);
    bar->setPageStep(kPage);
    bar->setMinimumWidth(kBarWidth);
    bar->setFocusPolicy(Qt::StrongFocus);
    auto* const label = new QLabel(text);
    auto* const value = values_[at] = new QLabel;
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    value->setFixedWidth(value->fontMetrics().horizontalAdvance("0000"));
    bar->setAccessibleName(text);
    layout->addWidget(label, channel, 0);
    layout->addWidget(bar, channel, 1);
    layout->addWidget(value, channel, 2);
    connect(bar, &QScrollBar::valueChanged, this, [this] {
        selected_ = Rgb(bars_[0]->value(), bars_[1]->value(), bars_[2]->value());
        ShowColour();
        emit Picked(*selected_);
    });
}

void ColPik::Select(Colour colour) {
    const std::array<int, 3> channels{RedOf(colour), GreenOf(colour), BlueOf(colour)};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const QSignalBlocker quiet(bars_[i]);
        bars_[i]->setValue(channels[i]);
    }
    selected_ = colour;
    ShowColour();
}

void ColPik::Clear() {
    Select(Rgb(128, 128, 128));
    selected_.reset();
    ShowColour();
}

bool ColPik::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) OpenDialog();
    return QWidget::eventFilter(watched, event);
}

/// The colour of the dialog shows at once; one that is thought better of gives way to the old one.
void ColPik::OpenDialog() {
    if (dialog_ != nullptr) return;
    const Colour before = Rgb(bars_[0]->value(), bars_[1]->value(), bars_[2]->value());
    const bool hadNone = !selected_;
    dialog_ = new QColorDialog(ToQColor(before), this);
    dialog_->setObjectName("ColourDialog");
    dialog_->setWindowTitle(tr("More Colours"));
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setOption(QColorDialog::DontUseNativeDialog, QGuiApplication::platformName() == "offscreen");
    const auto pick = [this](const QColor& colour) {
        Select(FromQColor(colour));
        emit Picked(*selected_);
    };
    connect(dialog_, &QColorDialog::currentColorChanged, this, pick);
    connect(dialog_, &QColorDialog::colorSelected, this, pick);
    connect(dialog_, &QDialog::rejected, this, [this, before, hadNone] {
        Select(before);
        emit Picked(before);
        if (hadNone) Clear();
    });
    dialog_->open();
}

/// Its window has gone, so the dialog has nobody to choose for.
void ColPik::hideEvent(QHideEvent* event) {
    if (dialog_ != nullptr && !event->spontaneous()) dialog_->reject();
    QWidget::hideEvent(event);
}

void ColPik::ShowColour() {
    for (std::size_t i = 0; i < bars_.size(); ++i)
        values_[i]->setText(QString::number(bars_[i]->value()));
    swatch_->setText(selected_ ? ToQColor(*selected_).name() : tr("Move a bar to choose a colour"));
    QPalette colours;
    if (selected_) {
        colours.setColor(QPalette::Window, ToQColor(*selected_));
        colours.setColor(QPalette::WindowText, ToQColor(LegibleOn(*selected_, kBlack)));
    }
    swatch_->setPalette(colours);
}

}  // namespace tidewalk
