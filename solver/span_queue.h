// SPDX-License-Identifier: MIT
// Which open span a search should choose next.
#pragma once

#include <cstdint>
#include <vector>

#include "solver/bound_trail.h"

namespace tidewalk {

/// The spans in the order in which they last had a part in a dead end, the latest first (the queue of Biere and
/// Fröhlich, "Evaluating CDCL variable scoring schemes", 2015). At first that is the order in which they are added,
/// the last one first.
class SpanQueue {
 public:
    explicit SpanQueue(int spanCount) : nodes_(static_cast<std::size_t>(spanCount)) {}

    bool IsEmpty() const { return first_ < 0; }

    /// Adds a span, or moves it to the front.
    void ToFront(int span) {
        Node& node = NodeOf(span);
        if (node.isIn) Unlink(node);
        node = {-1, first_, ++time_, true};
        if (first_ >= 0) NodeOf(first_).before = span;
        first_ = span;
        next_ = span;
    }

    /// When a span was last moved.
    std::int64_t TimeOf(int span) const { return nodes_[static_cast<std::size_t>(span)].time; }

    /// The first open span; -1 when there is none.
    int FirstOpen(const BoundTrail& trail) {
        while (next_ >= 0 && !trail.IsOpen(next_))
            next_ = NodeOf(next_).after;
        return next_;
    }

    /// Has to be told of every span that becomes open again.
    void Reopen(int span) {
        if (next_ < 0 || TimeOf(span) > TimeOf(next_)) next_ = span;
    }

 private:
    struct Node {
        int before = -1;
        int after = -1;
        std::int64_t time = 0;
        bool isIn = false;
    };

    Node& NodeOf(int span) { return nodes_[static_cast<std::size_t>(span)]; }

    void Unlink(const Node& node) {
        if (node.before >= 0)
            NodeOf(node.before).after = node.after;
        else
            first_ = node.after;
        if (node.after >= 0) NodeOf(node.after).before = node.before;
    }

    std::vector<Node> nodes_;
    int first_ = -1;
    int next_ = -1;  ///< no span before it is open
    std::int64_t time_ = 0;
};

}  // namespace tidewalk
