// SPDX-License-Identifier: MIT
#include "game/order_choices.h"

#include "generator/character_choices.h"
#include "model/numbers.h"

namespace tidewalk {

namespace {

std::string KeyFor(OrderedFor which, std::string_view name) {
    return (which == OrderedFor::Board ? "NewPuzzle" : "Batch") + std::string(name);
}

/// The word under which a grade is remembered.
std::string WordFor(std::optional<Grade> grade) {
    return grade ? LowerCase(NameOf(*grade)) : "any";
}

}  // namespace

std::string_view NameOf(std::optional<Grade> grade) {
    return grade ? WordsFor(*grade) : "Any grade";
}

PuzzleOrder OrderFor(const OrderChoice& choice, BoardSize size) {
    return {choice.oneSolution || choice.grade, choice.grade, CharacterChoices().at(choice.character).of(size)};
}

std::string OrderText(const OrderChoice& choice) {
    const bool one = choice.oneSolution || choice.grade;
    return std::string(NameOf(choice.grade)) + (one ? ", one solution" : ", any number of solutions");
}

OrderChoice ReadOrder(const Choices& choices, OrderedFor which) {
    OrderChoice choice;
    choice.oneSolution = choices.Get(KeyFor(which, "OneSolution"), "1") != "0";
    const std::string grade = choices.Get(KeyFor(which, "Grade"), "");
    for (const std::optional<Grade> known : kGradeChoices) {
        if (grade == WordFor(known)) choice.grade = known;
    }
    const std::string character = choices.Get(KeyFor(which, "Character"), "");
    for (std::size_t i = 0; i < CharacterChoices().size(); ++i) {
        if (character == CharacterChoices()[i].key) choice.character = i;
    }
    return choice;
}

void KeepOrder(Choices& choices, OrderedFor which, const OrderChoice& choice) {
    choices.Set(KeyFor(which, "OneSolution"), choice.oneSolution ? "1" : "0");
    choices.Set(KeyFor(which, "Grade"), WordFor(choice.grade));
    if (which == OrderedFor::File) {
        choices.Set(KeyFor(which, "Character"), std::string(CharacterChoices().at(choice.character).key));
    }
}

}  // namespace tidewalk
