// SPDX-License-Identifier: MIT
#include "ui/booklet_form.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <algorithm>
#include <tuple>
#include <utility>

#include "booklet/print_booklet.h"
#include "ui/controls.h"
#include "ui/file_name.h"
#include "ui/fit_on_screen.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

using Design = BookletDesign;

constexpr int kPreviewWidth = 500;  ///< in pixels, at first
constexpr int kHeight = 660;
constexpr int kScreenShare = 90;  ///< per cent of the screen that the window may take

QString TextOf(const std::string& text) {
    return QString::fromStdString(text);
}

template <class Value>
void Choose(QComboBox* box, Value value) {
    box->setCurrentIndex(std::max(0, box->findData(static_cast<int>(value))));
}

template <class Value>
Value Chosen(const QComboBox* box) {
    return static_cast<Value>(box->currentData().toInt());
}

/// Puts what belongs together beside each other, at the left.
QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
    auto* const row = new QHBoxLayout;
    for (QWidget* const widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    return row;
}

}  // namespace

BookletForm::BookletForm(Handlers& handlers, BookletRequest& request, QWidget* parent)
    : QDialog(parent),
      handlers_(handlers),
      request_(request),
      preview_(new BookletPreview),
      file_(AddText("BookletFile", tr("File"))),
      first_(AddText("BookletFirst", tr("First puzzle"))),
      last_(AddText("BookletLast", tr("Last puzzle"))),
      count_(Named(new QLabel, "BookletCount", {})),
      perPage_(AddChoice("BookletPerPage", tr("Puzzles on each page"),
                         {{tr("1 puzzle"), 1},
                          {tr("2 puzzles"), 2},
                          {tr("4 puzzles"), 4},
                          {tr("6 puzzles"), 6},
                          {tr("9 puzzles"), 9},
                          {tr("As many as fit"), Design::kAsManyAsFit}})),
      paper_(AddChoice("BookletPaper", tr("Paper"),
                       {{tr("A4"), static_cast<int>(Paper::A4)},
                        {tr("A5"), static_cast<int>(Paper::A5)},
                        {tr("Letter"), static_cast<int>(Paper::Letter)}})),
      orientation_(AddChoice("BookletOrientation", tr("Orientation"), {{tr("Portrait"), 0}, {tr("Landscape"), 1}})),
      islands_(AddChoice("BookletIslands", tr("Islands"),
                         {{tr("Circles"), static_cast<int>(IslandShape::Circle)},
                          {tr("Squares"), static_cast<int>(IslandShape::Square)}})),
      order_(AddChoice("BookletOrder", tr("Order"),
                       {{tr("By number"), static_cast<int>(Design::Order::Number)},
                        {tr("By size"), static_cast<int>(Design::Order::Size)},
                        {tr("By grade"), static_cast<int>(Design::Order::Grade)}})),
      title_(AddText("BookletTitle", tr("Title"))),
      author_(AddText("BookletAuthor", tr("Author"))),
      cover_(AddTick("BookletCover", tr("Co&ver"), {})),
      rules_(AddTick("BookletRules", tr("Rules, with an e&xample"), {})),
      pageNumbers_(AddTick("BookletPageNumbers", tr("Page nu&mbers"), {})),
      numbers_(AddTick("BookletNumbers", tr("&Number"), tr("Number above each puzzle"))),
      sizes_(AddTick("BookletSizes", tr("Si&ze"), tr("Size above each puzzle"))),
      grades_(AddTick("BookletGrades", tr("&Grade"), tr("Grade above each puzzle"))),
      solutions_(AddChoice("BookletSolutions", tr("Solutions"),
                           {{tr("None"), static_cast<int>(Design::Solutions::None)},
                            {tr("Beneath each puzzle"), static_cast<int>(Design::Solutions::Beneath)},
                            {tr("At the end, small"), static_cast<int>(Design::Solutions::AtEnd)}})),
      printer_(AddChoice("BookletPrinter", tr("Printer"), {})) {
    GiveToolTip(*numbers_, tr("Number|Solutions at the end are found by it"));
    setObjectName("Booklet");
    setWindowTitle(tr("Print Booklet"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* const column = new QVBoxLayout;
    AddPuzzles(*AddGroup(*column, tr("Puzzles")));
    AddPages(*AddGroup(*column, tr("Pages")));
    AddContents(*AddGroup(*column, tr("Contents")));
    AddPrinter(*column);
    column->addStretch(1);
    AddButtons(*column);
    auto* const all = new QHBoxLayout(this);
    all->addLayout(column);
    all->addWidget(preview_, 1);

    handlers_.Run([this](Game& game) { Booklet_Activate(game, request_); });
    for (const std::string& name : request_.printers)
        printer_->addItem(TextOf(name));
    Show();
    Connect();
    Follow();
    const QSize usual(sizeHint().width() - preview_->sizeHint().width() + kPreviewWidth,
                      std::max(kHeight, sizeHint().height()));
    resize(usual.boundedTo(screen()->availableSize() * kScreenShare / 100));
    FitOnScreen(*this);
    first_->setFocus();
    first_->selectAll();
}

QLineEdit* BookletForm::AddText(const char* name, const QString& accessible) {
    return Named(new QLineEdit, name, accessible);
}

QComboBox* BookletForm::AddChoice(const char* name, const QString& accessible,
                                  std::initializer_list<std::pair<QString, int>> choices) {
    auto* const box = Named(new QComboBox, name, accessible);
    for (const auto& [text, value] : choices)
        box->addItem(text, value);
    return box;
}

QCheckBox* BookletForm::AddTick(const char* name, const QString& text, const QString& accessible) {
    return Named(new QCheckBox(text), name, accessible);
}

QGridLayout* BookletForm::AddGroup(QVBoxLayout& column, const QString& title) {
    auto* const group = new QGroupBox(title);
    auto* const grid = new QGridLayout(group);
    grid->setColumnStretch(1, 1);
    column.addWidget(group);
    return grid;
}

void BookletForm::AddPuzzles(QGridLayout& grid) {
    const int digits = fontMetrics().horizontalAdvance("00000000");
    for (QLineEdit* const number : {first_, last_})
        number->setFixedWidth(digits);
    auto* const browse = Named(new QPushButton(tr("&Browse ...")), "BookletBrowse", tr("Select a file"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &BookletForm::Browse);
    grid.addWidget(LabelFor(tr("&File"), file_), 0, 0);
    grid.addWidget(file_, 0, 1);
    grid.addWidget(browse, 0, 2);
    grid.addWidget(LabelFor(tr("P&uzzles"), first_), 1, 0);
    grid.addLayout(Row({first_, LabelFor(tr("&to"), last_), last_, count_}), 1, 1, 1, 2);
}

void BookletForm::AddPages(QGridLayout& grid) {
    grid.addWidget(LabelFor(tr("P&er page"), perPage_), 0, 0);
    grid.addWidget(perPage_, 0, 1, 1, 3);
    grid.addWidget(LabelFor(tr("P&aper"), paper_), 1, 0);
    grid.addWidget(paper_, 1, 1);
    grid.addWidget(orientation_, 1, 2, 1, 2);
    grid.addWidget(LabelFor(tr("&Islands"), islands_), 2, 0);
    grid.addWidget(islands_, 2, 1);
    grid.addWidget(LabelFor(tr("&Order"), order_), 2, 2);
    grid.addWidget(order_, 2, 3);
    grid.setColumnStretch(3, 1);
}

void BookletForm::AddContents(QGridLayout& grid) {
    grid.addWidget(LabelFor(tr("Tit&le"), title_), 0, 0);
    grid.addWidget(title_, 0, 1);
    grid.addWidget(LabelFor(tr("Aut&hor"), author_), 1, 0);
    grid.addWidget(author_, 1, 1);
    grid.addLayout(Row({cover_, pageNumbers_, rules_}), 2, 0, 1, 2);
    grid.addWidget(new QLabel(tr("Captions")), 3, 0);
    grid.addLayout(Row({numbers_, sizes_, grades_}), 3, 1);
    grid.addWidget(LabelFor(tr("&Solutions"), solutions_), 4, 0);
    grid.addWidget(solutions_, 4, 1);
}

void BookletForm::AddPrinter(QVBoxLayout& column) {
    auto* const row = new QHBoxLayout;
    row->addWidget(LabelFor(tr("P&rinter"), printer_));
    row->addWidget(printer_, 1);
    column.addLayout(row);
}

void BookletForm::AddButtons(QVBoxLayout& column) {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* const print = Named(buttons->button(QDialogButtonBox::Ok), "BookletPrint", {});
    auto* const cancel = Named(buttons->button(QDialogButtonBox::Cancel), "BookletCancel", {});
    print->setText(tr("&Print"));
    cancel->setText(tr("&Cancel"));
    // Some desktops put pictures on these two, and on no other button of the program.
    for (QPushButton* const button : {print, cancel})
        button->setIcon({});
    column.addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &BookletForm::Accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void BookletForm::Connect() {
    connect(&handlers_, &Handlers::Ending, this, &QDialog::reject);
    connect(&reader_, &BookletReader::Advanced, this, &BookletForm::ShowProgress);
    connect(&reader_, &BookletReader::Found, this, [this] {
        preview_->ForgetPuzzles();
        LayOut();
    });
    // Names that are half typed are no files.
    connect(file_, &QLineEdit::editingFinished, this, &BookletForm::TakeFile);
    for (QLineEdit* const text : {first_, last_, title_, author_})
        connect(text, &QLineEdit::textChanged, this, &BookletForm::Follow);
    for (QComboBox* const box : {perPage_, paper_, orientation_, islands_, order_, solutions_, printer_})
        connect(box, &QComboBox::currentIndexChanged, this, &BookletForm::Follow);
    for (QCheckBox* const tick : {cover_, rules_, pageNumbers_, numbers_, sizes_, grades_})
        connect(tick, &QCheckBox::toggled, this, &BookletForm::Follow);
    for (const auto& [key, pages] : {std::pair{Qt::Key_PageUp, -1}, {Qt::Key_PageDown, 1}}) {
        connect(new QShortcut(key, this), &QShortcut::activated, preview_,
                [this, step = pages] { preview_->Step(step); });
    }
}

void BookletForm::Show() {
    showing_ = true;
    const Design& design = request_.design;
    file_->setText(FileNameText(request_.collection));
    first_->setText(TextOf(request_.first));
    last_->setText(TextOf(request_.last));
    count_->setText(tr("of %1").arg(request_.puzzleCount));
    Choose(perPage_, design.perPage);
    Choose(paper_, request_.format.paper);
    Choose(orientation_, request_.format.landscape);
    Choose(islands_, design.shape);
    Choose(order_, design.order);
    title_->setText(TextOf(design.title));
    author_->setText(TextOf(design.author));
    cover_->setChecked(design.cover);
    rules_->setChecked(design.rules);
    pageNumbers_->setChecked(design.pageNumbers);
    numbers_->setChecked(design.numbers);
    sizes_->setChecked(design.sizes);
    grades_->setChecked(design.grades);
    Choose(solutions_, design.solutions);
    printer_->setCurrentText(TextOf(request_.printer));
    showing_ = false;
}

void BookletForm::Take() {
    Design& design = request_.design;
    request_.first = first_->text().toStdString();
    request_.last = last_->text().toStdString();
    design.perPage = Chosen<int>(perPage_);
    request_.format.paper = Chosen<Paper>(paper_);
    request_.format.landscape = Chosen<bool>(orientation_);
    design.shape = Chosen<IslandShape>(islands_);
    design.order = Chosen<Design::Order>(order_);
    design.title = title_->text().toStdString();
    design.author = author_->text().toStdString();
    design.cover = cover_->isChecked();
    design.rules = rules_->isChecked();
    design.pageNumbers = pageNumbers_->isChecked();
    design.numbers = numbers_->isChecked();
    design.sizes = sizes_->isChecked();
    design.grades = grades_->isChecked();
    design.solutions = Chosen<Design::Solutions>(solutions_);
    request_.printer = printer_->currentText().toStdString();
}

void BookletForm::TakeFile() {
    const std::string typed = FileNameBytes(file_->text());
    if (typed == request_.collection) return;
    request_.collection = typed;
    handlers_.Run([this](Game& game) { Booklet_TakeFile(game, request_); });
    Show();
    Follow();
}

void BookletForm::Browse() {
    handlers_.Run([this](Game& game) { Booklet_Browse(game, request_); });
    Show();
    Follow();
}

/// Something was changed: another sheet, other puzzles or the same ones in another way.
void BookletForm::Follow() {
    if (showing_) return;
    Take();
    numbers_->setEnabled(request_.design.solutions != Design::Solutions::AtEnd);
    // Some printers take their time to answer.
    if (const auto wanted = std::pair(request_.printer, request_.format); sheetOf_ != wanted) {
        handlers_.Run([this](Game& game) { sheet_ = game.printers.SheetOf(request_.printer, request_.format); });
        sheetOf_ = wanted;
    }
    if (WhyNoBooklet(request_).empty())
        reader_.Ask({request_.collection, RangeOf(request_), request_.design.NeedsGrades()});
    LayOut();
}

void BookletForm::LayOut() {
    ShowProgress();
    std::string reason = WhyNoBooklet(request_);
    if (!reason.empty()) return preview_->ShowMessage(TextOf(reason));
    const auto known = reader_.Known();
    // The pages from before stay until others can be shown.
    if (known == nullptr) {
        if (!preview_->HasPages()) preview_->ShowMessage(tr("Reading the puzzles ..."));
        return;
    }
    Booklet booklet = MakeBooklet(request_, known->contents, sheet_);
    reason = WhyNoPages(booklet);
    if (!reason.empty()) return preview_->ShowMessage(TextOf(reason));
    preview_->ShowBooklet(request_.collection, std::move(booklet), sheet_);
}

void BookletForm::ShowProgress() {
    if (!WhyNoBooklet(request_).empty() || !reader_.IsReading()) return preview_->ShowProgress({});
    const PuzzleRange range = RangeOf(request_);
    const QString text = reader_.Known() == nullptr ? tr("Reading %1 of %2 ...") : tr("Grading %1 of %2 ...");
    preview_->ShowProgress(text.arg(reader_.Done() + 1).arg(range.last - range.first + 1));
}

void BookletForm::Accept() {
    TakeFile();
    request_.known = reader_.Known();
    bool decided = false;
    handlers_.Run([this, &decided](Game& game) { decided = Booklet_Accept(game, request_); });
    if (decided) return accept();
    Show();
    Follow();
}

}  // namespace tidewalk
