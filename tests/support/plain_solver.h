// SPDX-License-Identifier: MIT
// The solver in its plainest form: texts, full rescans, copied boards. It is what the fast one is compared with.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "model/grid.h"

namespace tidewalk::test {

/// Solves a board the slow way: every list is a text, every look-up a scan, every bridge makes all lists anew, and
/// every choice point keeps a copy of the whole state.
class PlainSolver {
 public:
    PlainSolver(const Grid<int>& numbers, int rows, int cols);

    /// True when solved.
    bool Solve(int limit, int trialLimit = 0);

    int trials = 0;
    std::vector<std::string> links;   ///< the link records, in order
    std::vector<std::string> chosen;  ///< the status line of every choice that the search made
    std::vector<std::string> calls;   ///< every bridge laid: rule, islands and count

 private:
    struct State {
        std::vector<int> need;             // by id; -1 water
        std::vector<std::string> open;     // by id
        std::vector<std::string> crossed;  // by id
        std::vector<std::string> joined;   // by id
        std::vector<std::string> links;
        int overdrawn = 0;
    };
    struct Choice {
        std::string line;
        State state;
    };

    int Row(int id) const { return (id - 1) / cols_ + 1; }
    int Col(int id) const { return (id - 1) % cols_ + 1; }
    void Scan(bool refresh);
    void Refresh();
    int LinkValue(int a, int b) const;
    void Use(int a, int b, int n);
    void Connect(const std::string& rule, int a, int b, int n);
    void ApplyRules();
    void Visit(int id);
    bool Isolated() const;
    std::set<int> GroupOf(int id) const;
    bool Contradiction() const;
    bool Propagate();
    bool Search(int trialLimit);
    bool AllMet() const;
    std::vector<int> Open(int id) const;

    int rows_;
    int cols_;
    int cells_;
    std::vector<int> given_;
    State s_;
    int connectCount_ = 0;
    std::vector<std::string> status_;
};

}  // namespace tidewalk::test
