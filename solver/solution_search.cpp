// SPDX-License-Identifier: MIT
#include "solver/solution_search.h"

#include <algorithm>
#include <utility>

#include "solver/balance.h"

namespace tidewalk {

SolutionSearch::SolutionSearch(const Archipelago& board)
    : board_(board),
      trail_(board.SpanCount()),
      clauses_(board.SpanCount()),
      spans_(board.SpanCount()),
      queued_(board.isles.size()),
      wishes_(board.spans.size(), 1),
      seen_(VariableCount(board.SpanCount())),
      connections_(board, MayBeBridged{&trail_}) {
    for (int isle = 0; isle < board_.IsleCount(); ++isle)
        Enqueue(isle);
}

std::optional<std::vector<SpanBridges>> SolutionSearch::Run(int limit, const MayGoOn& mayGoOn) {
    std::vector<SpanBridges> found;
    for (;;) {
        if (!Propagate()) {
            if (!Learn()) return found;
            continue;
        }
        if (IsTimeToRestart()) Restart();
        if (trail_.Level() == 0 && !IsBalanced(board_, trail_)) return found;
        if (spans_.IsEmpty()) QueueSpans();
        const int span = spans_.FirstOpen(trail_);
        if (span < 0) {
            found.push_back(Solution());
            if (static_cast<int>(found.size()) == limit || !ForbidSolution()) return found;
            continue;
        }
        if (!mayGoOn()) return std::nullopt;
        Choose(span);
    }
}

void SolutionSearch::Enqueue(int isle) {
    if (queued_[static_cast<std::size_t>(isle)]) return;
    queued_[static_cast<std::size_t>(isle)] = true;
    isles_.push_back(isle);
}

bool SolutionSearch::Propagate() {
    for (;;) {
        while (followed_ < trail_.Size()) {
            if (!Follow(trail_.At(followed_++))) return false;
        }
        if (!isles_.empty()) {
            const int isle = isles_.back();
            isles_.pop_back();
            queued_[static_cast<std::size_t>(isle)] = false;
            if (!TightenIsle(isle)) return false;
        } else if (closed_) {
            closed_ = false;
            if (!TightenConnections()) return false;
        } else {
            return true;
        }
    }
}

bool SolutionSearch::Follow(Literal literal) {
    const int broken = clauses_.Propagate(!literal, trail_);
    if (broken >= 0) {
        conflict_ = clauses_.At(broken);
        return false;
    }
    const Span& span = board_.SpanAt(literal.Span());
    Enqueue(span.ends[0]);
    Enqueue(span.ends[1]);
    if (literal.Bridges() > 1) return true;
    if (!literal.IsAtLeast()) {
        closed_ = true;
        return true;
    }
    const Reason bridged{Reason::Kind::Crossing, literal.Span()};
    return std::all_of(span.crossings.begin(), span.crossings.end(),
                       [&](int crossing) { return Demand(Literal::Below(crossing, 1), bridged); });
}

bool SolutionSearch::Demand(Literal literal, Reason reason) {
    if (trail_.IsTrue(literal)) return true;
    if (!trail_.IsFalse(literal)) {
        trail_.Assert(literal, reason);
        return true;
    }
    conflict_.assign(1, literal);
    Explain(literal, reason, trail_.Size(), conflict_);
    return false;
}

/// What the other spans of an island leave for each one.
bool SolutionSearch::TightenIsle(int index) {
    const Isle& isle = board_.IsleAt(index);
    int low = 0;
    int high = 0;
    for (const int span : isle.spans) {
        low += trail_.Low(span);
        high += trail_.High(span);
    }
    if (low > isle.number || high < isle.number) {
        conflict_.clear();
        for (const int span : isle.spans)
            AddBound(span, low > isle.number, trail_.Size(), conflict_);
        return false;
    }
    const Reason reason{Reason::Kind::Isle, index};
    for (const int span : isle.spans) {
        const int ownLow = trail_.Low(span);
        const int ownHigh = trail_.High(span);
        const int newLow = isle.number - (high - ownHigh);
        const int newHigh = isle.number - (low - ownLow);
        if (newLow > ownLow) trail_.Assert(Literal::AtLeast(span, newLow), reason);
        if (newHigh < ownHigh) trail_.Assert(Literal::Below(span, newHigh + 1), reason);
    }
    return true;
}

/// All islands must hang together over spans that may still be bridged, and a span without which they would not has to
/// be bridged.
bool SolutionSearch::TightenConnections() {
    connections_.Run();
    if (!connections_.ReachesAll()) {
        conflict_ = SpansBetween([this](int isle) { return connections_.IsReached(isle); });
        return false;
    }
    for (const CutSpan& cut : connections_.CutSpans()) {
        if (trail_.Low(cut.span) > 0) continue;
        Reason reason;
        if (trail_.Level() > 0) {
            reason = {Reason::Kind::Cut, static_cast<int>(cuts_.size())};
            cuts_.push_back(SpansBetween([&](int isle) { return connections_.IsBeyond(cut, isle); }));
        }
        trail_.Assert(Literal::AtLeast(cut.span, 1), reason);
    }
    return true;
}

template <class IsInside>
LiteralList SolutionSearch::SpansBetween(IsInside isInside) const {
    LiteralList bridged;
    for (int span = 0; span < board_.SpanCount(); ++span) {
        const auto& ends = board_.SpanAt(span).ends;
        if (isInside(ends[0]) != isInside(ends[1])) bridged.push_back(Literal::AtLeast(span, 1));
    }
    return bridged;
}

/// Adds what would have to be otherwise for the span to have fewer bridges at the least, or more at the most.
void SolutionSearch::AddBound(int span, bool fromBelow, int place, LiteralList& why) const {
    if (fromBelow) {
        const int low = trail_.LowAt(span, place);
        if (low > 0) why.push_back(Literal::Below(span, low));
    } else {
        const int high = trail_.HighAt(span, place);
        if (high < kMostBridges) why.push_back(Literal::AtLeast(span, high + 1));
    }
}

/// Adds the literals, all false before `place`, of which one would have to be true for `literal` to be false.
void SolutionSearch::Explain(Literal literal, Reason reason, int place, LiteralList& why) const {
    const auto addAllBut = [&](const LiteralList& clause) {
        std::copy_if(clause.begin(), clause.end(), std::back_inserter(why),
                     [literal](Literal other) { return other != literal; });
    };
    switch (reason.kind) {
        case Reason::Kind::None:
            break;
        case Reason::Kind::Isle:
            for (const int span : board_.IsleAt(reason.index).spans) {
                if (span != literal.Span()) AddBound(span, !literal.IsAtLeast(), place, why);
            }
            break;
        case Reason::Kind::Crossing:
            why.push_back(Literal::Below(reason.index, 1));
            break;
        case Reason::Kind::Stronger:
            why.push_back(literal.IsAtLeast() ? Literal::Below(literal.Span(), 2)
                                              : Literal::AtLeast(literal.Span(), 1));
            break;
        case Reason::Kind::Clause:
            addAllBut(clauses_.At(reason.index));
            break;
        case Reason::Kind::Cut:
            addAllBut(cuts_[static_cast<std::size_t>(reason.index)]);
            break;
    }
}

const LiteralList& SolutionSearch::WhyTrue(Literal literal) {
    why_.clear();
    Explain(literal, trail_.ReasonOf(literal), trail_.PlaceOf(literal), why_);
    return why_;
}

/// Marks the literals of a clause that is broken, or would be but for the one that it made true.
void SolutionSearch::Resolve(const LiteralList& clause) {
    for (const Literal literal : clause) {
        const int level = trail_.LevelOf(literal);
        if (level == 0 || seen_[literal.Variable()]) continue;
        seen_[literal.Variable()] = true;
        marked_.push_back(literal);
        if (level == trail_.Level()) {
            ++open_;
        } else {
            learned_.push_back(literal);
        }
    }
}

bool SolutionSearch::Learn() {
    DropQueue();
    if (trail_.Level() == 0) return false;
    ++deadEnds_;
    open_ = 0;
    learned_.clear();
    Resolve(conflict_);
    int place = trail_.Size();
    for (;;) {
        do {
            --place;
        } while (!seen_[trail_.At(place).Variable()]);
        if (--open_ == 0) break;
        Resolve(WhyTrue(trail_.At(place)));
    }
    std::erase_if(learned_, [this](Literal literal) { return FollowsFromRest(literal); });
    learned_.insert(learned_.begin(), !trail_.At(place));
    MoveToFront();
    Teach(learned_, Spread(learned_));
    return true;
}

/// Whether the other literals of the clause that is being learned say what this one says.
bool SolutionSearch::FollowsFromRest(Literal literal) {
    if (trail_.ReasonOf(literal).kind == Reason::Kind::None) return false;
    const LiteralList& why = WhyTrue(!literal);
    return std::all_of(why.begin(), why.end(),
                       [this](Literal other) { return seen_[other.Variable()] || trail_.LevelOf(other) == 0; });
}

/// Lets the spans that had a part in the dead end be chosen first, in the order that they had.
void SolutionSearch::MoveToFront() {
    std::sort(marked_.begin(), marked_.end(),
              [this](Literal a, Literal b) { return spans_.TimeOf(a.Span()) < spans_.TimeOf(b.Span()); });
    for (const Literal literal : marked_) {
        seen_[literal.Variable()] = false;
        spans_.ToFront(literal.Span());
    }
    marked_.clear();
}

int SolutionSearch::Spread(const LiteralList& clause) {
    std::vector<int> levels;
    for (const Literal literal : clause)
        levels.push_back(trail_.LevelOf(literal));
    std::sort(levels.begin(), levels.end());
    return static_cast<int>(std::unique(levels.begin(), levels.end()) - levels.begin());
}

/// Takes a clause that is broken, its first literal alone on the newest of their levels, and goes back to where that
/// literal follows.
void SolutionSearch::Teach(LiteralList clause, int spread) {
    const Literal first = clause[0];
    if (clause.size() == 1) {
        BackTo(0);
        trail_.Assert(first, {});
        return;
    }
    const auto second = std::max_element(clause.begin() + 1, clause.end(), [this](Literal a, Literal b) {
        return trail_.LevelOf(a) < trail_.LevelOf(b);
    });
    std::swap(clause[1], *second);
    BackTo(trail_.LevelOf(clause[1]));
    const int index = clauses_.Add(std::move(clause), spread);
    trail_.Assert(first, {Reason::Kind::Clause, index});
}

void SolutionSearch::DropQueue() {
    for (const int isle : isles_)
        queued_[static_cast<std::size_t>(isle)] = false;
    isles_.clear();
}

/// Goes back to the end of a level, where everything had been followed.
void SolutionSearch::BackTo(int level) {
    if (level >= trail_.Level()) return;
    for (int place = trail_.PlaceOf(trail_.ChoiceOf(level + 1)); place < trail_.Size(); ++place) {
        const int span = trail_.At(place).Span();
        if (!trail_.IsOpen(span)) wishes_[static_cast<std::size_t>(span)] = static_cast<std::uint8_t>(trail_.Low(span));
        spans_.Reopen(span);
    }
    trail_.BackTo(level);
    cuts_.resize(cutsBefore_[static_cast<std::size_t>(level)]);
    cutsBefore_.resize(static_cast<std::size_t>(level));
    followed_ = trail_.Size();
    closed_ = false;
}

bool SolutionSearch::IsTimeToRestart() const {
    constexpr int kUnit = 50;
    return deadEnds_ >= kUnit * patience_;
}

/// Starts anew with what was learned. How long the search may go on each time is 1, 1, 2, 1, 1, 2, 4, 1, ... (Luby,
/// Sinclair and Zuckerman, "Optimal speedup of Las Vegas algorithms", 1993; the recurrence is Knuth's).
void SolutionSearch::Restart() {
    deadEnds_ = 0;
    if ((restarts_ & -restarts_) == patience_) {
        ++restarts_;
        patience_ = 1;
    } else {
        patience_ *= 2;
    }
    BackTo(0);
    if (clauses_.AreTooMany()) clauses_.DropWorst();
}

/// The spans of the islands that leave least to choose come first.
void SolutionSearch::QueueSpans() {
    struct Place {
        int slack;
        int span;
    };
    std::vector<Place> places;
    std::vector<int> slacks;
    for (const Isle& isle : board_.isles) {
        int slack = -isle.number;
        for (const int span : isle.spans)
            slack += trail_.High(span);
        slacks.push_back(slack);
    }
    for (int span = 0; span < board_.SpanCount(); ++span) {
        if (!trail_.IsOpen(span)) continue;
        const auto& ends = board_.SpanAt(span).ends;
        const auto slackOf = [&](int end) { return slacks[static_cast<std::size_t>(end)]; };
        places.push_back({std::min(slackOf(ends[0]), slackOf(ends[1])), span});
    }
    std::stable_sort(places.begin(), places.end(), [](const Place& a, const Place& b) { return a.slack > b.slack; });
    for (const Place& place : places)
        spans_.ToFront(place.span);
}

void SolutionSearch::Choose(int span) {
    const int wish = wishes_[static_cast<std::size_t>(span)];
    const int low = trail_.Low(span);
    const int high = trail_.High(span);
    trail_.BeginLevel();
    cutsBefore_.push_back(cuts_.size());
    trail_.Assert(wish > low ? Literal::AtLeast(span, std::min(wish, high)) : Literal::Below(span, low + 1), {});
}

SpanBridges SolutionSearch::Solution() const {
    SpanBridges bridges;
    for (int span = 0; span < board_.SpanCount(); ++span)
        bridges.push_back(static_cast<std::uint8_t>(trail_.Low(span)));
    return bridges;
}

/// Goes on to the other solutions; false when there are none.
bool SolutionSearch::ForbidSolution() {
    LiteralList clause;
    for (int level = trail_.Level(); level > 0; --level)
        clause.push_back(!trail_.ChoiceOf(level));
    if (clause.empty()) return false;
    Teach(std::move(clause), 0);
    return true;
}

}  // namespace tidewalk
