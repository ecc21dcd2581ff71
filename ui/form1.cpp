// SPDX-License-Identifier: MIT
#include "ui/form1.h"

#include <QAccessible>
#include <QAction>
#include <QCloseEvent>
#include <QCryptographicHash>
#include <QDockWidget>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QProgressBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "board/show_board.h"
#include "generator/new_puzzle.h"
#include "program/exit.h"
#include "ui/box_control.h"
#include "ui/guide_panel.h"
#include "ui/history_view.h"
#include "ui/icons.h"
#include "ui/lines_view.h"
#include "ui/mnemonic.h"
#include "ui/order_popup.h"
#include "ui/recent_menu.h"
#include "ui/time_label.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

constexpr int kProgressWidth = 150;  ///< in pixels

// What is kept of the window from run to run.
constexpr const char* kGeometry = "window/geometry";
constexpr const char* kDocks = "window/docks";
constexpr const char* kWords = "window/words";
constexpr const char* kYesWord = "yes";

/// Of what a seal is made, in bytes of text.
constexpr int kSealLength = 16;

QByteArray SealOf(const QByteArray& state) {
    return QCryptographicHash::hash(state, QCryptographicHash::Sha256).toHex().left(kSealLength);
}

/// A state of the window as text.
std::string Sealed(const QByteArray& state) {
    return (SealOf(state) + state.toBase64()).toStdString();
}

/// The state of such a text, or an empty one. The toolkit would follow one in which bytes were changed wherever that
/// leads.
QByteArray Unsealed(const std::string& text) {
    const QByteArray sealed = QByteArray::fromStdString(text);
    QByteArray state = QByteArray::fromBase64(sealed.mid(kSealLength));
    return sealed.left(kSealLength) == SealOf(state) ? state : QByteArray();
}

LineSource SourceOf(const ListBox& list) {
    return {[&list] { return list.Revision(); }, [&list] { return static_cast<int>(list.Lines().size()); },
            [&list](int line) { return list.Lines()[static_cast<std::size_t>(line)]; }};
}

/// The title of a menu with the mark of a letter that leads to nothing else in `place`, the bar or another menu.
QString TitleIn(const QWidget& place, const QString& title) {
    QString taken;
    for (const QAction* const action : place.actions())
        taken += action->text().section('&', 1).left(1);
    return WithMnemonic(title, taken);
}

/// A text box as wide as `sample`.
void FitWidth(QLineEdit* box, const QString& sample) {
    constexpr int kFrame = 12;
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(sample) + kFrame);
}

}  // namespace

