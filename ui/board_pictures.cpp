// SPDX-License-Identifier: MIT
#include "ui/board_pictures.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <cmath>
#include <optional>

#include "board/check_bridges.h"
#include "board/drawing.h"
#include "board/layout.h"
#include "model/job.h"

namespace tidewalk {

namespace {

constexpr double kScreenPixelsPerInch = 96;
constexpr int kContainerSide = 640;          ///< in pixels, where nothing else asks for another size
constexpr int kSmallestContainerSide = 280;  ///< in pixels
constexpr int kTimer1Milliseconds = 1000;

std::optional<MouseButton> ButtonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return MouseButton::Left;
    if (button == Qt::RightButton) return MouseButton::Right;
    if (button == Qt::MiddleButton) return MouseButton::Middle;
    return std::nullopt;
}

Point Twips(const QPointF& pixels) {
    return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel};
}

double Pixels(double twips) {
    return twips / kTwipsPerPixel;
}

/// The rectangle in pixels, for the largest panning that a mouse can do and beyond.
QRect PixelRect(const Frame& frame) {
    const auto whole = [](double twips) { return static_cast<int>(std::lround(std::clamp(Pixels(twips), -1e6, 1e6))); };
    return {whole(frame.left), whole(frame.top), std::max(1, whole(std::ceil(frame.width))),
            std::max(1, whole(std::ceil(frame.height)))};
}

}  // namespace

BoardView::BoardView(Handlers& handlers, QWidget* parent)
    : QWidget(parent), handlers_(handlers), surface_(kScreenPixelsPerInch, kTwipsPerPixel) {
    setObjectName("Picture1");
    setAccessibleName(tr("Board"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void BoardView::Place() {
    if (handlers_.game() == nullptr) return;
    setGeometry(PixelRect(handlers_.game()->Picture1));
    FitBacking();
    update();
}

/// Makes the backing picture anew where its size or pixel ratio is no longer the widget's. What was drawn stays until
/// the routine that changed the layout draws again.
void BoardView::FitBacking() {
    const double ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size()) * ratio).toSize();
    if (backing_.size() == wanted && backing_.devicePixelRatio() == ratio) return;
    surface_.SetTarget(nullptr);
    QPixmap fitted(wanted);
    if (backing_.isNull()) {
        fitted.fill(ToQColor(handlers_.game()->Picture1BackColor));
    } else {
        QPainter(&fitted).drawPixmap(fitted.rect(), backing_, backing_.rect());
    }
    backing_ = fitted;
    backing_.setDevicePixelRatio(ratio);
    surface_.SetTarget(&backing_);
}

void BoardView::paintEvent(QPaintEvent* event) {
    Game* const game = handlers_.game();
    if (game == nullptr || backing_.isNull()) {
        QPainter(this).fillRect(event->rect(), palette().base());
        return;
    }
    // The window has come to a screen with another pixel ratio. While a job runs the grids are the job's own.
    if (backing_.devicePixelRatio() != devicePixelRatioF()) {
        FitBacking();
        if (!JobRuns(*game)) RedrawBoard(*game, false);
    }
    surface_.Finish();
    QPainter painter(this);
    painter.drawPixmap(0, 0, backing_);
    painter.setRenderHint(QPainter::Antialiasing);
    if (game->Line1.visible) PaintLine1(painter, *game);
    if (game->Shape1.visible) PaintShape1(painter, *game);
}

/// The rubber band begins with a ring, so that a selected island shows before the pointer has moved.
void BoardView::PaintLine1(QPainter& painter, const Game& game) const {
    const QPointF from(Pixels(game.Line1.x1), Pixels(game.Line1.y1));
    const QPointF to(Pixels(game.Line1.x2), Pixels(game.Line1.y2));
    // Just outside of a square island's corners, which lie 0.75 times the square root of 2 from its middle.
    const double radius = Pixels(game.HalfCell) * 1.06 + 3;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ToQColor(game.ChainColour), 2, Qt::DashLine, Qt::RoundCap));
    // Inside the ring the line would only strike the island's number out.
    QLineF band(from, to);
    if (band.length() > radius) {
        band.setP1(band.pointAt(radius / band.length()));
        painter.drawLine(band);
    }
    painter.setPen(QPen(ToQColor(game.Picture1BackColor), 4));
    painter.drawEllipse(from, radius, radius);
    painter.setPen(QPen(ToQColor(game.ChainColour), 2));
    painter.drawEllipse(from, radius, radius);
}

