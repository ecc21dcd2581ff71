// SPDX-License-Identifier: MIT
#include "ui/program.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <QWindow>

#include "game/job.h"
#include "ui/icons.h"

namespace tidewalk {

namespace {

/// Leaves every box and side window as its frame would, so that the handlers which wait for them return.
void LeaveDialogs() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(window);
        if (dialog != nullptr && dialog->isVisible()) dialog->reject();
    }
}

/// Waits, but not for long, until the window is on the screen. A window manager gives it its place and size only then.
void WaitUntilShown(const QWidget& window) {
    constexpr int kPatience = 500;  // in milliseconds
    constexpr int kStep = 20;       // in milliseconds
    QElapsedTimer waited;
    waited.start();
    // Looking without a pause would take the processor from the display that is waited for.
    QTimer wake;
    wake.start(kStep);
    while (!window.windowHandle()->isExposed() && !waited.hasExpired(kPatience))
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

Program::Program()
    : form1_(handlers_,
             [this](Handler handler, const Click& click) {
                 if (handler == nullptr) return;
                 handlers_.Run([&](Game& game) {
                     ForgetStatus(game);
                     handler(*this, click);
                 });
             }),
      questions_(handlers_, form1_, plays_),
      prompts_(handlers_),
      filePicker_(handlers_),
      window_(form1_, handlers_),
      pictures_(form1_.Container(), handlers_),
      events_(handlers_),
      printers_(handlers_),
      background_(handlers_),
      game_(std::make_unique<Game>(Seams{.prompts = prompts_,
                                         .filePicker = filePicker_,
                                         .questions = questions_,
                                         .window = window_,
                                         .pictures = pictures_,
                                         .events = events_,
                                         .clock = clock_,
                                         .choices = choices_,
                                         .clipboard = clipboard_,
                                         .printers = printers_,
                                         .background = background_,
                                         .plays = plays_})) {
    prompts_.SetMainWindow(&form1_);
    filePicker_.SetMainWindow(&form1_);
    clipboard_.SetMainWindow(&form1_);
    printers_.SetMainWindow(&form1_);
    // What was played is safe wherever the player goes next.
    QObject::connect(&handlers_, &Handlers::Ending, &form1_, [this] { plays_.Flush(); });
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &form1_, [this] { plays_.Flush(); });
    handlers_.Attach(*game_);
    QObject::connect(&handlers_, &Handlers::Ending, &form1_, LeaveDialogs);
    form1_.Show(*game_);
}

Program::~Program() {
    // The windows outlive the game by a moment.
    handlers_.Detach();
}

Form2& Program::form2() {
    if (!form2_) form2_.emplace(handlers_, &form1_);
    return *form2_;
}

Form6& Program::form6() {
    if (!form6_) form6_.emplace(handlers_, &form1_);
    return *form6_;
}

HelpWindow& Program::help() {
    if (!help_) {
        help_.emplace(&form1_);
        QObject::connect(&handlers_, &Handlers::Ending, &*help_, &QWidget::close);
    }
    return *help_;
}

std::optional<std::string> Program::Start(const StartRequest& request) {
    const QString folder = QFile::decodeName(request.appFolder.c_str());
    choices_.UseFolder(folder);
    plays_.UseFolder(folder);
    prompts_.SetCaption(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
    form1_.TakePlace(choices_);
    form1_.show();
    // The first puzzle is fitted to the container, and messages lie over the window's middle.
    WaitUntilShown(form1_);
    // For the icon of a window it is drawn in several sizes at once, which the first paint need not wait for.
    QApplication::setWindowIcon(ProgramIcon());
    std::optional<std::string> fatal;
    handlers_.Run([&](Game& game) { fatal = Form_Load(game, request); });
    if (fatal) form1_.hide();
    return fatal;
}

}  // namespace tidewalk
