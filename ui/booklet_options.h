// SPDX-License-Identifier: MIT
// What a booklet is to be, said on the command line.
#pragma once

#include <QCommandLineParser>
#include <functional>
#include <optional>
#include <vector>

#include "booklet/booklet_design.h"
#include "drawing/sheet.h"

namespace tidewalk {

/// A booklet as it was asked for.
struct BookletWish {
    BookletDesign design;
    std::optional<Paper> paper;  ///< nothing for the usual one
    bool landscape = false;
};

/// The options that go with `--booklet`.
class BookletOptions {
 public:
    BookletOptions();

    void AddTo(QCommandLineParser& parser) const;

    /// The name of one that was given; "" for none.
    QString AnyGiven(const QCommandLineParser& parser) const;

    /// Takes those that were given into `wish`. "" when all is well, else what is wrong.
    QString Read(const QCommandLineParser& parser, BookletWish& wish) const;

 private:
    /// An option, and what takes its value into a wish; false for a value that is none.
    struct Entry {
        QCommandLineOption option;
        std::function<bool(const QString& value, BookletWish& wish)> take;
    };
    std::vector<Entry> entries_;
};

}  // namespace tidewalk
