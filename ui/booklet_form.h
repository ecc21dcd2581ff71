// SPDX-License-Identifier: MIT
// The window that asks for a booklet.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "ui/booklet_preview.h"
#include "ui/booklet_reader.h"
#include "ui/handlers.h"

namespace tidewalk {

/// "Print Booklet". It shows the request and what comes of it, page by page, and keeps the request up to date; what it
/// means is decided elsewhere.
class BookletForm final : public QDialog {
    Q_OBJECT

 public:
    BookletForm(Handlers& handlers, BookletRequest& request, QWidget* parent);

 private:
    QLineEdit* AddText(const char* name, const QString& accessible);
    QComboBox* AddChoice(const char* name, const QString& accessible,
                         std::initializer_list<std::pair<QString, int>> choices);
    QCheckBox* AddTick(const char* name, const QString& text, const QString& accessible);
    QGridLayout* AddGroup(QVBoxLayout& column, const QString& title);
    void AddPuzzles(QGridLayout& grid);
    void AddPages(QGridLayout& grid);
    void AddContents(QGridLayout& grid);
    void AddPrinter(QVBoxLayout& column);
    void AddButtons(QVBoxLayout& column);
    void Connect();

    void Show();
    void Take();
    void TakeFile();
    void Browse();
    void Follow();
    void LayOut();
    void ShowProgress();
    void Accept();

    Handlers& handlers_;
    BookletRequest& request_;
    BookletReader reader_;
    BookletPreview* preview_;
    QLineEdit* file_;
    QLineEdit* first_;
    QLineEdit* last_;
    QLabel* count_;
    QComboBox* perPage_;
    QComboBox* paper_;
    QComboBox* orientation_;
    QComboBox* islands_;
    QComboBox* order_;
    QLineEdit* title_;
    QLineEdit* author_;
    QCheckBox* cover_;
    QCheckBox* rules_;
    QCheckBox* pageNumbers_;
    QCheckBox* numbers_;
    QCheckBox* sizes_;
    QCheckBox* grades_;
    QComboBox* solutions_;
    QComboBox* printer_;
    Sheet sheet_;
    std::optional<std::pair<std::string, SheetFormat>> sheetOf_;  ///< the printer and the format of that sheet
    bool showing_ = false;  ///< what changes in the controls is no wish of the player
};

}  // namespace tidewalk
