// SPDX-License-Identifier: MIT
// The main window `Form1`: menus, tool bar, board, undo list, status line.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>

#include "ui/board_pictures.h"
#include "ui/commands.h"
#include "ui/handlers.h"

class QDockWidget;
class QLabel;
class QLineEdit;
class QProgressBar;
class QToolBar;

namespace tidewalk {

class BoxControl;
class HistoryView;
class LinesView;
class OrderPopup;
class TimeLabel;

/// The window's controls bear their given names. It decides nothing: what a control asks for goes to `onCommand` or
/// straight to the routine of that control.
class Form1 final : public QMainWindow {
    Q_OBJECT

 public:
    using OnCommand = std::function<void(Handler, const Click&)>;

    Form1(Handlers& handlers, OnCommand onCommand);

    BoardContainer& Container() { return *container_; }

    QString TextOf(WindowText which) const;
    void SetTextOf(WindowText which, const QString& text);
    void SetToolTipOf(WindowText which, const QString& toolTip);

    /// Opens the popup in which a new puzzle is ordered, at its button.
    void OpenOrder();

    /// Shows how far a job is; a total of 0 takes the bar away.
    void SetProgress(int done, int total);

    /// The lists take their lines from this game.
    void Show(Game& game);

    /// The place, size, docks and tool bar of the last run; at first a size in which the board's container is square.
    /// All fits on the screen.
    void TakePlace(const Choices& choices);

    void ToggleFullScreen();

 protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    void AddMenus();
    void AddMenuCommand(const Command& command);
    QMenu* MenuAt(const QString& path);
    void AddToolBar();
    void LetKeyboardUnfold(QToolBar& bar);
    QWidget* BarWidget(const Command& command);
    QWidget* BarButton(const Command& command);
    void AddNumberBox();
    void AddSizeBox();
    void TellOrder();
    void AddDocks();
    QDockWidget* AddDock(QWidget* list, const QString& caption);
    void OfferDock(QDockWidget* dock, const QString& caption);
    void TakeDefaultSize();
    void KeepPlace();
    void AddStatusLine();
    void RefreshLists();
    void RefreshCommands();
    void AnnounceStatus();
    QWidget* WidgetOf(WindowText which) const;
    static std::string DroppedFile(const QDropEvent& event);
    bool eventFilter(QObject* watched, QEvent* event) override;

    Handlers& handlers_;
    OnCommand onCommand_;
    std::map<QString, QMenu*> menus_;
    BoardContainer* container_;
    HistoryView* undoList_;
    LinesView* list1_;
    LinesView* list2_;
    QLabel* pb_;
    QProgressBar* progress_;
    QLineEdit* puzNumNow_;
    QLabel* puzNumber_;
    QLabel* puzfile_;
    QLineEdit* gridSize_;
    QLabel* assessment_;
    QLabel* tried_;
    TimeLabel* time_;
    OrderPopup* order_ = nullptr;  ///< none before it is opened for the first time
    QAction* words_ = nullptr;     ///< ticked while the tool bar's buttons have words
    bool statusIsNew_ = false;     ///< it says something that was not announced yet
};

}  // namespace tidewalk
