// SPDX-License-Identifier: MIT
#include "generator/refine.h"

#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "generator/fit_figures.h"
#include "techniques/deducer.h"
#include "techniques/explain.h"
#include "techniques/grade.h"

namespace tidewalk {

namespace {

/// A layout of which nobody knows after so many choices whether it has one solution is given up.
constexpr int kMostChoices = 2000;

// How many changes are tried before a layout is given up. Most need a tenth of these, and another layout is soon there.
constexpr int kMostRepairs = 100;
constexpr int kMostEasier = 1500;
constexpr int kMostHarder = 300;

/// Other bridges for a span.
struct Change {
    int span = 0;
    int bridges = 0;
};

/// One of them, each as likely as any other; there is at least one.
template <class Some>
auto DrawFrom(const Some& all, RandomSource& random) {
    return *std::next(all.begin(), random.Draw(static_cast<int>(all.size())));
}

/// The spans on which two choices of bridges differ, in groups that hang together by islands.
std::vector<std::vector<int>> Differences(const Archipelago& board, const SpanBridges& one, const SpanBridges& other) {
    std::vector<bool> awaited(one.size());
    for (std::size_t span = 0; span < one.size(); ++span)
        awaited[span] = one[span] != other[span];
    std::vector<std::vector<int>> groups;
    std::vector<int> reached;
    const auto reach = [&](int span) {
        if (awaited[static_cast<std::size_t>(span)]) reached.push_back(span);
        awaited[static_cast<std::size_t>(span)] = false;
    };
    for (int first = 0; first < board.SpanCount(); ++first) {
        if (!awaited[static_cast<std::size_t>(first)]) continue;
        groups.emplace_back();
        reach(first);
        while (!reached.empty()) {
            const int span = reached.back();
            reached.pop_back();
            groups.back().push_back(span);
            for (const int isle : board.SpanAt(span).ends) {
                for (const int beside : board.IsleAt(isle).spans)
                    reach(beside);
            }
        }
    }
    return groups;
}

/// Changes the bridges of one layout.
class Refiner {
 public:
    Refiner(SolvedLayout& layout, const Character& character, RandomSource& random, const MayGoOn& mayGoOn)
        : layout_(layout), character_(character), random_(random), mayGoOn_(mayGoOn) {}

    bool MakeUnique() {
        for (int changes = kMostRepairs; changes > 0 && mayGoOn_(); --changes) {
            if (!LookForAnother()) return false;
            if (!another_) return true;
            if (!ChangeAgainst(*another_)) return false;
        }
        return false;
    }

    /// Changes bridges until techniques no harder than `most` solve the layout. That also proves that it has one
    /// solution.
    bool MakeSolvableBy(Technique most) {
        std::vector<int> rest = UnfinishedBy(most);
        for (int changes = kMostEasier; changes > 0 && !rest.empty() && mayGoOn_(); --changes) {
            const SpanBridges before = layout_.Bridges();
            if (ChangeAt(DrawFrom(rest, random_)) && FitFigures(layout_, character_, random_)) {
                std::vector<int> next = UnfinishedBy(most);
                if (next.size() <= rest.size()) {
                    rest = std::move(next);
                    continue;
                }
            }
            Restore(before);
        }
        return rest.empty();
    }

    /// Makes a layout with one solution harder until it is of this grade. False also when it is too hard.
    bool MakeHarder(Grade grade) {
        Efforts efforts = FindEfforts();
        for (int changes = kMostHarder; changes > 0 && GradeOf(ScoreOf(efforts)) < grade && mayGoOn_(); --changes) {
            const SpanBridges before = layout_.Bridges();
            if (ChangeAt(random_.Draw(layout_.Board().IsleCount())) && FitFigures(layout_, character_, random_) &&
                LookForAnother() && !another_) {
                const Efforts next = FindEfforts();
                if (WeightOf(next) >= WeightOf(efforts) && GradeOf(ScoreOf(next)) <= grade) {
                    efforts = next;
                    continue;
                }
            }
            Restore(before);
        }
        return GradeOf(ScoreOf(efforts)) == grade;
    }

    bool MakeGrade(Grade grade) {
        if (!MakeUnique()) return false;
        if (grade == Grade::VEasy) return MakeSolvableBy(Technique::NoMore);
        return (grade != Grade::Easy || MakeSolvableBy(Technique::WayOut)) && MakeHarder(grade);
    }

