// SPDX-License-Identifier: MIT
#include "techniques/supposing.h"

#include <array>
#include <limits>
#include <vector>

#include "techniques/cutting_off.h"

namespace tidewalk {

namespace {

using Kind = Contradiction::Kind;

/// The rounds that a supposition is followed, one list of suppositions after the other.
constexpr int kNoEnd = std::numeric_limits<int>::max();
constexpr std::array<int, 5> kRounds{1, 2, 4, 8, kNoEnd};

/// Whether an island's group is complete, or cannot grow any more, while there are others.
bool IsClosedOff(const Position& position, const Groups& groups, int isle) {
    const int group = groups.Of(isle);
    if (groups.Size(group) == position.Board().IsleCount()) return false;
    return groups.Need(group) == 0;
}

class Follower {
 public:
    explicit Follower(Position& position) : position_(position) {}

    std::optional<Contradiction> Run(int mostRounds) {
        for (round_ = 1; round_ <= mostRounds; ++round_) {
            const bool goesOn = !position_.touched.Empty() || !awaitingWays_.Empty() || UseWaysOut();
            if (!goesOn || !FollowTouched()) break;
        }
        return found_;
    }

 private:
    bool Contradict(Kind kind, int isle) {
        found_ = {kind, isle, round_};
        return false;
    }

    /// One round: what each island concludes that was touched in the last one. False when a contradiction was found.
    bool FollowTouched() {
        isles_.clear();
        while (!position_.touched.Empty())
            isles_.push_back(position_.touched.TakeFirst());
        const std::size_t before = position_.Changes();
        for (const int isle : isles_) {
            if (!CountAt(isle)) return false;
            awaitingWays_.Insert(isle);
        }
        const Groups groups(position_);
        for (const int isle : isles_) {
            if (IsClosedOff(position_, groups, isle)) return Contradict(Kind::ClosedOff, isle);
        }
        // Counting is easier than going through ways, and the groups are right only as long as nothing is laid.
        while (position_.Changes() == before && !awaitingWays_.Empty()) {
            if (!KeepOpen(groups, awaitingWays_.TakeFirst())) return false;
        }
        return true;
    }

    bool CountAt(int isle) {
        const Rooms rooms(position_, isle);
        if (rooms.need < 0 || rooms.total < rooms.need) return Contradict(Kind::TooLittleRoom, isle);
        for (int k = 0; k < rooms.count && rooms.need > 0; ++k) {
            const int least = rooms.LeastOn(k);
            if (least > 0) position_.Lay(rooms.spans[static_cast<std::size_t>(k)], least);
        }
        return true;
    }

    bool KeepOpen(const Groups& groups, int isle) {
        const int need = position_.Need(isle);
        if (need < 1 || groups.Need(groups.Of(isle)) > 2 * need) return true;
        const Ways ways(position_, groups, isle);
        if (ways.none) return Contradict(Kind::ClosedOff, isle);
        if (ways.completing.empty()) return true;
        for (int k = 0; k < ways.rooms.count; ++k) {
            const auto at = static_cast<std::size_t>(k);
            const int span = ways.rooms.spans[at];
            position_.Limit(span, position_.Laid(span) + ways.most[at]);
            if (ways.least[at] > 0) position_.Lay(span, ways.least[at]);
        }
        return true;
    }

    /// Lays a bridge on every span without which the board would fall apart. False when there is none, or when it has
    /// fallen apart already.
    bool UseWaysOut() {
        const Connections connections(position_);
        if (connections.unreached >= 0) return Contradict(Kind::FallsApart, connections.unreached);
        for (const int span : connections.cutSpans) {
            // One that lies across another one may have taken its room.
            if (position_.Room(span) == 0) return Contradict(Kind::FallsApart, position_.Board().SpanAt(span).ends[0]);
            position_.Lay(span, 1);
        }
        return !connections.cutSpans.empty();
    }

    Position& position_;
    int round_ = 1;
    std::vector<int> isles_;  ///< those of this round
    IsleSet awaitingWays_;    ///< islands whose ways have still to be gone through
    std::optional<Contradiction> found_;
};

/// What is wrong with the supposition, if that shows within so many rounds. The position is left as it was.
std::optional<Contradiction> Refute(Position& position, const SpanBound& supposed, bool isMost, int rounds) {
    const std::size_t before = position.Changes();
    position.touched = IsleSet();
    if (isMost) {
        position.Limit(supposed.span, supposed.bridges);
    } else {
        position.Lay(supposed.span, supposed.bridges - position.Laid(supposed.span));
    }
    const auto contradiction = Follow(position, rounds);
    position.BackTo(before);
    return contradiction;
}

Deduction Refuted(const Position& position, const SpanBound& supposed, bool isMost, const Contradiction& found) {
    Deduction deduction;
    deduction.technique = Technique::Suppose;
    const auto& ends = position.Board().SpanAt(supposed.span).ends;
    deduction.isles = {ends[0], ends[1]};
    if (found.isle != ends[0] && found.isle != ends[1]) deduction.isles.push_back(found.isle);
    if (isMost) {
        deduction.must.push_back({supposed.span, supposed.bridges + 1});
    } else {
        deduction.cannot.push_back({supposed.span, supposed.bridges - 1});
    }
    deduction.supposition = {supposed, isMost, found};
    return deduction;
}

/// Refutes one of the suppositions about a span.
std::optional<Deduction> TrySpan(Position& position, int span, bool doubles, int rounds) {
    const int laid = position.Laid(span);
    const int room = position.Room(span);
    if (room < (doubles ? kMostBridges : 1)) return std::nullopt;
    for (const bool isMost : {true, false}) {
        if (doubles && isMost) continue;
        const SpanBound supposed{span, isMost ? laid : laid + (doubles ? 2 : 1)};
        if (const auto found = Refute(position, supposed, isMost, rounds))
            return Refuted(position, supposed, isMost, *found);
    }
    return std::nullopt;
}

}  // namespace

std::optional<Contradiction> Follow(Position& position, int mostRounds) {
    return Follower(position).Run(mostRounds);
}

std::optional<Deduction> FindSupposition(Position& position, bool doublesToo, const MayGoOn& mayGoOn) {
    const IsleSet touched = position.touched;
    std::optional<Deduction> found;
    const auto tryAll = [&](bool doubles, int rounds) {
        for (int span = 0; span < position.Board().SpanCount() && !found; ++span) {
            if (!mayGoOn()) return false;
            found = TrySpan(position, span, doubles, rounds);
        }
        return !found;
    };
    for (const int rounds : kRounds) {
        if (!tryAll(false, rounds)) break;
        if (doublesToo && rounds == kNoEnd) tryAll(true, rounds);
    }
    position.touched = touched;
    return found;
}

}  // namespace tidewalk
