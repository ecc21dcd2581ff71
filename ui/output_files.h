// SPDX-License-Identifier: MIT
// Pictures and printed pages as files, without a window.
#pragma once

#include <QString>

#include "ui/booklet_options.h"

namespace tidewalk {

/// What is to be written, and from where.
struct OutputOrder {
    enum class Kind { Picture, Pdf, Booklet };

    Kind kind = Kind::Picture;
    QString file;
    QString collection;  ///< a `FileNameText`
    int from = 1;
    int to = 1;  ///< a picture has one puzzle: `from`
    bool solution = false;
    BookletWish booklet;
};

/// Reads `argument` as "12" or, for pages, as "3-7" too. False when it is neither.
bool ReadPuzzleRange(const QString& argument, OutputOrder& order);

/// Writes the file. "" on success; else what went wrong. A file is replaced only by a complete one; pages of puzzles
/// that cannot be read stay empty, a booklet does without them, and they are named.
QString WriteOutput(const OutputOrder& order);

}  // namespace tidewalk
