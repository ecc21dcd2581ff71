// SPDX-License-Identifier: MIT
#include "techniques/deduction.h"

#include <array>

namespace tidewalk {

namespace {

struct Names {
    std::string_view id;
    std::string_view name;
};

constexpr std::array<Names, kTechniqueCount> kNames{{{"last", "The last bridges"},
                                                     {"least", "At least so many"},
                                                     {"nomore", "No more"},
                                                     {"cutoff", "Not cut off"},
                                                     {"wayout", "The only way out"},
                                                     {"suppose", "Suppose"},
                                                     {"trial", "Trial"}}};

static_assert(!kNames.back().id.empty(), "every technique has its names");

const Names& NamesOf(Technique technique) {
    return kNames[static_cast<std::size_t>(technique)];
}

}  // namespace

std::string_view TechniqueId(Technique technique) {
    return NamesOf(technique).id;
}

std::string_view TechniqueName(Technique technique) {
    return NamesOf(technique).name;
}

void Apply(Position& position, const Deduction& deduction) {
    for (const SpanBound& must : deduction.must)
        position.Lay(must.span, must.bridges - position.Laid(must.span));
    for (const SpanBound& cannot : deduction.cannot)
        position.Limit(cannot.span, cannot.bridges);
}

}  // namespace tidewalk
