// SPDX-License-Identifier: MIT
#include "ui/board_pictures.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPaintEvent>
#include <QTouchEvent>
#include <QWheelEvent>
#include <cmath>
#include <map>
#include <optional>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/magnify.h"
#include "board/show_board.h"
#include "ui/board_pixels.h"

namespace tidewalk {

namespace {

constexpr double kScreenPixelsPerInch = 96;
constexpr int kContainerSide = 680;          ///< in pixels, where nothing else asks for another size
constexpr int kSmallestContainerSide = 120;  ///< in pixels
constexpr int kTimer1Milliseconds = 1000;

std::optional<MouseButton> ButtonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return MouseButton::Left;
    if (button == Qt::RightButton) return MouseButton::Right;
    if (button == Qt::MiddleButton) return MouseButton::Middle;
    return std::nullopt;
}

/// The direction in which a key with Ctrl lays a bridge; nothing for other keys.
std::optional<BoardKey> DirectionOf(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::ControlModifier) return std::nullopt;
    switch (event.key()) {
        case Qt::Key_Left:
            return BoardKey::Left;
        case Qt::Key_Right:
            return BoardKey::Right;
        case Qt::Key_Up:
            return BoardKey::Up;
        case Qt::Key_Down:
            return BoardKey::Down;
        default:
            return std::nullopt;
    }
}

/// What a key asks of the board; nothing for keys that belong to others.
std::optional<BoardKey> BoardKeyOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    const bool shift = modifiers == Qt::ShiftModifier;
    if (modifiers != Qt::NoModifier && !shift) return std::nullopt;
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return shift ? BoardKey::LayDouble : BoardKey::Lay;
        default:
            break;
    }
    static const std::map<int, BoardKey> keys{
        {Qt::Key_Left, BoardKey::Left},        {Qt::Key_Right, BoardKey::Right},   {Qt::Key_Up, BoardKey::Up},
        {Qt::Key_Down, BoardKey::Down},        {Qt::Key_Home, BoardKey::First},    {Qt::Key_End, BoardKey::Last},
        {Qt::Key_PageUp, BoardKey::Previous},  {Qt::Key_PageDown, BoardKey::Next}, {Qt::Key_Delete, BoardKey::Remove},
        {Qt::Key_Backspace, BoardKey::Remove}, {Qt::Key_X, BoardKey::Remove}};
    const auto found = keys.find(event.key());
    if (found == keys.end() || shift) return std::nullopt;
    return found->second;
}

/// The rectangle in pixels, for the largest panning that a mouse can do and beyond.
QRect PixelRect(const Board& board) {
    const Frame& frame = board.layout.Picture1;
    const auto whole = [&](double twips) {
        return static_cast<int>(std::lround(std::clamp(Pixels(board, twips), -1e6, 1e6)));
    };
    return {whole(frame.left), whole(frame.top), std::max(1, whole(std::ceil(frame.width))),
            std::max(1, whole(std::ceil(frame.height)))};
}

}  // namespace

BoardView::BoardView(Handlers& handlers, QWidget* parent)
    : QWidget(parent), handlers_(handlers), surface_(kScreenPixelsPerInch, kTwipsPerPixel) {
    // The first property that screen readers know of may already ask for the interface.
    BoardAccessible::Install();
    setObjectName("Picture1");
    setAccessibleName(tr("Board"));
    setAccessibleDescription(tr(
        "The arrow keys go from island to island, Enter selects one and lays bridges, Ctrl with an arrow key lays one "
        "at once"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&handlers_, &Handlers::Changed, this, &BoardView::Announce);
}

void BoardView::Place() {
    if (handlers_.game() == nullptr) return;
    setGeometry(PixelRect(handlers_.game()->board));
    FitBacking();
    update();
}

/// Makes the backing picture anew where its size, magnification or pixel ratio is no longer the widget's. What was
/// drawn is stretched until the board is drawn again.
void BoardView::FitBacking() {
    const double ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size()) * ratio).toSize();
    const double magnification = handlers_.game()->board.magnification;
    if (backing_.size() == wanted && backing_.devicePixelRatio() == ratio && magnification_ == magnification) return;
    magnification_ = magnification;
    stretched_ = true;
    surface_.SetTarget(nullptr);
    surface_.SetPixelsPerInch(kScreenPixelsPerInch * magnification);
    QPixmap fitted(wanted);
    if (backing_.isNull()) {
        fitted.fill(ToQColor(handlers_.game()->options.BoardBackground()));
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
    // The window may have come to a screen with another pixel ratio.
    FitBacking();
    // While a job runs the grids are the job's own.
    if (stretched_ && !game->job.BusyFlag()) RedrawBoard(*game, false);
    surface_.Finish();
    QPainter(this).drawPixmap(0, 0, backing_);
}

