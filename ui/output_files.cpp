// SPDX-License-Identifier: MIT
#include "ui/output_files.h"

#include <QGuiApplication>

#include "board/print_pages.h"
#include "booklet/print_booklet.h"
#include "drawing/render_puzzle.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/line_reader.h"
#include "model/paths.h"
#include "model/puzzle_range.h"
#include "options/options.h"
#include "ui/file_name.h"
#include "ui/paper.h"
#include "ui/picture.h"

namespace tidewalk {

namespace {

QString WritePictureFile(const OutputOrder& order) {
    const std::string path = FileNameBytes(order.collection);
    const auto puzzle = ReadPuzzle(path, order.from);
    if (!puzzle) {
        return QString("Puzzle %1 of %2 is missing or cannot be read").arg(order.from).arg(order.collection);
    }
    const RenderMode mode = order.solution ? RenderMode::Solution : RenderMode::Puzzle;
    const std::string title = PrintTitle(order.solution ? "Solution#" : "Puzzle#", order.from, path);
    const PuzzlePicture picture = PictureOf(*puzzle, PictureRequest(mode, title, Options().PrintLineWidth));
    const QString reason = WritePicture(order.file, picture, qGuiApp->devicePixelRatio());
    return reason.isEmpty() ? "" : QString("%1 could not be written: %2").arg(order.file, reason);
}

QString WritePages(const OutputOrder& order) {
    const std::string path = FileNameBytes(order.collection);
    DocumentSetup setup;
    setup.file = FileNameBytes(order.file);
    std::string error;
    const auto document = BeginPdf(setup, error);
    if (!document) return QString("The pages could not be written: %1").arg(QString::fromStdString(error));
    QStringList broken;
    LineIndex lines;
    const auto draw = [&](int number, Surface& page, const Sheet& sheet) {
        if (const auto content = PageOf(lines, path, order.from + number)) {
            DrawPage(*content, Options().PrintLineWidth, page, sheet.printable);
        } else {
            broken += QString::number(order.from + number);
        }
    };
    const int pages = order.to - order.from + 1;
    if (PrintPages(*document, pages, draw, WithoutEnd) != PrintEnd::Printed) {
        return QString("The pages could not be written: %1").arg(QString::fromStdString(document->Error()));
    }
    if (broken.isEmpty()) return "";
    return QString("These puzzles could not be read, their pages are empty: %1").arg(broken.join(", "));
}

/// The booklet's file. What could not be done is told, as for pages.
QString WriteBooklet(const OutputOrder& order) {
    const std::string path = FileNameBytes(order.collection);
    const BookletDesign& design = order.booklet.design;
    if (order.to - order.from >= kMostBookletPuzzles)
        return QString("A booklet has %1 puzzles at most").arg(kMostBookletPuzzles);
    auto contents = ReadBookletContents(path, {order.from, order.to}, design.NeedsGrades(), [](int) { return true; });
    if (contents->entries.empty()) return "None of these puzzles can be read";
    SortEntries(contents->entries, design.order);
    DocumentSetup setup = BookletSetup(design, contents->entries, path);
    setup.file = FileNameBytes(order.file);
    setup.format = SheetFormat{order.booklet.paper.value_or(UsualPaper()), order.booklet.landscape};
    std::string error;
    const auto document = BeginPdf(setup, error);
    if (!document) return QString("The booklet could not be written: %1").arg(QString::fromStdString(error));
    const Booklet booklet(design, contents->entries, document->PageSheet());
    if (!booklet.Misfit().empty()) return QString::fromStdString(booklet.Misfit());
    LineIndex lines;
    bool changed = false;
    const auto draw = [&](int number, Surface& page, const Sheet&) {
        changed = !booklet.DrawPage(number, page, [&](int puzzle) { return ReadSolvedPuzzle(lines, path, puzzle); });
    };
    const auto mayGoOn = [&] { return !changed; };
    const PrintEnd end = PrintPages(*document, static_cast<int>(booklet.Pages().size()), draw, mayGoOn);
    if (changed) return QString::fromStdString(ChangedText(path));
    if (end != PrintEnd::Printed)
        return QString("The booklet could not be written: %1").arg(QString::fromStdString(document->Error()));
    QStringList remarks;
    for (const std::string& remark : RemarksOn(*contents, design))
        remarks += QString::fromStdString(remark);
    return remarks.join("\n");
}

/// The number of lines of the collection, counted as far as `wanted`.
int CountPuzzles(const QString& collection, int wanted) {
    int count = 0;
    try {
        LineReader lines(FileNameBytes(collection));
        while (count < wanted && lines.Skip())
            ++count;
    } catch (const FileError&) {
        return 0;
    }
    return count;
}

}  // namespace

bool ReadPuzzleRange(const QString& argument, OutputOrder& order) {
    const auto range = ParsePuzzleRange(argument.toStdString());
    if (!range || (order.kind == OutputOrder::Kind::Picture && range->first != range->last)) return false;
    order.from = range->first;
    order.to = range->last;
    return true;
}

QString WriteOutput(const OutputOrder& order) {
    if (NameOneFile(FileNameBytes(order.collection), FileNameBytes(order.file)))
        return QString("The file must not replace its own puzzles: %1").arg(order.collection);
    const int count = CountPuzzles(order.collection, order.to);
    if (count == 0) return QString("No puzzles in this file: %1").arg(order.collection);
    if (order.kind == OutputOrder::Kind::Picture) return WritePictureFile(order);
    if (count < order.to) return QString("There are only %1 puzzles in %2").arg(count).arg(order.collection);
    return order.kind == OutputOrder::Kind::Booklet ? WriteBooklet(order) : WritePages(order);
}

}  // namespace tidewalk
