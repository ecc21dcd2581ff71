// SPDX-License-Identifier: MIT
#include "ui/board_overlay.h"

#include <QPainter>
#include <array>
#include <cmath>
#include <utility>

#include "board/magnify.h"
#include "drawing/contrast.h"
#include "ui/board_pictures.h"
#include "ui/board_pixels.h"
#include "ui/guide_painter.h"

namespace tidewalk {

namespace {

/// True when the rubber band leads to the island with the keyboard's focus.
bool EndsAtFocus(const Board& board) {
    const CellNumber id = FocusedIsland(board);
    return id != 0 && board.focusShows && board.Line1.to == board.At(id);
}

}  // namespace

BoardOverlay::BoardOverlay(Handlers& handlers, const BoardView& board, QWidget* parent)
    : QWidget(parent), handlers_(handlers), board_(board) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
}

void BoardOverlay::paintEvent(QPaintEvent*) {
    const Game* const game = handlers_.game();
    if (game == nullptr || board_.isHidden()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(board_.pos());
    if (game->board.solved && !game->job.BusyFlag()) PaintSolved(painter, *game);
    PaintGuide(painter, *game);
    PaintPointed(painter, *game);
    if (board_.hasFocus() && game->board.focusShows && !game->job.BusyFlag()) PaintFocus(painter, *game);
    if (game->board.Line1.visible) PaintLine1(painter, *game);
    if (game->board.Shape1.visible) PaintShape1(painter, game->board);
    painter.resetTransform();
    PaintEdgeMarks(painter, *game);
}

/// Arrowheads in the middle of the edges beyond which the board goes on.
void BoardOverlay::PaintEdgeMarks(QPainter& painter, const Game& game) const {
    constexpr double kLong = 14;  // in pixels
    constexpr double kDeep = 7;
    constexpr double kAway = 4;
    const HiddenCells hidden = CellsOutOfSight(game);
    const QColor background = ToQColor(game.options.BoardBackground());
    const QColor colour = ToQColor(
        LegibleOn(game.options.BoardBackground(), game.options.SchemeColours[kHighlightEntry], kShapeContrast));
    const auto mark = [&](bool shows, const QPointF& tip, const QPointF& inwards) {
        if (!shows) return;
        const QPointF along(inwards.y(), inwards.x());
        const QPointF base = tip + inwards * kDeep;
        const QPolygonF head{{tip, base + along * kLong, base - along * kLong}};
        painter.setPen(QPen(background, 2));
        painter.setBrush(colour);
        painter.drawPolygon(head);
    };
    const double right = width();
    const double bottom = height();
    mark(hidden.left, {kAway, bottom / 2}, {1, 0});
    mark(hidden.right, {right - kAway, bottom / 2}, {-1, 0});
    mark(hidden.top, {right / 2, kAway}, {0, 1});
    mark(hidden.bottom, {right / 2, bottom - kAway}, {0, -1});
}

/// The rubber band begins with a ring, so that a selected island shows before the pointer has moved.
void BoardOverlay::PaintLine1(QPainter& painter, const Game& game) const {
    const Board& board = game.board;
    const QPointF from = Pixels(board, board.Line1.from);
    const QPointF to = Pixels(board, board.Line1.to);
    // Just outside of a square island's corners, which lie 0.75 times the square root of 2 from its middle.
    const double radius = Pixels(board, board.layout.HalfCell) * 1.06 + 3;
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
void BoardOverlay::PaintFocus(QPainter& painter, const Game& game) const {
    const Board& board = game.board;
    const CellNumber id = FocusedIsland(board);
    const bool selected = id == SelectedIsland(board);
    // The ring of the selected island says enough: whenever the focus is elsewhere, the corners show there.
    if (id == 0 || selected) return;
    const QPointF middle = Pixels(board, board.At(id));
    // Within the cell: on small boards hardly anything lies beside the first column.
    const double half = Pixels(board, board.layout.HalfCell) - 1;
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

/// A frame around the cells of a solved puzzle. It would not fit on the picture, where hardly anything lies beside the
/// first column.
void BoardOverlay::PaintSolved(QPainter& painter, const Game& game) const {
    const BoardLayout& layout = game.board.layout;
    const double pen = std::max(2.0, std::round(2 * layout.LineWidth * game.board.magnification));
    const double out = pen / 2;
    const Frame cells = CellsOf(layout);
    const QRectF frame(Pixels(game.board, Point{cells.left, cells.top}),
                       Pixels(game.board, Point{cells.left + cells.width, cells.top + cells.height}));
    const Colour colour = LegibleOn(game.options.BoardBackground(), game.options.ChainColour, kShapeContrast);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ToQColor(colour), pen, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(frame.adjusted(-out, -out, out, out));
}

/// Frames, strokes and crosses: shapes that tell what they mean without their colours.
void BoardOverlay::PaintGuide(QPainter& painter, const Game& game) const {
    const Board& board = game.board;
    const Guide* const guide = board.ShownGuide();
    if (guide == nullptr || game.job.BusyFlag()) return;
    GuidePainter(painter, board, game.options).Paint(*guide);
}

/// The two islands that the list of moves points at.
void BoardOverlay::PaintPointed(QPainter& painter, const Game& game) const {
    const auto [a, b] = game.board.pointed;
    if (a != 0 && !game.job.BusyFlag()) GuidePainter(painter, game.board, game.options).PaintPair(a, b);
}

/// A frame in two colours shows on any background.
void BoardOverlay::PaintShape1(QPainter& painter, const Board& board) const {
    const Point middle = board.layout.At(board.Shape1.cell);
    const double half = board.layout.HalfCell;
    const double side = Pixels(board, board.layout.CellSize);
    const QRectF rect(Pixels(board, Point{middle.x - half, middle.y - half}), QSizeF(side, side));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect);
    painter.setPen(QPen(QColor(220, 20, 60), 3, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect);
}

}  // namespace tidewalk
