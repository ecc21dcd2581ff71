// SPDX-License-Identifier: MIT
#include "ui/output_files.h"

#include <QGuiApplication>

#include "board/print_pages.h"
#include "drawing/render_puzzle.h"
#include "model/collection_file.h"
#include "model/file_error.h"
#include "model/line_reader.h"
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
    const auto page = [&](int number) {
        auto content = PageOf(path, order.from + number);
        if (!content) broken += QString::number(order.from + number);
        return content;
    };
    const int pages = order.to - order.from + 1;
    if (PrintPages(*document, pages, Options().PrintLineWidth, page, WithoutEnd) != PrintEnd::Printed) {
        return QString("The pages could not be written: %1").arg(QString::fromStdString(document->Error()));
    }
    if (broken.isEmpty()) return "";
    return QString("These puzzles could not be read, their pages are empty: %1").arg(broken.join(", "));
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
    const int count = CountPuzzles(order.collection, order.to);
    if (count == 0) return QString("No puzzles in this file: %1").arg(order.collection);
    if (order.kind == OutputOrder::Kind::Picture) return WritePictureFile(order);
    if (count < order.to) return QString("There are only %1 puzzles in %2").arg(count).arg(order.collection);
    return WritePages(order);
}

}  // namespace tidewalk
