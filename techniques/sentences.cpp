// SPDX-License-Identifier: MIT
#include "techniques/sentences.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "techniques/cutting_off.h"

namespace tidewalk {

namespace {

std::string Capitalized(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

/// "a, b and c", or with another last word between.
std::string Listed(const std::vector<std::string>& parts, std::string_view last = " and ") {
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) text += i + 1 == parts.size() ? last : ", ";
        text += parts[i];
    }
    return text;
}

/// In words as far as islands are numbered: "the 3 needs three bridges" has one digit, the name of the island.
std::string NumberWord(int n) {
    constexpr std::array<const char*, 9> kWords{"none", "one", "two", "three", "four", "five", "six", "seven", "eight"};
    const auto at = static_cast<std::size_t>(n);
    return at < kWords.size() ? kWords.at(at) : std::to_string(n);
}

std::string BridgeCount(int n) {
    return n == 1 ? "one bridge" : NumberWord(n) + " bridges";
}

/// The verb of so many bridges.
std::string Go(int n) {
    return n == 1 ? " goes" : " go";
}

/// Writes about one position.
class Writer {
 public:
    explicit Writer(const Position& position) : position_(position), board_(position.Board()) {}

    std::string Last(const Deduction& deduction) const {
        const int isle = deduction.isles.front();
        const Rooms rooms(position_, isle);
        if (deduction.must.size() == 1) {
            const std::string all = rooms.need == 1 ? "its bridge goes" : "both bridges go";
            const std::string last = rooms.need == 1 ? "its last bridge goes" : "its last two bridges go";
            const bool only = board_.IsleAt(isle).spans.size() == 1;
            return Capitalized(Name(isle)) + " has only one neighbour" + (only ? ", " : " left, ") +
                   Beside(isle, deduction.must.front().span) + ": " +
                   (rooms.need == board_.IsleAt(isle).number ? all : last) + " there." + Limits(isle);
        }
        std::vector<std::string> parts;
        for (const SpanBound& must : deduction.must)
            parts.push_back(NumberWord(must.bridges - position_.Laid(must.span)) + " to " + Beside(isle, must.span));
        return Needs(isle) + ", and its neighbours can take just as many: " + Listed(parts) + "." + Limits(isle);
    }

    std::string Least(const Deduction& deduction) const {
        const int isle = deduction.isles.front();
        const Rooms rooms(position_, isle);
        std::vector<std::string> parts;
        bool alike = deduction.must.size() > 1;
        for (const SpanBound& must : deduction.must) {
            const int least = must.bridges - position_.Laid(must.span);
            parts.push_back("without " + Beside(isle, must.span) + ", the others can take only " +
                            NumberWord(rooms.need - least) + ", so at least " + More(must) + Go(least) + " there");
            alike = alike && least == deduction.must.front().bridges - position_.Laid(deduction.must.front().span);
        }
        if (!alike) return Needs(isle) + ". " + Capitalized(Listed(parts)) + "." + Limits(isle);
        const int least = deduction.must.front().bridges - position_.Laid(deduction.must.front().span);
        std::vector<std::string> neighbours;
        for (const SpanBound& must : deduction.must)
            neighbours.push_back(Beside(isle, must.span));
        return Needs(isle) + ". Leaving out " + Listed(neighbours, " or ") + ", it could get only " +
               NumberWord(rooms.need - least) + ", so at least " + BridgeCount(least) + Go(least) +
               " to each of them." + Limits(isle);
    }

    std::string NoMore(const Deduction& deduction) const {
        const int isle = deduction.isles.front();
        if (position_.Need(isle) < 1 && !position_.Blocked(deduction.cannot.front().span)) {
            std::vector<std::string> parts;
            for (const SpanBound& cannot : deduction.cannot)
                parts.push_back(Beside(isle, cannot.span));
            return Capitalized(Name(isle)) + " has all its bridges: no more go to " + Listed(parts) + ".";
        }
        std::vector<std::string> parts;
        for (const SpanBound& cannot : deduction.cannot)
            parts.push_back(Pair(cannot.span));
        return "The bridge between " + Name(isle) + " and " + Name(deduction.isles[1]) +
               " lies across: none can join " + Listed(parts) + ".";
    }

