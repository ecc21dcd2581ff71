// SPDX-License-Identifier: MIT
#include "ui/board_accessible.h"

#include <QPointer>
#include <QWindow>
#include <algorithm>

#include "board/board_keys.h"
#include "board/board_mouse.h"
#include "board/mistakes.h"
#include "ui/board_pictures.h"
#include "ui/board_pixels.h"

namespace tidewalk {

namespace {

/// What the status line says, and on which island a failed check has ended.
QString StatusWithPlace(const Game& game) {
    const QString status = QString::fromStdString(game.window.Text(WindowText::Status));
    const QString place = FramedIslandName(game);
    return place.isEmpty() ? status : status + ": " + place;
}

/// The pairs of the island that are marked, as ", no bridge to row 3, column 9".
QString MarkText(const Board& board, CellNumber id) {
    QString text;
    for (const auto& [a, b] : board.Marks.All()) {
        if (a != id && b != id) continue;
        const CellPlace other = board.puzzle.PlaceOf(a == id ? b : a);
        text += QObject::tr(", no bridge to row %1, column %2").arg(other.row).arg(other.col);
    }
    return text;
}

/// True when a bridge of the island runs over one of the cells.
bool RunsOver(const Board& board, CellNumber id, const std::vector<CellNumber>& cells) {
    for (const auto& [a, b, bridges] : board.BridgeState.InBothOrders()) {
        if (a != id) continue;
        const auto lies = [&board, from = std::min(a, b), to = std::max(a, b)](CellNumber cell) {
            const bool inLine =
                board.puzzle.CellRow(from) == board.puzzle.CellRow(to) || (cell - from) % board.puzzle.Cols == 0;
            return from < cell && cell < to && inLine;
        };
        if (std::any_of(cells.begin(), cells.end(), lies)) return true;
    }
    return false;
}

/// The mistakes at the island that the player wants to see.
QString MistakeText(const Game& game, CellNumber id) {
    const Options& options = game.options;
    if (!options.ShowOverfull && !options.ShowCrossings && !options.ShowClosedGroups) return {};
    const Board& board = game.board;
    const Mistakes mistakes = FindMistakes(board.puzzle, board.BridgeState);
    const auto isIn = [id](const std::vector<CellNumber>& cells) {
        return std::binary_search(cells.begin(), cells.end(), id);
    };
    QString text;
    if (options.ShowOverfull && isIn(mistakes.overfull)) text += QObject::tr(", too many bridges");
    if (options.ShowCrossings && RunsOver(board, id, mistakes.crossings))
        text += QObject::tr(", its bridge is crossed");
    if (options.ShowCrossings && RunsOver(board, id, mistakes.runOver))
        text += QObject::tr(", its bridge runs over an island");
    if (options.ShowCrossings && isIn(mistakes.runOver)) text += QObject::tr(", a bridge runs over it");
    if (options.ShowClosedGroups && isIn(mistakes.closed)) text += QObject::tr(", in a closed group");
    return text;
}

/// The board's game while its islands are the player's, otherwise nothing.
Game* QuietGame(const BoardView* board) {
    Game* const game = board == nullptr ? nullptr : board->Source().game();
    return game == nullptr || game->job.BusyFlag() ? nullptr : game;
}

/// One island of one puzzle. It stays behind as an invalid one when that puzzle is gone.
class IslandAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
    IslandAccessible(BoardView* board, CellNumber id, int loadCount) : board_(board), id_(id), loadCount_(loadCount) {}

    CellNumber Id() const { return id_; }

