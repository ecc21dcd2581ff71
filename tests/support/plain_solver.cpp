// SPDX-License-Identifier: MIT
#include "support/plain_solver.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

namespace tidewalk::test {

namespace {

std::string Digits(int n, int width) {
    char text[16];
    std::snprintf(text, sizeof text, "%0*d", width, n);
    return text;
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream in(line);
    std::vector<std::string> words;
    for (std::string word; in >> word;)
        words.push_back(word);
    return words;
}

}  // namespace

PlainSolver::PlainSolver(const Grid<int>& numbers, int rows, int cols) : rows_(rows), cols_(cols), cells_(rows * cols) {
    given_.assign(cells_ + 1, -1);
    for (int id = 1; id <= cells_; ++id) {
        const int number = numbers(Row(id), Col(id));
        if (number > 0) given_[id] = number;
    }
}

std::vector<int> PlainSolver::Open(int id) const {
    std::vector<int> ids;
    for (const std::string& word : Words(s_.open[id]))
        ids.push_back(std::stoi(word));
    return ids;
}

void PlainSolver::Scan(bool refresh) {
    for (auto& list : s_.open)
        list.clear();
    const int steps[4][2] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}};
    for (int id = 1; id <= cells_; ++id) {
        if (s_.need[id] < 1) continue;
        for (const auto& step : steps) {
            for (int r = Row(id) + step[0], c = Col(id) + step[1]; r >= 1 && r <= rows_ && c >= 1 && c <= cols_;
                 r += step[0], c += step[1]) {
                const int other = (r - 1) * cols_ + c;
                if (refresh && s_.crossed[other] == (step[0] == 0 ? "v" : "h")) break;
                if (s_.need[other] == 0) break;
                if (s_.need[other] < 0) continue;
                if (!refresh || LinkValue(id, other) != 0) s_.open[id] += Digits(other, 3) + " ";
                break;
            }
        }
    }
}

void PlainSolver::Refresh() {
    Scan(true);
    status_.clear();
    for (int id = 1; id <= cells_; ++id) {
        if (s_.need[id] <= 0) continue;
        std::string line = Digits(s_.need[id], 1) + " " + Digits(static_cast<int>(s_.open[id].size()) / 4, 2) +
                           " 000 000 " + Digits(id, 3) + " ";
        for (const int other : Open(id)) {
            line += Digits(other, 3) + "*1 ";
            if (s_.need[id] >= 2 && LinkValue(id, other) == 2) line += Digits(other, 3) + "*2 ";
        }
        status_.push_back(line);
    }
    std::sort(status_.begin(), status_.end());
}

int PlainSolver::LinkValue(int a, int b) const {
    const std::string one = Digits(a, 3) + Digits(b, 3);
    const std::string two = Digits(b, 3) + Digits(a, 3);
    for (const std::string& link : s_.links) {
        if (link.substr(0, 6) == one || link.substr(0, 6) == two) return link[6] - '0';
    }
    return 0;
}

void PlainSolver::Use(int a, int b, int n) {
    const std::string one = Digits(a, 3) + Digits(b, 3);
    const std::string two = Digits(b, 3) + Digits(a, 3);
    if (LinkValue(a, b) < n) ++s_.overdrawn;
    for (std::string& link : s_.links) {
        if (link.substr(0, 6) != one && link.substr(0, 6) != two) continue;
        link[6] = static_cast<char>('0' + std::max(link[6] - '0' - n, 0));
        return;
    }
}

void PlainSolver::Connect(const std::string& rule, int a, int b, int n) {
    calls.push_back(rule + ":" + std::to_string(a) + "-" + std::to_string(b) + "x" + std::to_string(n));
    s_.need[a] -= n;
    s_.need[b] -= n;
    const std::string toB = " " + std::to_string(b) + ",";
    const std::string toA = " " + std::to_string(a) + ",";
    if (s_.joined[a].find(toB) == std::string::npos) s_.joined[a] += toB;
    if (s_.joined[b].find(toA) == std::string::npos) s_.joined[b] += toA;
    const bool sameRow = Row(a) == Row(b);
    const int step = sameRow ? 1 : cols_;
    for (int id = std::min(a, b) + step; id < std::max(a, b); id += step)
        s_.crossed[id] = sameRow ? "h" : "v";
    Refresh();
    ++connectCount_;
    Use(a, b, n);
}

void PlainSolver::ApplyRules() {
    for (int id = 1; id <= cells_; ++id) {
        if (s_.need[id] > 0) Visit(id);
    }
    Refresh();
}