    std::string CutOff(const Deduction& deduction) const {
        constexpr std::size_t kMostToldWays = 2;
        const int isle = deduction.isles.front();
        const Ways ways(position_, Groups(position_), isle);
        std::string text;
        if (ways.completing.size() > kMostToldWays) {
            text = "Most ways to give " + Name(isle) + " its bridges would complete a group";
        } else {
            std::vector<std::string> told;
            for (const Way& way : ways.completing)
                told.push_back(WayText(isle, ways, way));
            text = "If " + Name(isle) + " gave " +
                   (told.size() == 2 ? "either " + told[0] + " or " + told[1] : told[0]) +
                   ", a group would be complete";
        }
        text += " and cut off from the other islands. So ";
        std::vector<std::string> results;
        for (const SpanBound& must : deduction.must) {
            const int n = must.bridges - position_.Laid(must.span);
            results.push_back("at least " + More(must) + Go(n) + " to " + Beside(isle, must.span));
        }
        for (const SpanBound& cannot : deduction.cannot) {
            const bool further = cannot.bridges == position_.Laid(cannot.span);
            results.push_back((!further             ? "no more than one bridge goes to "
                               : cannot.bridges > 0 ? "no further bridge goes to "
                                                    : "no bridge goes to ") +
                              Beside(isle, cannot.span));
        }
        return text + Listed(results) + ".";
    }

    std::string WayOut(const Deduction& deduction) const {
        const int isle = deduction.isles.front();
        const std::size_t others = deduction.isles.size() - 2;
        const std::string side = others == 0 ? Capitalized(Name(isle)) + " hangs"
                                             : Capitalized(Name(isle)) + " and " + IslandsBehind(others) + " hang";
        return side + " together with all the other islands only by way of " + Beside(isle, deduction.must[0].span) +
               ". So at least one bridge joins these two.";
    }

    std::string Suppose(const Deduction& deduction) const {
        const Supposition& supposition = *deduction.supposition;
        const int span = supposition.supposed.span;
        const int n = supposition.supposed.bridges;
        std::string text = "If ";
        if (supposition.isMost) {
            text += (n > 0 ? "no further bridge" : "no bridge") + std::string(" joined ") + Pair(span);
        } else {
            text += (position_.Laid(span) > 0 ? "a second bridge"
                     : n == 2                 ? "two bridges"
                                              : "a bridge") +
                    std::string(" joined ") + Pair(span);
        }
        const Contradiction& contradiction = supposition.contradiction;
        text += contradiction.reach > 1 ? ", one bridge would follow from another until " : ", ";
        text += Outcome(contradiction) + ". So ";
        if (supposition.isMost) return text + "at least " + (n > 0 ? "two bridges lie" : "one bridge lies") + " there.";
        return text + (n == 1 ? "no bridge lies" : "no more than one bridge lies") + " there.";
    }

    std::string Trial(const Deduction& deduction) const {
        const SpanBound& must = deduction.must.front();
        return "None of the other techniques helps here. Trying out what is left shows that " +
               BridgeCount(must.bridges) + (must.bridges == 1 ? " joins " : " join ") + Pair(must.span) + ".";
    }

 private:
    std::string Name(int isle) const { return IsleText(board_, isle); }

    /// The other end of a span as seen from `isle`: "the 4 on its right".
    std::string Beside(int isle, int span) const {
        const Isle& other = board_.IsleAt(board_.SpanAt(span).Other(isle));
        const CellPlace from = board_.IsleAt(isle).place;
        const std::string_view where = other.place.row < from.row   ? " above it"
                                       : other.place.row > from.row ? " below it"
                                       : other.place.col < from.col ? " on its left"
                                                                    : " on its right";
        return "the " + std::to_string(other.number) + std::string(where);
    }

    std::string Pair(int span) const {
        const int isle = board_.SpanAt(span).ends[0];
        return Name(isle) + " and " + Beside(isle, span);
    }

    /// "one bridge", or "one more bridge" where some lie.
    std::string More(const SpanBound& must) const {
        const int n = must.bridges - position_.Laid(must.span);
        if (position_.Laid(must.span) == 0) return BridgeCount(n);
        return NumberWord(n) + (n == 1 ? " more bridge" : " more bridges");
    }

    std::string Needs(int isle) const {
        const int need = position_.Need(isle);
        const bool isAll = need == board_.IsleAt(isle).number;
        return Capitalized(Name(isle)) + " needs " + NumberWord(need) +
               (isAll       ? need == 1 ? " bridge" : " bridges"
                : need == 1 ? " more bridge"
                            : " more bridges");
    }

