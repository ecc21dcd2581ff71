// SPDX-License-Identifier: MIT
// Looking for all solutions of a board: choices, what follows from them, and what their dead ends teach.
#pragma once

#include <optional>
#include <vector>

#include "model/may_go_on.h"
#include "solver/archipelago.h"
#include "solver/bound_trail.h"
#include "solver/clauses.h"
#include "solver/count_solutions.h"
#include "solver/span_queue.h"

namespace tidewalk {

/// A search with conflict-driven learning (Marques-Silva and Sakallah, "GRASP: A search algorithm for propositional
/// satisfiability", 1999). What the islands, the crossings and the connections demand is followed on the board
/// itself and becomes a clause only where a dead end asks why.
class SolutionSearch {
 public:
    /// The board has an island at least.
    explicit SolutionSearch(const Archipelago& board);

    /// Up to `limit` different solutions. Nothing when `mayGoOn`, which is asked before every choice, said no.
    std::optional<std::vector<SpanBridges>> Run(int limit, const MayGoOn& mayGoOn);

 private:
    // What follows from the bounds. False when nothing can, and `conflict_` is a clause that they break.
    bool Propagate();
    bool Follow(Literal literal);
    bool Demand(Literal literal, Reason reason);
    bool TightenIsle(int index);
    bool TightenConnections();
    template <class IsInside>
    LiteralList SpansBetween(IsInside isInside) const;

    // Why something follows.
    void AddBound(int span, bool fromBelow, int place, LiteralList& why) const;
    void Explain(Literal literal, Reason reason, int place, LiteralList& why) const;
    const LiteralList& WhyTrue(Literal literal);

    // What a dead end teaches.
    bool Learn();
    void Resolve(const LiteralList& clause);
    bool FollowsFromRest(Literal literal);
    void MoveToFront();
    int Spread(const LiteralList& clause);
    void Teach(LiteralList clause, int spread);

    void BackTo(int level);
    bool IsTimeToRestart() const;
    void Restart();

    void QueueSpans();
    void Choose(int span);
    SpanBridges Solution() const;
    bool ForbidSolution();

    void Enqueue(int isle);
    void DropQueue();

    const Archipelago& board_;
    BoundTrail trail_;
    Clauses clauses_;
    SpanQueue spans_;

    int followed_ = 0;        ///< how much of the trail has been followed
    std::vector<int> isles_;  ///< islands whose spans changed
    std::vector<bool> queued_;
    bool closed_ = true;  ///< a span was closed since the connections were last looked at
    LiteralList conflict_;
    std::vector<LiteralList> cuts_;        ///< those that are reasons
    std::vector<std::size_t> cutsBefore_;  ///< by level: how many there were before it

    std::vector<std::uint8_t> wishes_;  ///< by span: the bridges that it last had

    // While a dead end is looked into:
    std::vector<bool> seen_;  ///< by variable
    LiteralList marked_;      ///< what is seen
    LiteralList learned_;
    LiteralList why_;
    int open_ = 0;  ///< how many seen literals of the present level are not looked into yet

    int deadEnds_ = 0;  ///< since the last restart
    int restarts_ = 1;
    int patience_ = 1;  ///< how long until the next one

    struct MayBeBridged {
        const BoundTrail* trail;
        bool operator()(int span) const { return trail->High(span) > 0; }
    };
    ConnectionSearch<MayBeBridged> connections_;
};

}  // namespace tidewalk
