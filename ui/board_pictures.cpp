// SPDX-License-Identifier: MIT
#include "ui/board_pictures.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QTouchEvent>
#include <cmath>
#include <map>
#include <optional>

#include "board/board_commands.h"
#include "board/board_keys.h"
#include "board/show_board.h"

namespace tidewalk {

namespace {

constexpr double kScreenPixelsPerInch = 96;
constexpr int kContainerSide = 680;          ///< in pixels, where nothing else asks for another size
constexpr int kSmallestContainerSide = 280;  ///< in pixels
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

Point Twips(const QPointF& pixels) {
    return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel};
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
    // The first property that screen readers know of may already ask for the interface.
    BoardAccessible::Install();
    setObjectName("Picture1");
    setAccessibleName(tr("Board"));
    setAccessibleDescription(
        tr("The arrow keys go from island to island, Enter selects one and lays bridges, Ctrl and an arrow lays one at "
           "once"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&handlers_, &Handlers::Changed, this, &BoardView::Announce);
}

void BoardView::Place() {
    if (handlers_.game() == nullptr) return;
    setGeometry(PixelRect(handlers_.game()->board.layout.Picture1));
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
    // The window has come to a screen with another pixel ratio. While a job runs the grids are the job's own.
    if (backing_.devicePixelRatio() != devicePixelRatioF()) {
        FitBacking();
        if (!game->job.BusyFlag()) RedrawBoard(*game, false);
    }
    surface_.Finish();
    QPainter(this).drawPixmap(0, 0, backing_);
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
    handlers_.Run([](Game& game) {
        if (game.board.puzzle.Rows > 0) CentreBoard(game);
    });
}

Point BoardContainer::InContainer(const QPointF& global) const {
    return Twips(mapFromGlobal(global));
}

bool BoardContainer::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            touch_->Take(*static_cast<QTouchEvent*>(event));
            return true;
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

QtBoardPictures::QtBoardPictures(BoardContainer& container, Handlers& handlers) : container_(container) {
    QObject::connect(&timer1_, &QTimer::timeout, &timer1_, [&handlers] { handlers.Run(Timer1_Timer); });
}

Surface::Extent QtBoardPictures::ContainerExtent() const {
    return {container_.width() * kTwipsPerPixel, container_.height() * kTwipsPerPixel};
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