    /// Why neighbours of an island take fewer than two bridges, where that cannot be seen from their numbers.
    std::string Limits(int isle) const {
        std::vector<std::string> finished;
        std::vector<std::string> across;
        std::vector<std::string> none;
        std::vector<std::string> one;
        for (const int span : board_.IsleAt(isle).spans) {
            const int other = board_.SpanAt(span).Other(isle);
            const std::string name = Beside(isle, span);
            if (position_.Laid(span) == kMostBridges || position_.Room(span) == kMostBridges) continue;
            if (position_.Blocked(span)) {
                across.push_back(name);
            } else if (position_.Need(other) < 1) {
                finished.push_back(name);
            } else if (position_.Room(span) == 0) {
                none.push_back(name);
            } else if (TakesOneForAReason(isle, span)) {
                one.push_back(name);
            }
        }
        std::vector<std::string> limits;
        if (!finished.empty())
            limits.push_back(Listed(finished) + (finished.size() == 1 ? " has all its bridges" : " have all theirs"));
        if (!across.empty()) limits.push_back("bridges lie across the way to " + Listed(across));
        if (!none.empty()) limits.push_back("no more can go to " + Listed(none));
        if (!one.empty()) limits.push_back("only one more can go to " + Listed(one));
        if (limits.empty()) return "";
        std::string text;
        for (const std::string& limit : limits)
            text += (text.empty() ? "" : "; ") + limit;
        return " (" + Capitalized(text) + ".)";
    }

    /// Whether a span has room for one bridge although the number of its other end would take two, and the island
    /// itself, too.
    bool TakesOneForAReason(int isle, int span) const {
        return position_.Need(isle) > 1 && position_.Laid(span) == 0 &&
               board_.IsleAt(board_.SpanAt(span).Other(isle)).number > 1;
    }

    /// "one bridge to the 1 above it and two bridges to the 2 on its left".
    std::string WayText(int isle, const Ways& ways, const Way& way) const {
        std::vector<std::string> parts;
        for (std::size_t at = 0; at < way.size(); ++at) {
            if (way[at] == 0) continue;
            parts.push_back(More({ways.rooms.spans[at], position_.Laid(ways.rooms.spans[at]) + way[at]}) + " to " +
                            Beside(isle, ways.rooms.spans[at]));
        }
        return Listed(parts);
    }

    static std::string IslandsBehind(std::size_t count) {
        return count == 1 ? "the island behind it"
                          : "the " + NumberWord(static_cast<int>(count)) + " islands behind it";
    }

    std::string Outcome(const Contradiction& contradiction) const {
        const std::string name = Name(contradiction.isle);
        switch (contradiction.kind) {
            case Contradiction::Kind::TooLittleRoom:
                return name + " could not get all its bridges";
            case Contradiction::Kind::ClosedOff:
                return "a group with " + name + " would be cut off from the other islands";
            case Contradiction::Kind::FallsApart:
                break;
        }
        return name + " could not be reached from all the other islands";
    }

    const Position& position_;
    const Archipelago& board_;
};

}  // namespace

std::string IsleText(const Archipelago& board, int isle) {
    const Isle& at = board.IsleAt(isle);
    return "the " + std::to_string(at.number) + " at row " + std::to_string(at.place.row) + ", column " +
           std::to_string(at.place.col);
}

std::string MistakeText(const Archipelago& board, const PlayedPair& wrong) {
    const auto name = [&](CellNumber id) {
        const auto found =
            std::find_if(board.isles.begin(), board.isles.end(), [id](const Isle& isle) { return isle.id == id; });
        return IsleText(board, static_cast<int>(found - board.isles.begin()));
    };
    const std::string pair = name(wrong.a) + " and " + name(wrong.b);
    if (wrong.noMore) return "More bridges join " + pair + " in the solution than lie there.";
    if (wrong.bridges == 1) return "No bridge joins " + pair + " in the solution.";
    return "The solution has fewer than two bridges between " + pair + ".";
}

std::string Sentence(const Position& position, const Deduction& deduction) {
    using Writing = std::string (Writer::*)(const Deduction&) const;
    constexpr std::array<Writing, kTechniqueCount> kWritings{&Writer::Last,   &Writer::Least,  &Writer::NoMore,
                                                             &Writer::CutOff, &Writer::WayOut, &Writer::Suppose,
                                                             &Writer::Trial};
    static_assert(kWritings.back() != nullptr, "every technique has its sentence");
    return (Writer(position).*kWritings[static_cast<std::size_t>(deduction.technique)])(deduction);
}

}  // namespace tidewalk
