// SPDX-License-Identifier: MIT
#include "techniques/counting.h"

#include "techniques/named_rule.h"

namespace tidewalk {

namespace {

/// A deduction about an island that looks at the neighbours that still have room.
Deduction About(const Position& position, int isle, const Rooms& rooms, Technique technique) {
    Deduction deduction;
    deduction.technique = technique;
    deduction.isles.push_back(isle);
    for (int k = 0; k < rooms.count; ++k) {
        const auto at = static_cast<std::size_t>(k);
        if (rooms.on[at] > 0) deduction.isles.push_back(position.Board().SpanAt(rooms.spans[at]).Other(isle));
    }
    return deduction;
}

/// Whether a span takes no further bridge although nobody has noted it, and it matters to an island that still needs
/// some.
bool IsUnnoted(const Position& position, int span) {
    if (position.Most(span) <= position.Laid(span) || position.Room(span) > 0) return false;
    const auto& ends = position.Board().SpanAt(span).ends;
    return position.Need(ends[0]) > 0 || position.Need(ends[1]) > 0;
}

void Close(const Position& position, int span, Deduction& deduction) {
    deduction.cannot.push_back({span, position.Laid(span)});
}

std::optional<Deduction> NoMoreAtFinished(const Position& position, int isle) {
    Deduction deduction{Technique::NoMore, {}, {isle}, {}, {}, {}};
    for (const int span : position.Board().IsleAt(isle).spans) {
        if (position.Blocked(span) || !IsUnnoted(position, span)) continue;
        Close(position, span, deduction);
        deduction.isles.push_back(position.Board().SpanAt(span).Other(isle));
    }
    if (deduction.cannot.empty()) return std::nullopt;
    return deduction;
}

std::optional<Deduction> NoMoreAcross(const Position& position, int bridged) {
    const Span& span = position.Board().SpanAt(bridged);
    Deduction deduction{Technique::NoMore, {}, {span.ends[0], span.ends[1]}, {}, {}, {}};
    for (const int crossing : span.crossings) {
        if (!IsUnnoted(position, crossing)) continue;
        Close(position, crossing, deduction);
        const auto& ends = position.Board().SpanAt(crossing).ends;
        deduction.isles.insert(deduction.isles.end(), ends.begin(), ends.end());
    }
    if (deduction.cannot.empty()) return std::nullopt;
    return deduction;
}

}  // namespace

Rooms::Rooms(const Position& position, int isle) : need(position.Need(isle)) {
    for (const int span : position.Board().IsleAt(isle).spans) {
        const auto at = static_cast<std::size_t>(count++);
        spans[at] = span;
        on[at] = position.Room(span);
        total += on[at];
    }
}

std::optional<Deduction> FindLast(const Position& position, int isle) {
    const Rooms rooms(position, isle);
    if (rooms.need < 1 || rooms.total != rooms.need) return std::nullopt;
    Deduction deduction = About(position, isle, rooms, Technique::Last);
    for (int k = 0; k < rooms.count; ++k) {
        const auto at = static_cast<std::size_t>(k);
        if (rooms.on[at] == 0) continue;
        deduction.must.push_back({rooms.spans[at], position.Laid(rooms.spans[at]) + rooms.on[at]});
    }
    deduction.rule = RuleForLast(position, isle, rooms);
    return deduction;
}

std::optional<Deduction> FindLeast(const Position& position, int isle) {
    const Rooms rooms(position, isle);
    if (rooms.need < 1 || rooms.total <= rooms.need) return std::nullopt;
    std::optional<Deduction> deduction;
    for (int k = 0; k < rooms.count; ++k) {
        const int least = rooms.LeastOn(k);
        if (least < 1) continue;
        if (!deduction) deduction = About(position, isle, rooms, Technique::Least);
        const int span = rooms.spans[static_cast<std::size_t>(k)];
        deduction->must.push_back({span, position.Laid(span) + least});
    }
    if (deduction) deduction->rule = RuleForLeast(position, isle, rooms);
    return deduction;
}

std::optional<Deduction> FindNoMore(const Position& position, int isle) {
    if (position.Need(isle) < 1) {
        if (auto deduction = NoMoreAtFinished(position, isle)) return deduction;
    }
    for (const int span : position.Board().IsleAt(isle).spans) {
        if (position.Laid(span) == 0 || position.Board().SpanAt(span).ends[0] != isle) continue;
        if (auto deduction = NoMoreAcross(position, span)) return deduction;
    }
    return std::nullopt;
}

}  // namespace tidewalk
