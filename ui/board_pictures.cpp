// SPDX-License-Identifier: MIT
#include "ui/board_pictures.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <array>
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
        {Qt::Key_Left, BoardKey::Left},       {Qt::Key_Right, BoardKey::Right},   {Qt::Key_Up, BoardKey::Up},
        {Qt::Key_Down, BoardKey::Down},       {Qt::Key_Home, BoardKey::First},    {Qt::Key_End, BoardKey::Last},
        {Qt::Key_PageUp, BoardKey::Previous}, {Qt::Key_PageDown, BoardKey::Next}, {Qt::Key_Delete, BoardKey::Remove},
        {Qt::Key_Backspace, BoardKey::Remove}};
    const auto found = keys.find(event.key());
    if (found == keys.end() || shift) return std::nullopt;
    return found->second;
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

/// True when the rubber band leads to the island with the keyboard's focus.
bool EndsAtFocus(const Board& board) {
    const CellNumber id = FocusedIsland(board);
    return id != 0 && board.focusShows && board.Line1.to == board.At(id);
}

}  // namespace

BoardView::BoardView(Handlers& handlers, QWidget* parent)
    : QWidget(parent), handlers_(handlers), surface_(kScreenPixelsPerInch, kTwipsPerPixel) {
    // The first property that screen readers know of may already ask for the interface.
    BoardAccessible::Install();
    setObjectName("Picture1");
    setAccessibleName(tr("Board"));
    setAccessibleDescription(tr("The arrow keys go from island to island, Enter selects one and lays bridges"));
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
    QPainter painter(this);
    painter.drawPixmap(0, 0, backing_);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus() && game->board.focusShows && !game->job.BusyFlag()) PaintFocus(painter, *game);
    if (game->board.Line1.visible) PaintLine1(painter, *game);
    if (game->board.Shape1.visible) PaintShape1(painter, game->board);
}

/// The rubber band begins with a ring, so that a selected island shows before the pointer has moved.
void BoardView::PaintLine1(QPainter& painter, const Game& game) const {
    const Board& board = game.board;
    const QPointF from(Pixels(board.Line1.from.x), Pixels(board.Line1.from.y));
    const QPointF to(Pixels(board.Line1.to.x), Pixels(board.Line1.to.y));
    // Just outside of a square island's corners, which lie 0.75 times the square root of 2 from its middle.
    const double radius = Pixels(board.layout.HalfCell) * 1.06 + 3;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ToQColor(game.options.ChainColour), 2, Qt::DashLine, Qt::RoundCap));
    // Inside the ring, and inside the frame of the keyboard's focus, the line would only strike the number out.
    QLineF band(from, to);
    const double lengthAtEnd = EndsAtFocus(board) ? radius : 0;
    if (band.length() > radius + lengthAtEnd) {
        const double whole = band.length();
        band = {band.pointAt(radius / whole), band.pointAt(1 - lengthAtEnd / whole)};
        painter.drawLine(band);
    }
    painter.setPen(QPen(ToQColor(game.options.BoardBackground()), 4));
    painter.drawEllipse(from, radius, radius);
    painter.setPen(QPen(ToQColor(game.options.ChainColour), 2));
    painter.drawEllipse(from, radius, radius);
}

/// The corners of a frame around the island: they leave its bridges free.
void BoardView::PaintFocus(QPainter& painter, const Game& game) const {
    const Board& board = game.board;
    const CellNumber id = FocusedIsland(board);
    const bool selected = id == SelectedIsland(board);
    // The ring of the selected island says enough: whenever the focus is elsewhere, the corners show there.
    if (id == 0 || selected) return;
    const QPointF middle(Pixels(board.At(id).x), Pixels(board.At(id).y));
    // Within the cell: on small boards hardly anything lies beside the first column.
    const double half = Pixels(board.layout.HalfCell) - 1;
    const double arm = half * 0.5;
    painter.setBrush(Qt::NoBrush);
    const QColor highlight = palette().color(QPalette::Highlight);
    for (const auto& [colour, width] :
         {std::pair{ToQColor(game.options.BoardBackground()), 6}, std::pair{highlight, 3}}) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        for (const int down : {-1, 1}) {
            for (const int right : {-1, 1}) {
                const QPointF corner = middle + QPointF(right * half, down * half);
                const std::array<QPointF, 3> bend{corner - QPointF(right * arm, 0), corner,
                                                  corner - QPointF(0, down * arm)};
                painter.drawPolyline(bend.data(), static_cast<int>(bend.size()));
            }
        }
    }
}

/// A frame in two colours shows on any background.
void BoardView::PaintShape1(QPainter& painter, const Board& board) const {
    const Point middle = board.layout.At(board.Shape1.cell);
    const double half = board.layout.HalfCell;
    const double side = Pixels(board.layout.CellSize);
    const QRectF rect(Pixels(middle.x - half), Pixels(middle.y - half), side, side);
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
    const QPointF global = event->globalPosition();
    handlers_.Run([&](Game& game) { Picture1_MouseDown(game, *button, InContainer(global)); });
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
    if (event->type() == QEvent::ShortcutOverride && BoardKeyOf(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void BoardView::keyPressEvent(QKeyEvent* event) {
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
    update();
}

void BoardView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
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
    const bool drawn = game != nullptr && game->board.puzzle.Rows > 0;
    QPainter(this).fillRect(event->rect(),
                            drawn ? ToQColor(game->options.BoardBackground()) : palette().base().color());
}

void BoardContainer::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    handlers_.Run([](Game& game) {
        if (game.board.puzzle.Rows > 0) CentreBoard(game);
    });
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
