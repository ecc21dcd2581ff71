// SPDX-License-Identifier: MIT
#include "ui/commands.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <set>

#include "ui/tool_tip.h"
#include "window_game.h"

namespace tidewalk::test {
namespace {

TEST(Commands, EveryRowStandsWhereTheTableSays) {
    WindowGame window;
    for (const Command& command : Commands()) {
        const std::string name = command.ObjectName().toStdString();
        if (*command.menu != '\0') {
            const QAction& action = window.Find<QAction>(name.c_str());
            EXPECT_EQ(qobject_cast<QMenu*>(action.parent())->title().remove('&'),
                      QString(command.menu).section('/', -1))
                << name;
            EXPECT_EQ(action.isSeparator(), command.IsSeparator()) << name;
            if (!command.IsSeparator()) {
                EXPECT_EQ(action.text(), command.text);
                EXPECT_EQ(action.isEnabled(), command.handler != nullptr) << name;
            }
        }
        if (command.bar > 0 && !command.IsSeparator()) {
            const QWidget& control = window.Find<QWidget>(name.c_str());
            EXPECT_NE(qobject_cast<QToolBar*>(control.parentWidget()), nullptr) << name;
            EXPECT_EQ(control.toolTip(), ToolTipText(*command.toolTip != '\0' ? command.toolTip : command.text));
            if (*command.icon != '\0') {
                EXPECT_FALSE(window.Button(name.c_str()).icon().isNull()) << name;
                EXPECT_EQ(control.isEnabled(), command.handler != nullptr) << name;
                EXPECT_FALSE(control.accessibleName().isEmpty()) << name;
            }
        }
    }
}

TEST(Commands, NamesPlacesAndShortcutsAreTheirOwn) {
    std::set<QString> names;
    std::set<int> places;
    std::set<QString> keys;
    for (const Command& command : Commands()) {
        EXPECT_TRUE(names.insert(command.ObjectName()).second) << command.name;
        if (command.bar > 0) {
            EXPECT_TRUE(places.insert(command.bar).second) << command.name;
        }
        for (const QKeySequence& key : command.keys) {
            EXPECT_FALSE(key.isEmpty()) << command.name;
            EXPECT_TRUE(keys.insert(key.toString()).second) << command.name << " " << key.toString().toStdString();
        }
    }
}

TEST(Commands, TheMenuBarHasItsFourMenus) {
    WindowGame window;
    std::vector<std::string> titles;
    std::set<QString> mnemonics;
    for (const QAction* const menu : window.form().menuBar()->actions()) {
        titles.push_back(menu->text().remove('&').toStdString());
        EXPECT_TRUE(mnemonics.insert(menu->text().section('&', 1).left(1).toLower()).second) << titles.back();
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"Tide", "Puzzle", "Solve", "Print"}));
}

TEST(ToolTip, TheHintStandsUnderTheCaptionAndTextStaysText) {
    EXPECT_EQ(ToolTipText("Zoom in"), "<p style='white-space:pre'>Zoom in</p>");
    EXPECT_EQ(ToolTipText("Set <size>|A & B"), "<p style='white-space:pre'><b>Set &lt;size&gt;</b><br>A &amp; B</p>");
    EXPECT_EQ(CaptionOf("Set|hint"), "Set");
    EXPECT_EQ(ToolTipText(""), "");
    EXPECT_EQ(PlainTipText("/a|b&c.tdw"), "<p style='white-space:pre'>/a|b&amp;c.tdw</p>");
}

}  // namespace
}  // namespace tidewalk::test