/// A frame in two colours shows on any background.
void BoardView::PaintShape1(QPainter& painter, const Game& game) const {
    const Frame& frame = game.Shape1.frame;
    const QRectF rect(Pixels(frame.left), Pixels(frame.top), Pixels(frame.width), Pixels(frame.height));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect);
    painter.setPen(QPen(QColor(220, 20, 60), 3, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect);
}

Point BoardView::OnBoard(const QPointF& global) const {
    return Twips(mapFromGlobal(global));
}

Point BoardView::InContainer(const QPointF& global) const {
    return Twips(parentWidget()->mapFromGlobal(global));
}

void BoardView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const auto button = ButtonOf(event->button());
    if (!button || !takesMouse_) return;
    const Point cursor = InContainer(event->globalPosition());
    handlers_.Run([&](Game& game) { Picture1_MouseDown(game, *button, cursor); });
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!takesMouse_) return;
    const bool leftHeld = event->buttons().testFlag(Qt::LeftButton);
    const QPointF global = event->globalPosition();
    handlers_.Run([&](Game& game) { Picture1_MouseMove(game, leftHeld, OnBoard(global), InContainer(global)); });
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const auto button = ButtonOf(event->button());
    if (!button || !takesMouse_) return;
    const QPointF global = event->globalPosition();
    constexpr auto kModifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool shiftOnly = (event->modifiers() & kModifiers) == Qt::ShiftModifier;
    const bool inside = QRectF(rect()).contains(mapFromGlobal(global));
    handlers_.Run([&](Game& game) {
        Picture1_MouseUp(game, *button, shiftOnly, OnBoard(global));
        if (*button == MouseButton::Left && inside) Picture1_Click(game);
    });
}

void BoardView::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    if (!takesMouse_) return;
    const QPointF global = event->globalPosition();
    handlers_.Run([&](Game& game) { Picture1_MouseMove(game, false, OnBoard(global), InContainer(global)); });
}

BoardContainer::BoardContainer(Handlers& handlers, QWidget* parent)
    : QWidget(parent), handlers_(handlers), board_(new BoardView(handlers, this)) {
    setObjectName("Picture5");
    setMinimumSize(kSmallestContainerSide, kSmallestContainerSide);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize BoardContainer::sizeHint() const {
    return {kContainerSide, kContainerSide};
}

void BoardContainer::paintEvent(QPaintEvent* event) {
    const Game* const game = handlers_.game();
    const bool drawn = game != nullptr && game->Rows > 0;
    QPainter(this).fillRect(event->rect(), drawn ? ToQColor(game->Picture1BackColor) : palette().base().color());
}

void BoardContainer::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    handlers_.Run([](Game& game) {
        if (game.Rows > 0) CentreBoard(game);
    });
}

void BoardContainer::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    handlers_.Run([](Game& game) { Picture5_MouseUp(game); });
}

QtBoardPictures::QtBoardPictures(BoardContainer& container, Handlers& handlers) : container_(container) {
    QObject::connect(&timer1_, &QTimer::timeout, &timer1_, [&handlers] { handlers.Run(Timer1_Timer); });
}

Surface::Extent QtBoardPictures::Picture5Extent() const {
    return {container_.width() * kTwipsPerPixel, container_.height() * kTwipsPerPixel};
}

void QtBoardPictures::Freeze(bool frozen) {
    // What was drawn before still has to reach the screen.
    if (frozen) container_.Board().repaint();
    container_.Board().setUpdatesEnabled(!frozen);
}

void QtBoardPictures::EnableTimer1(bool enabled) {
    if (!enabled) timer1_.stop();
    // A timer that runs already goes on as it is.
    if (enabled && !timer1_.isActive()) timer1_.start(kTimer1Milliseconds);
}

}  // namespace tidewalk
