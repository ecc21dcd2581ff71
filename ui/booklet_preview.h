// SPDX-License-Identifier: MIT
// The pages of a booklet before they are printed.
#pragma once

#include <QScrollArea>
#include <QToolButton>
#include <QWidget>
#include <map>
#include <optional>

#include "booklet/booklet.h"
#include "ui/sheet_view.h"

class QHBoxLayout;
class QLabel;
class QStackedWidget;

namespace tidewalk {

/// Shows a booklet page by page, as it will be printed, or says in words why there is none. Only the puzzles of the
/// page that shows are read.
class BookletPreview final : public QWidget {
    Q_OBJECT

 public:
    BookletPreview();

    /// Shows the same page of this booklet, or its last one.
    void ShowBooklet(const std::string& collection, Booklet booklet, const Sheet& sheet);
    void ShowMessage(const QString& message);
    bool HasPages() const { return booklet_.has_value(); }
    /// The puzzles may have become others.
    void ForgetPuzzles() { read_.clear(); }
    /// What is still to come; "" for nothing.
    void ShowProgress(const QString& text);

    /// Goes on by so many pages, as far as there are any.
    void Step(int pages) { GoTo(page_ + pages); }
    /// Goes to page `page`, counted from 0, or to the one that is nearest.
    void GoTo(int page);

 private:
    QToolButton* AddButton(QHBoxLayout& row, const char* name, const QString& toolTip, const char* icon);
    void AddButtons(QHBoxLayout& row);
    int PageCount() const;
    void Refresh();
    std::optional<Puzzle> Read(int number);

    std::string collection_;
    std::optional<Booklet> booklet_;  ///< none while a message shows
    int page_ = 0;
    LineIndex lines_;
    std::map<int, std::optional<Puzzle>> read_;  ///< puzzles that were read for one of the last pages

    QStackedWidget* stack_;
    SheetView* sheet_;
    QScrollArea* area_;
    QLabel* message_;
    QLabel* place_;
    QLabel* progress_;
    QToolButton* first_ = nullptr;
    QToolButton* previous_ = nullptr;
    QToolButton* next_ = nullptr;
    QToolButton* last_ = nullptr;
    QToolButton* enlarge_ = nullptr;
    Sheet size_;
};

}  // namespace tidewalk
