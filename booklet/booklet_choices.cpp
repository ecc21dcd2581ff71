// SPDX-License-Identifier: MIT
#include "booklet/booklet_choices.h"

#include <array>
#include <string>
#include <string_view>

namespace tidewalk {

namespace {

/// What a choice may be, each with the word under which it is remembered.
template <class Value, std::size_t kCount>
using Words = std::array<std::pair<Value, std::string_view>, kCount>;

using Design = BookletDesign;

constexpr Words<bool, 2> kYesOrNo{{{true, "1"}, {false, "0"}}};
constexpr Words<Paper, 3> kPapers{{{Paper::A4, "a4"}, {Paper::A5, "a5"}, {Paper::Letter, "letter"}}};
constexpr Words<int, 6> kPerPage{{{1, "1"}, {2, "2"}, {4, "4"}, {6, "6"}, {9, "9"}, {Design::kAsManyAsFit, "fit"}}};
constexpr Words<IslandShape, 2> kShapes{{{IslandShape::Circle, "circle"}, {IslandShape::Square, "square"}}};
constexpr Words<Design::Solutions, 3> kSolutions{
    {{Design::Solutions::None, "none"}, {Design::Solutions::Beneath, "beneath"}, {Design::Solutions::AtEnd, "end"}}};
constexpr Words<Design::Order, 3> kOrders{
    {{Design::Order::Number, "number"}, {Design::Order::Size, "size"}, {Design::Order::Grade, "grade"}}};

std::string KeyFor(std::string_view name) {
    return "Booklet" + std::string(name);
}

/// Takes each choice from where it is kept.
struct Reading {
    const Choices& choices;

    template <class Value, std::size_t kCount>
    void operator()(std::string_view name, Value& value, const Words<Value, kCount>& words) const {
        const std::string kept = choices.Get(KeyFor(name), "");
        for (const auto& [known, word] : words) {
            if (kept == word) value = known;
        }
    }
    void operator()(std::string_view name, std::string& text) const { text = choices.Get(KeyFor(name), text); }
};

/// Puts each choice there.
struct Keeping {
    Choices& choices;

    template <class Value, std::size_t kCount>
    void operator()(std::string_view name, const Value& value, const Words<Value, kCount>& words) const {
        for (const auto& [known, word] : words) {
            if (value == known) choices.Set(KeyFor(name), std::string(word));
        }
    }
    void operator()(std::string_view name, const std::string& text) const { choices.Set(KeyFor(name), text); }
};

/// Shows `visit` each choice of a request, so that what is kept and what is read are the same ones.
template <class Request, class Visit>
void ForEachChoice(Request& request, const Visit& visit) {
    auto& design = request.design;
    visit("Paper", request.format.paper, kPapers);
    visit("Landscape", request.format.landscape, kYesOrNo);
    visit("PerPage", design.perPage, kPerPage);
    visit("Islands", design.shape, kShapes);
    visit("Solutions", design.solutions, kSolutions);
    visit("Order", design.order, kOrders);
    visit("Author", design.author);
    visit("Cover", design.cover, kYesOrNo);
    visit("Rules", design.rules, kYesOrNo);
    visit("PageNumbers", design.pageNumbers, kYesOrNo);
    visit("Numbers", design.numbers, kYesOrNo);
    visit("Sizes", design.sizes, kYesOrNo);
    visit("Grades", design.grades, kYesOrNo);
}

}  // namespace

void ReadBookletChoices(const Choices& choices, BookletRequest& request) {
    ForEachChoice(request, Reading{choices});
}

void KeepBookletChoices(Choices& choices, const BookletRequest& request) {
    ForEachChoice(request, Keeping{choices});
}

}  // namespace tidewalk