    bool isValid() const override { return Current() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return board_ == nullptr ? nullptr : board_->window()->windowHandle(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(board_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::Role role() const override { return QAccessible::Button; }

    QString text(QAccessible::Text what) const override {
        const Game* const game = Current();
        if (game != nullptr && what == QAccessible::Name) return IslandName(*game, id_);
        const bool hasStatus = game != nullptr && what == QAccessible::Description && board_->StatusIsland() == id_;
        return hasStatus ? StatusWithPlace(*game) : QString();
    }

    QRect rect() const override {
        const Game* const game = Current();
        if (game == nullptr) return {};
        const double side = Pixels(game->board, game->board.layout.CellSize);
        QRectF cell(0, 0, side, side);
        cell.moveCenter(Pixels(game->board, game->board.At(id_)));
        return {board_->mapToGlobal(cell.topLeft().toPoint()), cell.size().toSize()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        const Game* const game = Current();
        state.invalid = game == nullptr;
        if (game == nullptr) return state;
        state.focusable = true;
        state.selectable = true;
        state.focused = board_->hasFocus() && FocusedIsland(game->board) == id_;
        state.selected = SelectedIsland(game->board) == id_;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& name) override {
        if (Current() == nullptr) return;
        board_->setFocus(Qt::OtherFocusReason);
        board_->Source().Run([&](Game& game) {
            FocusIsland(game, id_);
            if (name == pressAction()) Picture1_KeyDown(game, BoardKey::Lay);
        });
    }

 private:
    /// The game, if the island is still on its board.
    const Game* Current() const {
        const Game* const game = QuietGame(board_);
        return game != nullptr && game->board.loadCount == loadCount_ && game->board.puzzle.IslandAt(id_) > 0 ? game
                                                                                                              : nullptr;
    }

    QPointer<BoardView> board_;
    CellNumber id_;
    int loadCount_;
};

}  // namespace

QString IslandName(const Game& game, CellNumber id) {
    const Board& board = game.board;
    const auto [row, col] = board.puzzle.PlaceOf(id);
    return QObject::tr("row %1, column %2, needs %3, has %4")
               .arg(row)
               .arg(col)
               .arg(board.puzzle.IslandAt(id))
               .arg(board.BridgeState.CountAt(id)) +
           MarkText(board, id) + MistakeText(game, id);
}

QString FramedIslandName(const Game& game) {
    return game.board.Shape1.visible ? IslandName(game, game.board.puzzle.CellId(game.board.Shape1.cell)) : QString();
}

BoardAccessible::BoardAccessible(BoardView* board) : QAccessibleWidget(board, QAccessible::Grouping), board_(board) {}

BoardAccessible::~BoardAccessible() {
    ForgetIslands();
}

void BoardAccessible::Install() {
    static const bool once = [] {
        QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
            auto* const board = qobject_cast<BoardView*>(object);
            return board == nullptr ? nullptr : new BoardAccessible(board);
        });
        return true;
    }();
    Q_UNUSED(once);
}

void BoardAccessible::ForgetIslands() const {
    const auto ids = std::exchange(islands_, {});
    for (const QAccessible::Id id : ids)
        QAccessible::deleteAccessibleInterface(id);
}

std::vector<CellNumber> BoardAccessible::Islands() const {
    std::vector<CellNumber> found;
    const Game* const game = QuietGame(board_);
    if (game == nullptr) return found;
    for (CellNumber id = 1; id <= game->board.puzzle.CellCount(); ++id) {
        if (game->board.puzzle.IslandAt(id) > 0) found.push_back(id);
    }
    return found;
}

QAccessibleInterface* BoardAccessible::Island(CellNumber id) const {
    const Game* const game = QuietGame(board_);
    if (game == nullptr || id < 1 || id > game->board.puzzle.CellCount() || game->board.puzzle.IslandAt(id) <= 0)
        return nullptr;
    if (loadCount_ != game->board.loadCount) {
        ForgetIslands();
        loadCount_ = game->board.loadCount;
    }
    const auto known = islands_.constFind(id);
    if (known != islands_.constEnd()) return QAccessible::accessibleInterface(*known);
    auto* const made = new IslandAccessible(board_, id, loadCount_);
    islands_.insert(id, QAccessible::registerAccessibleInterface(made));
    return made;
}

int BoardAccessible::childCount() const {
    return static_cast<int>(Islands().size());
}

QAccessibleInterface* BoardAccessible::child(int index) const {
    const std::vector<CellNumber> all = Islands();
    return index >= 0 && index < static_cast<int>(all.size()) ? Island(all[static_cast<std::size_t>(index)]) : nullptr;
}

int BoardAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* const island = dynamic_cast<const IslandAccessible*>(child);
    const std::vector<CellNumber> all = Islands();
    const auto found = island == nullptr ? all.end() : std::find(all.begin(), all.end(), island->Id());
    return found == all.end() ? -1 : static_cast<int>(found - all.begin());
}

QAccessibleInterface* BoardAccessible::childAt(int x, int y) const {
    const Game* const game = QuietGame(board_);
    if (game == nullptr) return nullptr;
    const QPoint at = board_->mapFromGlobal(QPoint(x, y));
    const CellPlace cell = CellUnder(game->board.layout, Twips(game->board, at));
    return game->board.puzzle.OnBoard(cell.row, cell.col) ? Island(game->board.puzzle.CellId(cell)) : nullptr;
}

QAccessibleInterface* BoardAccessible::focusChild() const {
    const Game* const game = QuietGame(board_);
    QAccessibleInterface* const island =
        game != nullptr && board_->hasFocus() ? Island(FocusedIsland(game->board)) : nullptr;
    return island != nullptr ? island : QAccessibleWidget::focusChild();
}

IslandAnnouncer::IslandAnnouncer()
    : tell_([](QAccessibleInterface* island, QAccessible::Event what) {
          QAccessibleEvent event(island, what);
          QAccessible::updateAccessibility(&event);
      }) {}

void IslandAnnouncer::Announce(BoardView& view) {
    const Game* const game = QuietGame(&view);
    if (game == nullptr) return;
    const auto* const board = dynamic_cast<const BoardAccessible*>(QAccessible::queryAccessibleInterface(&view));
    if (board == nullptr) return;
    TellBridges(*game, *board);
    if (view.hasFocus()) TellFocus(*game, *board);
}

void IslandAnnouncer::AnnounceStatus(BoardView& view) {
    QAccessibleInterface* const board = QAccessible::queryAccessibleInterface(&view);
    QAccessibleInterface* const island = board == nullptr ? nullptr : board->focusChild();
    if (const Game* const game = QuietGame(&view)) statusIsland_ = FocusedIsland(game->board);
    if (board != nullptr) tell_(island == nullptr ? board : island, QAccessible::DescriptionChanged);
}

void IslandAnnouncer::TellBridges(const Game& game, const BoardAccessible& board) {
    if (loadCount_ == game.board.loadCount && undoRevision_ == game.board.history.Revision()) return;
    const bool samePuzzle = loadCount_ == game.board.loadCount;
    loadCount_ = game.board.loadCount;
    undoRevision_ = game.board.history.Revision();
    for (CellNumber id = 1; id <= game.board.puzzle.CellCount(); ++id) {
        if (game.board.puzzle.IslandAt(id) <= 0) continue;
        const QString had = std::exchange(names_[id], IslandName(game, id));
        if (samePuzzle && had != names_[id]) tell_(board.Island(id), QAccessible::NameChanged);
    }
}

void IslandAnnouncer::TellFocus(const Game& game, const BoardAccessible& board) {
    const CellNumber now = FocusedIsland(game.board);
    if (std::exchange(focused_, now) == now) return;
    statusIsland_ = 0;
    if (now != 0) tell_(board.Island(now), QAccessible::Focus);
}

}  // namespace tidewalk
