// SPDX-License-Identifier: MIT
#include "ui/recent_menu.h"

#include <QAction>
#include <QFontMetrics>

#include "game/job.h"
#include "game/recent_files.h"
#include "model/navigation.h"

namespace tidewalk {

namespace {

constexpr const char* kEntry = "recent";  ///< an entry's object name
constexpr int kWidestEntry = 500;         ///< in pixels
constexpr int kLettersLeft = 9;           ///< an entry has one digit for its letter

QString ShownName(const std::string& name) {
    QString text = QString::fromStdString(name);
    // In a menu a tab begins the shortcut, and a line break another line.
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control) character = QChar::ReplacementCharacter;
    }
    return text;
}

/// "&1 puzzles.txt" for the entry at `at`, from 0.
QString EntryText(const QMenu& menu, const std::string& name, qsizetype at) {
    const QString shown = menu.fontMetrics().elidedText(ShownName(name), Qt::ElideMiddle, kWidestEntry);
    return (at < kLettersLeft ? "&" : "") + QString::number(at + 1) + " " + QString(shown).replace("&", "&&");
}

void Fill(QMenu& menu, Handlers& handlers, Game& game) {
    for (QAction* const old : menu.findChildren<QAction*>(kEntry, Qt::FindDirectChildrenOnly))
        delete old;
    QAction* const first = menu.actions().constFirst();
    const std::vector<std::string> paths = RecentFiles(game);
    const std::vector<std::string> names = ShortNames(paths);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        auto* const entry = new QAction(EntryText(menu, names[i], static_cast<qsizetype>(i)), &menu);
        entry->setObjectName(kEntry);
        entry->setToolTip(ShownName(paths[i]));
        menu.insertAction(first, entry);
        QObject::connect(entry, &QAction::triggered, &handlers, [&handlers, path = paths[i]] {
            handlers.Run([&](Game& opening) {
                ForgetStatus(opening);
                OpenRecent(opening, path);
            });
        });
    }
    auto* const line = new QAction(&menu);
    line->setObjectName(kEntry);
    line->setSeparator(!paths.empty());
    if (paths.empty()) line->setText(QMenu::tr("No file was opened yet"));
    line->setEnabled(false);
    menu.insertAction(first, line);
}

}  // namespace

void FillWhenOpened(QMenu& menu, Handlers& handlers) {
    menu.setToolTipsVisible(true);
    QObject::connect(&menu, &QMenu::aboutToShow, &menu,
                     [&menu, &handlers] { handlers.Run([&](Game& game) { Fill(menu, handlers, game); }); });
}

}  // namespace tidewalk