Point BoardView::OnBoard(const QPointF& global) const {
    return Twips(handlers_.game()->board, mapFromGlobal(global));
}

Point BoardView::InContainer(const QPointF& global) const {
    return Twips(handlers_.game()->board, parentWidget()->mapFromGlobal(global));
}

void BoardView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const auto button = ButtonOf(event->button());
    if (!button || !takesMouse_) return;
    const QPointF global = event->globalPosition();
    handlers_.Run([&](Game& game) { Picture1_MouseDown(game, *button, OnBoard(global), InContainer(global)); });
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

/// The board's keys are no shortcuts while it has the focus.
bool BoardView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (BoardKeyOf(key) || DirectionOf(key)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void BoardView::keyPressEvent(QKeyEvent* event) {
    if (const auto direction = DirectionOf(*event)) {
        event->accept();
        if (takesMouse_ && !event->isAutoRepeat()) handlers_.Run([&](Game& game) { LayTowards(game, *direction); });
        return;
    }
    const auto key = BoardKeyOf(*event);
    if (!key) return QWidget::keyPressEvent(event);
    event->accept();
    // A key that is held down walks over the board, but lays one bridge.
    const bool moves = *key != BoardKey::Lay && *key != BoardKey::LayDouble && *key != BoardKey::Remove;
    if (!takesMouse_ || (event->isAutoRepeat() && !moves)) return;
    handlers_.Run([&](Game& game) { Picture1_KeyDown(game, *key); });
}

void BoardView::Announce() {
    if (QAccessible::isActive()) announcer_.Announce(*this);
}

void BoardView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    announcer_.ForgetFocus();
    // Only the Tab key comes to play; a window that becomes active again shows no more than it did.
    if (byKey && takesMouse_) handlers_.Run(Picture1_GotFocus);
    Announce();
    emit FocusChanged();
}

void BoardView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    emit FocusChanged();
}

BoardContainer::BoardContainer(Handlers& handlers, QWidget* parent)
    : QWidget(parent),
      handlers_(handlers),
      board_(new BoardView(handlers, this)),
      overlay_(new BoardOverlay(handlers, *board_, this)),
      touch_(new BoardTouch(handlers, *this)) {
    setObjectName("Picture5");
    setMinimumSize(kSmallestContainerSide, kSmallestContainerSide);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // Of the board's touches, too: two fingers may be on both.
    setAttribute(Qt::WA_AcceptTouchEvents);
    connect(board_, &BoardView::FocusChanged, overlay_, qOverload<>(&QWidget::update));
    connect(&handlers_, &Handlers::Changed, this, [this] {
        // Less lies over the board while a job runs.
        const bool busy = handlers_.game()->job.BusyFlag();
        if (std::exchange(busy_, busy) != busy) overlay_->update();
    });
}

QSize BoardContainer::sizeHint() const {
    return {kContainerSide, kContainerSide};
}

void BoardContainer::paintEvent(QPaintEvent* event) {
    const Game* const game = handlers_.game();
    const bool drawn = game != nullptr && game->board.puzzle.Rows > 0;
    QPainter(this).fillRect(event->rect(),
                            drawn ? ToQColor(game->options.BoardBackground()) : palette().base().color());
}

