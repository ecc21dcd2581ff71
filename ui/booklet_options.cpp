// SPDX-License-Identifier: MIT
#include "ui/booklet_options.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace tidewalk {

namespace {

using Design = BookletDesign;

/// Takes one of some words into a place of the wish.
template <class Value, class Place>
auto OneOf(std::map<QString, Value> words, Place place) {
    return [words = std::move(words), place](const QString& word, BookletWish& wish) {
        const auto found = words.find(word.toLower());
        if (found != words.end()) place(wish) = found->second;
        return found != words.end();
    };
}

/// Takes any text.
auto Text(std::string Design::*place) {
    return [place](const QString& text, BookletWish& wish) {
        wish.design.*place = text.toStdString();
        return true;
    };
}

/// An option without a value that leaves something out.
auto Without(bool Design::*place) {
    return [place](const QString&, BookletWish& wish) {
        wish.design.*place = false;
        return true;
    };
}

bool TakePerPage(const QString& text, BookletWish& wish) {
    const bool fit = text.toLower() == "fit";
    const int count = text.toInt();
    if (!fit &&
        (count < 1 || text != QString::number(count) ||
         std::find(std::begin(Design::kPerPage), std::end(Design::kPerPage), count) == std::end(Design::kPerPage))) {
        return false;
    }
    wish.design.perPage = fit ? Design::kAsManyAsFit : count;
    return true;
}

}  // namespace

BookletOptions::BookletOptions() {
    const auto solutions = [](BookletWish& wish) -> Design::Solutions& { return wish.design.solutions; };
    const auto order = [](BookletWish& wish) -> Design::Order& { return wish.design.order; };
    const auto paper = [](BookletWish& wish) -> std::optional<Paper>& { return wish.paper; };
    const auto landscape = [](const QString&, BookletWish& wish) { return wish.landscape = true; };
    const auto squares = [](const QString&, BookletWish& wish) {
        wish.design.shape = IslandShape::Square;
        return true;
    };
    entries_ = {
        {{"title", "With --booklet: its title.", "text"}, Text(&Design::title)},
        {{"author", "With --booklet: its author.", "text"}, Text(&Design::author)},
        {{"per-page", "With --booklet: 1, 2, 4, 6 or 9 puzzles on a page, or as many as fit.", "1|2|4|6|9|fit"},
         TakePerPage},
        {{"solutions", "With --booklet: none, beneath each puzzle, or at the end.", "none|beneath|end"},
         OneOf<Design::Solutions>({{"none", Design::Solutions::None},
                                   {"beneath", Design::Solutions::Beneath},
                                   {"end", Design::Solutions::AtEnd}},
                                  solutions)},
        {{"order", "With --booklet: the order of the puzzles.", "number|size|grade"},
         OneOf<Design::Order>(
             {{"number", Design::Order::Number}, {"size", Design::Order::Size}, {"grade", Design::Order::Grade}},
             order)},
        {{"paper", "With --booklet: the paper.", "A4|A5|Letter"},
         OneOf<Paper>({{"a4", Paper::A4}, {"a5", Paper::A5}, {"letter", Paper::Letter}}, paper)},
        {{"landscape", "With --booklet: pages wider than high."}, landscape},
        {{"squares", "With --booklet: islands as squares."}, squares},
        {{"no-cover", "With --booklet: no cover."}, Without(&Design::cover)},
        {{"no-rules", "With --booklet: no page of rules."}, Without(&Design::rules)},
        {{"no-page-numbers", "With --booklet: no page numbers."}, Without(&Design::pageNumbers)},
        {{"no-numbers", "With --booklet: no numbers above the puzzles."}, Without(&Design::numbers)},
        {{"no-sizes", "With --booklet: no sizes above the puzzles."}, Without(&Design::sizes)},
        {{"no-grades", "With --booklet: no grades above the puzzles."}, Without(&Design::grades)},
    };
}

void BookletOptions::AddTo(QCommandLineParser& parser) const {
    for (const Entry& entry : entries_)
        parser.addOption(entry.option);
}

QString BookletOptions::AnyGiven(const QCommandLineParser& parser) const {
    for (const Entry& entry : entries_) {
        if (parser.isSet(entry.option)) return entry.option.names().constFirst();
    }
    return "";
}

QString BookletOptions::Read(const QCommandLineParser& parser, BookletWish& wish) const {
    for (const Entry& entry : entries_) {
        if (!parser.isSet(entry.option)) continue;
        const QString value = entry.option.valueName().isEmpty() ? "" : parser.value(entry.option);
        if (!entry.take(value, wish)) {
            return "--" + entry.option.names().constFirst() + " is one of " +
                   entry.option.valueName().replace('|', ", ") + ", not: " + value;
        }
    }
    return "";
}

}  // namespace tidewalk
