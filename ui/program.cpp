// SPDX-License-Identifier: MIT
#include "ui/program.h"

#include <QCoreApplication>

namespace tidewalk {

Program::Program()
    : form1_(handlers_,
             [this](Handler handler, const Click& click) {
                 if (handler != nullptr) handlers_.Run([&](Game&) { handler(*this, click); });
             }),
      help_(&form1_),
      prompts_(handlers_),
      filePicker_(handlers_),
      window_(form1_, handlers_),
      pictures_(form1_.Container(), handlers_),
      events_(handlers_),
      printers_(handlers_),
      form5_(handlers_),
      game_(std::make_unique<Game>(
          Seams{prompts_, filePicker_, window_, pictures_, board_, events_, clock_, clipboard_, printers_, form5_})) {
    prompts_.SetMainWindow(&form1_);
    filePicker_.SetMainWindow(&form1_);
    clipboard_.SetMainWindow(&form1_);
    printers_.SetMainWindow(&form1_);
    form5_.SetMainWindow(&form1_);
    QObject::connect(&handlers_, &Handlers::Ending, &help_, &QWidget::close);
    handlers_.Attach(*game_);
    form1_.Show(*game_);
}

Program::~Program() {
    // The windows outlive the game by a moment.
    handlers_.Detach();
}

std::optional<std::string> Program::Start(const StartRequest& request) {
    prompts_.SetCaption(QString::fromUtf8(AppTitle.data(), AppTitle.size()));
    form1_.TakeDefaultSize();
    form1_.show();
    // The container has its real size only after that, and the first puzzle is fitted to it.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    std::optional<std::string> fatal;
    handlers_.Run([&](Game& game) { fatal = Form_Load(game, request); });
    if (fatal) form1_.hide();
    return fatal;
}

}  // namespace tidewalk