void PlainSolver::Visit(int id) {
    const std::vector<int> o = Open(id);
    const int r = s_.need[id];
    const auto need = [&](int i) { return s_.need[o[i]]; };
    const auto lay = [&](const char* rule, int i, int n) { Connect(rule, id, o[i], n); };
    const auto fits = [&](int wantNeed, std::size_t n) { return r == wantNeed && o.size() == n; };
    if (fits(1, 1)) {
        lay("1-1 connect", 0, 1);
    } else if (fits(2, 1)) {
        if (LinkValue(id, o[0]) >= 2) lay("2 has only 1 connection", 0, 2);
    } else if (fits(4, 2) || fits(6, 3)) {
        for (std::size_t i = 0; i < o.size() && LinkValue(id, o[i]) >= 2; ++i) {
            lay(r == 4 ? "4-2 connect" : "6-3 connect", static_cast<int>(i), 2);
        }
    } else if (fits(3, 2)) {
        if (need(0) == 1) {
            lay("3-1 connect", 0, 1);
            lay("3-2 connect", 1, 2);
        } else if (need(1) == 1) {
            lay("3-1 connect", 1, 1);
            lay("3-2 connect", 0, 2);
        }
    } else if (fits(5, 3)) {
        lay("5-3 links connect", 0, 1);
        lay("5-3 link connect", 1, 1);
        lay("5-3 link connect", 2, 1);
    } else if (fits(2, 2)) {
        if (need(0) == 1 || need(1) == 1) lay("2-1 connect", need(0) != 1 ? 0 : 1, 1);
    } else if (fits(3, 3)) {
        const int cap[3] = {LinkValue(id, o[0]), LinkValue(id, o[1]), LinkValue(id, o[2])};
        for (int full = 0; full < 3; ++full) {
            const int x = full == 0 ? 1 : 0;
            const int y = full == 2 ? 1 : 2;
            if (cap[full] != 0 || cap[x] != 2 || cap[y] != 2) continue;
            lay("3-3-O1 connect", x, 1);
            lay("3-3-O1 connect", y, 1);
            return;
        }
        const int third = need(0) == 1 && need(1) == 1   ? 2
                          : need(1) == 1 && need(2) == 1 ? 0
                          : need(0) == 1 && need(2) == 1 ? 1
                                                         : -1;
        if (third >= 0) lay("3-3-2 1s connect", third, 1);
    } else if (fits(4, 3)) {
        const int one = need(0) == 1 ? 0 : need(1) == 1 ? 1 : need(2) == 1 ? 2 : -1;
        for (int i = 0; one >= 0 && i < 3; ++i) {
            if (i != one) lay("4-3-O1 connect", i, 1);
        }
    }
}

std::set<int> PlainSolver::GroupOf(int id) const {
    std::set<int> group{id};
    std::vector<int> waiting{id};
    while (!waiting.empty()) {
        std::istringstream joined(s_.joined[waiting.back()]);
        waiting.pop_back();
        for (std::string part; std::getline(joined, part, ',');) {
            if (group.insert(std::stoi(part)).second) waiting.push_back(std::stoi(part));
        }
    }
    return group;
}

bool PlainSolver::Isolated() const {
    const auto islands =
        static_cast<std::size_t>(std::count_if(given_.begin(), given_.end(), [](int n) { return n > 0; }));
    for (int id = 1; id <= cells_; ++id) {
        if (given_[id] < 1 || s_.need[id] < 0) continue;
        const std::set<int> group = GroupOf(id);
        const bool grows =
            std::any_of(group.begin(), group.end(), [&](int member) { return !s_.open[member].empty(); });
        if (!grows && group.size() != islands) return true;
    }
    return false;
}

bool PlainSolver::Contradiction() const {
    if (s_.overdrawn > 0) return true;
    for (int id = 1; id <= cells_; ++id) {
        if (given_[id] < 1) continue;
        if (s_.need[id] < 0) return true;
        int given = 0;
        for (const int other : Open(id))
            given += std::min(LinkValue(id, other), s_.need[other]);
        if (s_.need[id] > given) return true;
    }
    return Isolated();
}

bool PlainSolver::Propagate() {
    do {
        connectCount_ = 0;
        ApplyRules();
        if (Contradiction()) return false;
    } while (connectCount_ != 0);
    return true;
}

bool PlainSolver::AllMet() const {
    return status_.empty();
}

bool PlainSolver::Search(int trialLimit) {
    std::vector<Choice> choices;
    std::string line = status_.empty() ? "" : status_.front();
    while (!line.empty()) {
        std::vector<std::string> words = Words(line);
        bool dead = words.size() < 6;
        if (!dead) {
            chosen.push_back(line);
            ++trials;
            if (trialLimit > 0 && trials >= trialLimit) return false;
            const std::string move = words[5];
            if (words.size() > 6) {
                if (choices.size() >= 500) return false;
                words.erase(words.begin() + 5);
                std::string left;
                for (const std::string& word : words)
                    left += word + " ";
                choices.push_back({left, s_});
            }
            const int island = std::stoi(words[4]);
            Connect("trial", island, std::stoi(move.substr(0, 3)), move.back() - '0');
            dead = !Propagate();
        }
        if (!dead) {
            line = status_.empty() ? "" : status_.front();
            continue;
        }
        if (choices.empty()) return false;
        line = choices.back().line;
        s_ = choices.back().state;
        choices.pop_back();
    }
    return true;
}

bool PlainSolver::Solve(int limit, int trialLimit) {
    s_.need = given_;
    s_.open.assign(cells_ + 1, "");
    s_.crossed.assign(cells_ + 1, "");
    s_.joined.assign(cells_ + 1, "");
    Scan(false);
    for (int id = 1; id <= cells_; ++id) {
        for (const int other : Open(id))
            s_.links.push_back(Digits(id, 3) + Digits(other, 3) + "2");
    }
    Refresh();
    bool solved = Propagate();
    if (solved && !AllMet()) solved = limit >= 1 && Search(trialLimit);
    links = s_.links;
    return solved;
}

}  // namespace tidewalk::test
