// SPDX-License-Identifier: MIT
// The board as a screen reader meets it: a child for each island, and word of what changes.
#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QString>
#include <functional>
#include <vector>

#include "game/game.h"

namespace tidewalk {

class BoardView;

/// How an island is read out: "row 3, column 5, needs 4, has 2", with its marks and the mistakes that are shown.
QString IslandName(const Game& game, CellNumber id);

/// The name of the island on which a failed check has ended, while it is framed; "" otherwise.
QString FramedIslandName(const Game& game);

/// The board. Its children are the islands, row by row; while a job works on the grids it has none.
class BoardAccessible final : public QAccessibleWidget {
 public:
    explicit BoardAccessible(BoardView* board);
    ~BoardAccessible() override;
    BoardAccessible(const BoardAccessible&) = delete;
    BoardAccessible& operator=(const BoardAccessible&) = delete;

    /// Makes such an interface for every board from now on.
    static void Install();

    /// The child of this island, made when somebody first asks for it.
    QAccessibleInterface* Island(CellNumber id) const;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

 private:
    std::vector<CellNumber> Islands() const;
    void ForgetIslands() const;

    BoardView* board_;
    mutable QHash<CellNumber, QAccessible::Id> islands_;
    mutable int loadCount_ = -1;  ///< the puzzle whose islands these are
};

/// Tells screen readers where the keyboard's focus has gone and which islands are read out otherwise now.
class IslandAnnouncer {
 public:
    using Tell = std::function<void(QAccessibleInterface*, QAccessible::Event)>;

    /// Tells the screen readers of the desktop.
    IslandAnnouncer();
    explicit IslandAnnouncer(Tell tell) : tell_(std::move(tell)) {}

    /// Compares the game with what was told last.
    void Announce(BoardView& view);

    /// Tells on the focused island, or on the board when there is none, what the status line says.
    void AnnounceStatus(BoardView& view);

    /// The island whose description that is, until the focus goes elsewhere; 0 for none.
    CellNumber StatusIsland() const { return statusIsland_; }

    /// The board has just received the keyboard: its island is told again.
    void ForgetFocus() { focused_ = 0; }

 private:
    void TellBridges(const Game& game, const BoardAccessible& board);
    void TellFocus(const Game& game, const BoardAccessible& board);

    Tell tell_;
    int loadCount_ = -1;
    std::uint64_t undoRevision_ = 0;
    QHash<CellNumber, QString> names_;
    CellNumber focused_ = 0;
    CellNumber statusIsland_ = 0;
};

}  // namespace tidewalk