void BoardContainer::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    overlay_->resize(size());
    handlers_.Run(Picture5_Resize);
}

/// The wheel scrolls, with Shift sideways, and with Ctrl it magnifies about the pointer.
void BoardContainer::wheelEvent(QWheelEvent* event) {
    constexpr double kNotch = 120;  // of the wheel's angle
    constexpr double kNotchFactor = 1.15;
    constexpr double kNotchPixels = 60;
    event->accept();
    const QPointF notches = QPointF(event->angleDelta()) / kNotch;
    if (event->modifiers().testFlag(Qt::ControlModifier))
        return MagnifyAt(std::pow(kNotchFactor, notches.y()), event->globalPosition());
    QPointF by = event->pixelDelta().isNull() ? notches * kNotchPixels : QPointF(event->pixelDelta());
    if (event->modifiers().testFlag(Qt::ShiftModifier) && by.x() == 0) by = by.transposed();
    handlers_.Run([&](Game& game) {
        const Point twips = Twips(game.board, by);
        ScrollBoard(game, twips.x, twips.y);
    });
}

void BoardContainer::MagnifyAt(double factor, const QPointF& global) {
    handlers_.Run([&](Game& game) {
        const Point at = InContainer(global);
        MagnifyBoard(game, game.board.magnification * factor, at, at);
    });
}

Point BoardContainer::InContainer(const QPointF& global) const {
    return Twips(handlers_.game()->board, mapFromGlobal(global));
}

bool BoardContainer::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            touch_->Take(*static_cast<QTouchEvent*>(event));
            return true;
        case QEvent::NativeGesture: {
            const auto& gesture = *static_cast<QNativeGestureEvent*>(event);
            if (gesture.gestureType() != Qt::ZoomNativeGesture) return QWidget::event(event);
            MagnifyAt(std::max(0.1, 1 + gesture.value()), gesture.globalPosition());
            return true;
        }
        default:
            return QWidget::event(event);
    }
}

/// Beside the board there is no island either, so that a drag moves it.
void BoardContainer::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const auto button = ButtonOf(event->button());
    if (!button || !board_->TakesMouse()) return;
    const QPointF at = event->globalPosition();
    handlers_.Run([&](Game& game) { Picture1_MouseDown(game, *button, board_->OnBoard(at), InContainer(at)); });
}

void BoardContainer::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!board_->TakesMouse()) return;
    const bool leftHeld = event->buttons().testFlag(Qt::LeftButton);
    const QPointF at = event->globalPosition();
    handlers_.Run([&](Game& game) { Picture1_MouseMove(game, leftHeld, board_->OnBoard(at), InContainer(at)); });
}

void BoardContainer::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    handlers_.Run([](Game& game) { Picture5_MouseUp(game); });
}

QtBoardPictures::QtBoardPictures(BoardContainer& container, Handlers& handlers)
    : container_(container), handlers_(handlers) {
    QObject::connect(&timer1_, &QTimer::timeout, &timer1_, [&handlers] { handlers.Run(Timer1_Timer); });
}

Surface::Extent QtBoardPictures::ContainerExtent() const {
    return {container_.width() * kTwipsPerPixel, container_.height() * kTwipsPerPixel};
}

double QtBoardPictures::DragDistance() const {
    const double pixels = QApplication::startDragDistance();
    return Twips(handlers_.game()->board, {pixels, 0}).x;
}

void QtBoardPictures::Freeze(bool frozen) {
    // What was drawn before still has to reach the screen.
    if (frozen) container_.Board().repaint();
    container_.Board().setUpdatesEnabled(!frozen);
}

Surface& QtBoardPictures::Picture() {
    // Who asks for it draws on it, and that has to come to the screen.
    container_.Board().update();
    return container_.Board().Drawing();
}

void QtBoardPictures::StartMarkerTime() {
    if (!timer1_.isActive()) timer1_.start(kTimer1Milliseconds);
}

}  // namespace tidewalk