 private:
    /// Looks for a solution beside the layout's own. False when it was not found out.
    bool LookForAnother() {
        int choices = kMostChoices;
        const auto found = FindSolutions(layout_.Board(), 2, [&] { return choices-- > 0 && mayGoOn_(); });
        if (!found) return false;
        another_.reset();
        for (const SpanBridges& bridges : *found) {
            if (bridges != layout_.Bridges()) another_ = bridges;
        }
        return true;
    }

    /// Whether other bridges may be laid on a span: nothing lies across, and the islands hang together.
    bool MayBecome(const Change& change) const {
        const int now = layout_.At(change.span);
        if (change.bridges == now) return false;
        if (now == 0) return layout_.IsFree(change.span);
        return change.bridges > 0 || layout_.IsSpare(change.span);
    }

    /// Makes a change at every place where the other solution has other bridges.
    bool ChangeAgainst(const SpanBridges& other) {
        bool changed = false;
        for (const std::vector<int>& place : Differences(layout_.Board(), layout_.Bridges(), other))
            changed = ChangeOneOf(place, other) || changed;
        return changed && FitFigures(layout_, character_, random_);
    }

    /// Makes a change on one of the spans that the other solution cannot share, as it would have less than no bridge
    /// there, or more than two.
    bool ChangeOneOf(const std::vector<int>& spans, const SpanBridges& other) {
        std::vector<Change> changes;
        for (const int span : spans) {
            for (int bridges = 0; bridges <= kMostBridges; ++bridges) {
                const int shared = other[static_cast<std::size_t>(span)] + bridges - layout_.At(span);
                if ((shared < 0 || shared > kMostBridges) && MayBecome({span, bridges}))
                    changes.push_back({span, bridges});
            }
        }
        if (changes.empty()) return false;
        const Change change = DrawFrom(changes, random_);
        layout_.Set(change.span, change.bridges);
        return true;
    }

    bool ChangeAt(int isle) {
        const Change change{DrawFrom(layout_.Board().IsleAt(isle).spans, random_), random_.Draw(kMostBridges + 1)};
        if (!MayBecome(change)) return false;
        layout_.Set(change.span, change.bridges);
        return true;
    }

    /// The islands that still need bridges when techniques no harder than `most`, which is easier than supposing, have
    /// nothing more to say.
    std::vector<int> UnfinishedBy(Technique most) {
        Position position(layout_.Board());
        Deducer deducer(position, Purpose::Path);
        const auto withoutSupposing = [] { return false; };
        while (true) {
            const auto deduction = deducer.Next(withoutSupposing);
            if (!deduction || deduction->technique > most) break;
            Apply(position, *deduction);
        }
        std::vector<int> unfinished;
        for (int isle = 0; isle < layout_.Board().IsleCount(); ++isle) {
            if (position.Need(isle) > 0) unfinished.push_back(isle);
        }
        return unfinished;
    }

    /// A weight that goes up with every hard step, where the score does not.
    static int WeightOf(const Efforts& efforts) {
        constexpr int kNear = 20;
        constexpr int kFar = 3 * kNear;
        constexpr int kTrial = 20 * kNear;
        return efforts.cutOffs + 2 * efforts.waysOut + kNear * efforts.near + kFar * efforts.far +
               kTrial * efforts.trials;
    }

    Efforts FindEfforts() {
        Efforts efforts;
        WalkPath(layout_.Board(), &layout_.Bridges(), mayGoOn_,
                 [&](const Position&, const Deduction& deduction) { efforts.Add(deduction); });
        return efforts;
    }

    void Restore(const SpanBridges& bridges) {
        for (int span = 0; span < layout_.Board().SpanCount(); ++span)
            layout_.Set(span, bridges[static_cast<std::size_t>(span)]);
    }

    SolvedLayout& layout_;
    const Character& character_;
    RandomSource& random_;
    const MayGoOn& mayGoOn_;
    std::optional<SpanBridges> another_;  ///< what `LookForAnother` found
};

}  // namespace

bool MakeUnique(SolvedLayout& layout, const Character& character, RandomSource& random, const MayGoOn& mayGoOn) {
    return Refiner(layout, character, random, mayGoOn).MakeUnique();
}

bool MakeGrade(SolvedLayout& layout, Grade grade, const Character& character, RandomSource& random,
               const MayGoOn& mayGoOn) {
    return Refiner(layout, character, random, mayGoOn).MakeGrade(grade);
}

}  // namespace tidewalk