Form1::Form1(Handlers& handlers, OnCommand onCommand)
    : handlers_(handlers),
      onCommand_(std::move(onCommand)),
      container_(new BoardContainer(handlers)),
      undoList_(new HistoryView(handlers)),
      list1_(new LinesView("List1")),
      list2_(new LinesView("List2")),
      pb_(new QLabel),
      progress_(new QProgressBar),
      puzNumNow_(new QLineEdit),
      puzNumber_(new QLabel),
      puzfile_(new QLabel),
      gridSize_(new QLineEdit),
      assessment_(new QLabel),
      tried_(new QLabel),
      time_(new TimeLabel(handlers)) {
    setObjectName("Form1");
    setWindowTitle(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
    // The right button is a click on many controls here; a menu of tool bars must not come in between.
    setContextMenuPolicy(Qt::NoContextMenu);
    AddNumberBox();
    AddSizeBox();
    AddMenus();
    AddToolBar();
    setCentralWidget(container_);
    AddDocks();
    AddStatusLine();
    connect(&handlers_, &Handlers::Changed, this, &Form1::RefreshLists);
    connect(&handlers_, &Handlers::Changed, this, &Form1::RefreshCommands);
    connect(&handlers_, &Handlers::Changed, this, &Form1::AnnounceStatus);
    connect(&handlers_, &Handlers::Changed, this, &Form1::TellOrder);
    setAcceptDrops(true);
    connect(&handlers_, &Handlers::Ending, this, [this] {
        KeepPlace();
        hide();
    });
    container_->Board().setFocus();
}

void Form1::AddMenus() {
    for (const QString& title : MenuTitles())
        MenuAt(title);
    for (const Command& command : Commands()) {
        if (*command.menu != '\0') AddMenuCommand(command);
    }
    FillWhenOpened(*MenuAt("Puzzle/Recent Files"), handlers_);
}

/// The menu at a path such as "Puzzle/Maintenance", made if need be.
QMenu* Form1::MenuAt(const QString& path) {
    QMenu*& menu = menus_[path];
    if (menu != nullptr) return menu;
    const QString parent = path.section('/', 0, -2);
    const QString title = path.section('/', -1);
    if (parent.isEmpty()) {
        menu = menuBar()->addMenu(TitleIn(*menuBar(), title));
    } else {
        QMenu* const around = MenuAt(parent);
        menu = around->addMenu(TitleIn(*around, title));
    }
    return menu;
}

void Form1::AddMenuCommand(const Command& command) {
    QMenu* const menu = MenuAt(command.menu);
    if (command.IsSeparator()) {
        menu->addSeparator()->setObjectName(command.ObjectName());
        return;
    }
    QAction* const action = menu->addAction(command.text);
    action->setObjectName(command.ObjectName());
    action->setProperty("icon name", command.icon);
    action->setIcon(MakeIcon(command.icon, palette()));
    action->setShortcuts(command.keys);
    action->setEnabled(command.IsEnabled());
    action->setCheckable(command.checked != nullptr);
    const Handler handler = command.handler;
    const Click click = command.ClickWith(command.button);
    connect(action, &QAction::triggered, this, [this, handler, click] { onCommand_(handler, click); });
}

void Form1::AddToolBar() {
    auto* const bar = addToolBar(tr("Tool bar"));
    bar->setObjectName("ToolBar");
    bar->setMovable(false);
    bar->toggleViewAction()->setText(tr("&Tool Bar"));
    MenuAt("Tide/View")->addAction(bar->toggleViewAction());
    words_ = MenuAt("Tide/View")->addAction(tr("&Words in the Tool Bar"));
    words_->setObjectName("viewWords");
    words_->setCheckable(true);
    connect(words_, &QAction::toggled, bar, [bar](bool shown) {
        bar->setToolButtonStyle(shown ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    });
    for (const Command* command : ToolBarCommands()) {
        if (command->IsSeparator()) {
            bar->addSeparator()->setObjectName(command->ObjectName());
        } else {
            bar->addWidget(BarWidget(*command));
        }
    }
    LetKeyboardUnfold(*bar);
}

/// The button that shows what a narrow window has no room for: Qt made it for the mouse alone, but some commands are
/// nowhere else.
void Form1::LetKeyboardUnfold(QToolBar& bar) {
    auto* const unfold = bar.findChild<QToolButton*>("qt_toolbar_ext_button");
    if (unfold == nullptr) return;
    GiveToolTip(*unfold, tr("More buttons|Those that the window is too narrow for"));
    unfold->setAccessibleName(tr("More buttons"));
    unfold->setFocusPolicy(Qt::TabFocus);
}

/// The control of a tool bar's place: one of the boxes, or a picture button.
QWidget* Form1::BarWidget(const Command& command) {
    QWidget* control = nullptr;
    for (QWidget* const box : std::initializer_list<QWidget*>{puzNumNow_, puzNumber_, gridSize_}) {
        if (box->objectName() == command.ObjectName()) control = box;
    }
    if (control == nullptr) control = BarButton(command);
    const QString toolTip = command.toolTip;
    GiveToolTip(*control, toolTip);
    control->setAccessibleName(CaptionOf(toolTip));
    return control;
}

QWidget* Form1::BarButton(const Command& command) {
    auto* const button = new BoxControl(command.icon);
    button->setObjectName(command.ObjectName());
    button->setEnabled(command.IsEnabled());
    if (command.holds) button->TakeLongPress();
    button->setText(command.word);
    connect(findChild<QToolBar*>(), &QToolBar::toolButtonStyleChanged, button, &QToolButton::setToolButtonStyle);
    // Its picture keeps to the middle.
    if (command.narrow) button->setFixedWidth(button->sizeHint().width() * 2 / 3);
    const Command* const row = &command;
    if (command.pressed != nullptr) {
        connect(button, &BoxControl::pressed, this,
                [=, this] { onCommand_(row->pressed, row->ClickWith(row->button)); });
        connect(button, &BoxControl::released, this,
                [=, this] { onCommand_(row->handler, row->ClickWith(row->button)); });
    } else {
        connect(button, &BoxControl::Clicked, this,
                [=, this](MouseButton with) { onCommand_(row->handler, row->ClickWith(with)); });
    }
    return button;
}

void Form1::AddNumberBox() {
    puzNumNow_->setObjectName("PuzNumNow");
    puzNumNow_->setAlignment(Qt::AlignRight);
    FitWidth(puzNumNow_, "0000000");
    connect(puzNumNow_, &QLineEdit::returnPressed, this, [this] {
        handlers_.Run([](Game& game) { PuzNumNow_KeyPress(game, kEnterKey); });
        container_->Board().setFocus();
    });
    puzNumber_->setObjectName("PuzNumber");
    puzNumber_->setTextFormat(Qt::PlainText);
    puzNumber_->setMinimumWidth(puzNumber_->fontMetrics().horizontalAdvance(" of 0000"));
}

void Form1::AddSizeBox() {
    gridSize_->setObjectName("GridSize");
    gridSize_->setAlignment(Qt::AlignHCenter);
    gridSize_->setContextMenuPolicy(Qt::PreventContextMenu);
    gridSize_->installEventFilter(this);
    connect(gridSize_, &QLineEdit::returnPressed, this, [this] { container_->Board().setFocus(); });
    FitWidth(gridSize_, "25x25");
}

void Form1::OpenOrder() {
    auto* const make = findChild<BoxControl*>("cmdnew1");
    if (order_ == nullptr) {
        order_ = new OrderPopup(handlers_, this);
        connect(order_, &OrderPopup::SizeTyped, gridSize_, &QLineEdit::setText);
        connect(order_, &OrderPopup::Create, make, &BoxControl::click);
    }
    order_->OpenAt(*make, gridSize_->text());
}

/// The tip of the button tells what it would make.
void Form1::TellOrder() {
    const Game* const game = handlers_.game();
    if (game == nullptr) return;
    const QString order = QString::fromStdString(OrderText(ReadOrder(game->choices, OrderedFor::Board)));
    auto* const make = findChild<BoxControl*>("cmdnew1");
    if (make->accessibleDescription().startsWith(order + ".")) return;
    GiveToolTip(*make, tr("New puzzle|%1.\nIts size is set in the box beside, the rest with the arrow").arg(order));
}

/// The right button on the size box is no click into its text.
bool Form1::eventFilter(QObject* watched, QEvent* event) {
    if (watched == gridSize_ && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        handlers_.Run([](Game& game) { GridSize_MouseDown(game, MouseButton::Right); });
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void Form1::AddDocks() {
    GiveToolTip(*undoList_, tr("Your moves, the newest on top|Point at one to see it on the board, double-click to go "
                               "back or ahead to it"));
    AddDock(undoList_, tr("&Undo List"));
    auto* const guide = new GuidePanel(handlers_);
    addDockWidget(Qt::RightDockWidgetArea, guide);
    guide->hide();
    OfferDock(guide, tr("&Hints"));
    for (const auto& [list, caption] : {std::pair{list1_, tr("Work List &1")}, {list2_, tr("Work List &2")}}) {
        QDockWidget* const dock = AddDock(list, caption);
        dock->hide();
        // The list is the receiver, since docks still tell when the window is gone.
        connect(dock, &QDockWidget::visibilityChanged, list, [list = list](bool visible) {
            if (visible) list->Refresh();
        });
    }
}

QDockWidget* Form1::AddDock(QWidget* list, const QString& caption) {
    const QString title = QString(caption).remove('&');
    auto* const dock = new QDockWidget(title);
    dock->setObjectName("dock" + list->objectName());
    dock->setWidget(list);
    list->setAccessibleName(title);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    OfferDock(dock, caption);
    return dock;
}

/// An entry that shows or hides the dock.
void Form1::OfferDock(QDockWidget* dock, const QString& caption) {
    QAction* const toggle = dock->toggleViewAction();
    toggle->setObjectName("view" + dock->objectName().remove("dock"));
    toggle->setText(caption);
    MenuAt("Tide/View")->addAction(toggle);
}

void Form1::AddStatusLine() {
    pb_->setObjectName("pb");
    pb_->setTextFormat(Qt::PlainText);
    pb_->setAutoFillBackground(true);
    pb_->setBackgroundRole(QPalette::Base);
    pb_->setForegroundRole(QPalette::Text);
    pb_->setMargin(3);
    pb_->setMinimumWidth(1);
    progress_->setObjectName("Progress");
    progress_->setMaximumWidth(kProgressWidth);
    progress_->hide();
    puzfile_->setObjectName("Puzfile");
    puzfile_->setTextFormat(Qt::PlainText);
    puzfile_->setMargin(3);
    statusBar()->addWidget(pb_, 1);
    tried_->setObjectName("Tried");
    tried_->hide();
    statusBar()->addWidget(tried_);
    statusBar()->addWidget(progress_);
    assessment_->setObjectName("Assessment");
    assessment_->setTextFormat(Qt::PlainText);
    assessment_->setMargin(3);
    statusBar()->addPermanentWidget(time_);
    statusBar()->addPermanentWidget(assessment_);
    statusBar()->addPermanentWidget(puzfile_);
}

QWidget* Form1::WidgetOf(WindowText which) const {
    switch (which) {
        case WindowText::Status:
            return pb_;
        case WindowText::PuzzleNumber:
            return puzNumNow_;
        case WindowText::PuzzleCount:
            return puzNumber_;
        case WindowText::CollectionName:
            return puzfile_;
        case WindowText::BoardSize:
            return gridSize_;
        case WindowText::Assessment:
            return assessment_;
        case WindowText::Tried:
            return tried_;
    }
    return nullptr;
}

QString Form1::TextOf(WindowText which) const {
    return WidgetOf(which)->property("text").toString();
}

void Form1::SetTextOf(WindowText which, const QString& text) {
    WidgetOf(which)->setProperty("text", text);
    if (which == WindowText::Status) statusIsNew_ = !text.isEmpty();
    if (which == WindowText::Tried) tried_->setVisible(!text.isEmpty());
}

void Form1::SetToolTipOf(WindowText which, const QString& toolTip) {
    GivePlainTip(*WidgetOf(which), toolTip);
}

void Form1::SetProgress(int done, int total) {
    progress_->setVisible(total > 0);
    progress_->setRange(0, total);
    progress_->setValue(done);
}

void Form1::Show(Game& game) {
    list1_->SetSource(SourceOf(game.List1));
    list2_->SetSource(SourceOf(game.List2));
}

void Form1::RefreshLists() {
    undoList_->Refresh();
    for (LinesView* const list : {list1_, list2_}) {
        if (list->isVisible()) list->Refresh();
    }
}

/// What a command has said in the end is told to screen readers, where the keyboard's focus is too: not all of them
/// listen to alerts.
void Form1::AnnounceStatus() {
    if (!std::exchange(statusIsNew_, false)) return;
    pb_->setAccessibleDescription(FramedIslandName(*handlers_.game()));
    QAccessibleEvent alert(pb_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    container_->Board().AnnounceStatus();
}

void Form1::RefreshCommands() {
    const Game* const game = handlers_.game();
    if (game == nullptr) return;
    for (const Command& command : Commands()) {
        if (command.available == nullptr && command.checked == nullptr) continue;
        const bool available = command.available == nullptr || command.available(*game);
        for (QAction* const action : findChildren<QAction*>(command.ObjectName())) {
            action->setEnabled(available);
            if (command.checked != nullptr) action->setChecked(command.checked(*game));
        }
        // One that has the keyboard keeps it: the next button would take what is pressed next.
        for (BoxControl* const button : findChildren<BoxControl*>(command.ObjectName()))
            button->setEnabled(available || button->hasFocus());
    }
}

void Form1::TakePlace(const Choices& choices) {
    words_->setChecked(choices.Get(kWords, "") == kYesWord);
    TakeDefaultSize();
    // A window that has lost its screen comes to another one.
    restoreGeometry(Unsealed(choices.Get(kGeometry, "")));
    restoreState(Unsealed(choices.Get(kDocks, "")));
    if (!isMaximized() && !isFullScreen() && QGuiApplication::platformName() != "offscreen")
        resize(size().boundedTo(screen()->availableSize()));
}

void Form1::KeepPlace() {
    Choices& choices = handlers_.game()->choices;
    choices.Set(kGeometry, Sealed(saveGeometry()));
    choices.Set(kDocks, Sealed(saveState()));
    choices.Set(kWords, words_->isChecked() ? kYesWord : "");
}

/// Beside the board there is room for hints from the start, so that it stays in its place when they come.
void Form1::TakeDefaultSize() {
    constexpr int kTitleBar = 48;     // with the frame and its shadows, in pixels
    constexpr int kSideFrames = 16;   // in pixels
    constexpr int kScreenShare = 60;  // per cent of the screen's height
    const int side = findChild<GuidePanel*>()->sizeHint().width();
    const int separator = style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, this);
    resizeDocks({findChild<QDockWidget*>("dockUndoList")}, {side}, Qt::Horizontal);
    QSize wanted = sizeHint().expandedTo({container_->sizeHint().width() + separator + side, 0});
    // Without a display there is no screen to fit on either.
    if (QGuiApplication::platformName() == "offscreen") return resize(wanted);
    const QSize room = screen()->availableSize() - QSize(kSideFrames, kTitleBar);
    // On a large screen the board takes its share.
    const int more = std::max(0, room.height() * kScreenShare / 100 - container_->sizeHint().height());
    wanted += QSize(more, more);
    // On the smallest it takes all.
    if (room.width() < 2 * side) findChild<QDockWidget*>("dockUndoList")->hide();
    const int less = std::max({0, wanted.width() - room.width(), wanted.height() - room.height()});
    // On a small screen the board gives way, but not the tool bar's last buttons.
    const int bar = std::min(findChild<QToolBar*>()->sizeHint().width(), room.width());
    resize(std::max(wanted.width() - less, bar), wanted.height() - less);
}

void Form1::ToggleFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

/// The path of the one file of a drop, byte for byte, or "".
std::string Form1::DroppedFile(const QDropEvent& event) {
    const QList<QUrl> urls = event.mimeData()->urls();
    if (urls.size() != 1 || !urls.first().isLocalFile()) return "";
    return QByteArray::fromPercentEncoding(urls.first().path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

void Form1::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event).empty()) event->acceptProposedAction();
}

void Form1::dropEvent(QDropEvent* event) {
    const std::string path = DroppedFile(*event);
    event->acceptProposedAction();
    // The program that the file was dragged from waits until this returns.
    QTimer::singleShot(0, this, [this, path] { handlers_.Run([&](Game& game) { OpenChosen(game, path); }); });
}

void Form1::closeEvent(QCloseEvent* event) {
    event->accept();
    handlers_.Run(Form_QueryUnload);
}

void Form1::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) time_->SetActive(isActiveWindow());
    if (event->type() != QEvent::PaletteChange) return;
    // Menu titles and icons have the text colour of buttons, and need to lie on what that is legible on.
    QPalette bars;
    bars.setColor(QPalette::Window, palette().color(QPalette::Button));
    bars.setColor(QPalette::WindowText, palette().color(QPalette::ButtonText));
    menuBar()->setPalette(bars);
    findChild<QToolBar*>()->setPalette(bars);
    for (QAction* const action : findChildren<QAction*>()) {
        const QString icon = action->property("icon name").toString();
        if (!icon.isEmpty()) action->setIcon(MakeIcon(icon, palette()));
    }
}

}  // namespace tidewalk
