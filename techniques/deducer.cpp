// SPDX-License-Identifier: MIT
#include "techniques/deducer.h"

#include "techniques/counting.h"
#include "techniques/cutting_off.h"
#include "techniques/supposing.h"

namespace tidewalk {

std::optional<Deduction> Deducer::Next(const MayGoOn& mayGoOn) {
    while (!position_.touched.Empty()) {
        const int isle = position_.touched.TakeFirst();
        awaitingLast_.Insert(isle);
        awaitingLeast_.Insert(isle);
        awaitingNoMore_.Insert(isle);
    }
    if (position_.Unfinished() == 0) return std::nullopt;
    if (auto deduction = FirstOf(awaitingLast_, FindLast)) return deduction;
    if (auto deduction = FirstOf(awaitingLeast_, FindLeast)) return deduction;
    if (auto deduction = FirstOf(awaitingNoMore_, FindNoMore)) return deduction;
    if (auto deduction = FirstCutOff(false)) return deduction;
    if (auto deduction = FindWayOut(position_)) return deduction;
    const bool doublesToo = purpose_ == Purpose::Path;
    if (doublesToo) {
        if (auto deduction = FirstCutOff(true)) return deduction;
    }
    return FindSupposition(position_, doublesToo, mayGoOn);
}

std::optional<Deduction> Deducer::FirstOf(IsleSet& awaiting, Finder find) const {
    while (!awaiting.Empty()) {
        const int isle = awaiting.TakeFirst();
        auto deduction = find(position_, isle);
        if (!deduction) continue;
        // It may have more to say when this is applied.
        awaiting.Insert(isle);
        return deduction;
    }
    return std::nullopt;
}

std::optional<Deduction> Deducer::FirstCutOff(bool doublesToo) const {
    const Groups groups(position_);
    for (int isle = 0; isle < position_.Board().IsleCount(); ++isle) {
        if (auto deduction = FindCutOff(position_, groups, isle, doublesToo)) return deduction;
    }
    return std::nullopt;
}

}  // namespace tidewalk
