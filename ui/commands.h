// SPDX-License-Identifier: MIT
// The table of all commands, from which menus, tool bar and tests are made.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <vector>

#include "game/game.h"
#include "model/navigation.h"

namespace tidewalk {

class Program;

/// How a command was given.
struct Click {
    int index = 0;  ///< the control's place in its array
    MouseButton button = MouseButton::Left;
};

/// A command's routine. It reaches the game, and the windows that it may open, through the program.
using Handler = void (*)(Program&, const Click&);

/// One command. A command without a handler stands disabled.
struct Command {
    static constexpr int kNoIndex = -1;

    const char* menu = "";  ///< "Puzzle" or "Puzzle/Maintenance"; "" for none
    const char* name = "";  ///< the control's name, without the index
    int index = kNoIndex;   ///< its place in a control array; the object name then ends in it
    const char* text = "";  ///< in the menu, with the mark of its letter; "-" for a separator
    int bar = 0;            ///< its place in the tool bar, counted from the left; 0 for none
    const char* word = "";  ///< below its picture in the tool bar, where words are wanted
    const char* icon = "";
    const char* toolTip = "";  ///< "caption|hint" of the tool bar's control
    QList<QKeySequence> keys = {};
    MouseButton button = MouseButton::Left;    ///< what the menu item stands for
    Handler handler = nullptr;                 ///< on a click or on release
    bool (*available)(const Game&) = nullptr;  ///< whether it can be given now; nothing for always
    bool (*checked)(const Game&) = nullptr;    ///< whether its menu item is ticked; nothing for one without a tick
    bool holds = false;         ///< holding its button of the tool bar down is a click with the right mouse button
    bool narrow = false;        ///< its button of the tool bar belongs to the one on its left
    Handler pressed = nullptr;  ///< when the button goes down; `handler` then follows however it comes up again

    bool IsSeparator() const { return QLatin1String(text) == QLatin1String("-"); }
    bool IsEnabled() const { return handler != nullptr; }
    QString ObjectName() const;
    /// How the command was given with this mouse button.
    Click ClickWith(MouseButton with) const { return {index == kNoIndex ? 0 : index, with}; }
};

/// All commands, those of each menu in their order.
const std::vector<Command>& Commands();

/// The commands of the tool bar, left to right.
std::vector<const Command*> ToolBarCommands();

/// The menus of the menu bar, left to right.
const std::vector<QString>& MenuTitles();

}  // namespace tidewalk
