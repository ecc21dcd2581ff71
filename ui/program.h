// SPDX-License-Identifier: MIT
// The windowed program: the game, its seams and its windows.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "program/form_load.h"
#include "ui/board_pictures.h"
#include "ui/file_picker.h"
#include "ui/form1.h"
#include "ui/form2.h"
#include "ui/form6.h"
#include "ui/help_window.h"
#include "ui/main_window.h"
#include "ui/pending_events.h"
#include "ui/prompts.h"
#include "ui/qt_background.h"
#include "ui/qt_choices.h"
#include "ui/qt_clipboard.h"
#include "ui/qt_play_store.h"
#include "ui/qt_printers.h"
#include "ui/qt_questions.h"

namespace tidewalk {

/// Owns everything and ties it together. Side windows are members here, made once, when a command opens
/// them for the first time from its handler, which gets this object; they stay to the end.
class Program final {
 public:
    Program();
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Game& game() { return *game_; }
    Form1& form1() { return form1_; }
    Form2& form2();
    Form6& form6();
    Handlers& handlers() { return handlers_; }
    HelpWindow& help();
    QtPrompts& prompts() { return prompts_; }

    /// Shows the main window and runs `Form_Load`, whose text is returned if the program cannot start.
    std::optional<std::string> Start(const StartRequest& request);

 private:
    Handlers handlers_;
    Form1 form1_;
    QtQuestions questions_;
    QtPrompts prompts_;
    QtFilePicker filePicker_;
    QtMainWindow window_;
    QtBoardPictures pictures_;
    QtPendingEvents events_;
    SystemClock clock_;
    QtChoices choices_;
    QtClipboard clipboard_;
    // Made when they are opened for the first time.
    std::optional<HelpWindow> help_;
    std::optional<Form2> form2_;
    std::optional<Form6> form6_;
    QtPrinters printers_;
    QtBackground background_;
    QtPlayStore plays_;
    std::unique_ptr<Game> game_;
};

}  // namespace tidewalk
