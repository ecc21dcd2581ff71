// SPDX-License-Identifier: MIT
#include "support/layout_checker.h"

#include <numeric>
#include <sstream>
#include <vector>

namespace tidewalk::test {

namespace {

using Board = std::vector<std::string>;

bool IsIsland(char c) {
    return c >= '1' && c <= '8';
}

/// Takes the record apart; returns what is wrong with its form.
std::string ReadBoard(const std::string& record, int rows, int cols, Board& board) {
    std::istringstream in(record);
    std::string header;
    std::string kind;
    std::getline(in, header, ';');
    std::getline(in, kind, ';');
    std::ostringstream size;
    size << ' ' << rows << ", " << cols << ", ";
    if (header.compare(0, size.str().size(), size.str()) != 0 || kind != "D") return "header " + header + ";" + kind;
    std::string row;
    while (std::getline(in, row, ','))
        board.push_back(row);
    if (static_cast<int>(board.size()) != rows || record.back() != ',') return "number of rows";
    for (const std::string& line : board) {
        if (static_cast<int>(line.size()) != cols) return "length of a row";
        if (line.find_first_not_of(".12345678-=|I") != std::string::npos) return "character in " + line;
    }
    return "";
}

/// The board with its rows and columns exchanged.
Board Turned(const Board& board) {
    Board turned(board[0].size(), std::string(board.size(), '.'));
    for (std::size_t r = 0; r < board.size(); ++r) {
        for (std::size_t c = 0; c < board[r].size(); ++c)
            turned[c][r] = board[r][c];
    }
    return turned;
}

bool IslandsTouchInRows(const Board& board) {
    for (const std::string& row : board) {
        for (std::size_t c = 1; c < row.size(); ++c) {
            if (IsIsland(row[c - 1]) && IsIsland(row[c])) return true;
        }
    }
    return false;
}

/// Follows every run of `single` or `paired` along the rows. Adds what it finds to `ends`, by cell, and joins groups.
/// `place` turns a row and column of this board into a number of the cell.
template <class Place>
std::string FollowRows(const Board& board, char single, char paired, std::vector<int>& ends, std::vector<int>& group,
                       Place place) {
    for (std::size_t r = 0; r < board.size(); ++r) {
        const std::string& row = board[r];
        for (std::size_t c = 0; c < row.size(); ++c) {
            if (row[c] != single && row[c] != paired) continue;
            const char stroke = row[c];
            const std::size_t start = c;
            while (c < row.size() && row[c] == stroke)
                ++c;
            if (start == 0 || c == row.size() || !IsIsland(row[start - 1]) || !IsIsland(row[c])) {
                return "a bridge that ends in the water";
            }
            const int a = place(r, start - 1);
            const int b = place(r, c);
            const int bridges = stroke == single ? 1 : 2;
            ends[a] += bridges;
            ends[b] += bridges;
            const int from = group[a];
            const int to = group[b];
            for (int& member : group) {
                if (member == from) member = to;
            }
        }
    }
    return "";
}

}  // namespace

std::string FaultOfLayout(const std::string& record, int rows, int cols) {
    Board board;
    if (std::string fault = ReadBoard(record, rows, cols, board); !fault.empty()) return fault;
    if (IslandsTouchInRows(board) || IslandsTouchInRows(Turned(board))) return "islands that touch";
    return "";
}

std::string FaultOfRecord(const std::string& record, int rows, int cols) {
    if (std::string fault = FaultOfLayout(record, rows, cols); !fault.empty()) return fault;
    Board board;
    ReadBoard(record, rows, cols, board);
    std::vector<int> ends(board.size() * board[0].size());
    std::vector<int> group(ends.size());
    std::iota(group.begin(), group.end(), 0);
    const auto cell = [&](std::size_t r, std::size_t c) { return static_cast<int>(r * board[0].size() + c); };
    const auto turnedCell = [&](std::size_t c, std::size_t r) { return cell(r, c); };
    if (std::string fault = FollowRows(board, '-', '=', ends, group, cell); !fault.empty()) return fault;
    if (std::string fault = FollowRows(Turned(board), '|', 'I', ends, group, turnedCell); !fault.empty()) return fault;
    int islands = 0;
    int firstGroup = -1;
    for (std::size_t r = 0; r < board.size(); ++r) {
        for (std::size_t c = 0; c < board[r].size(); ++c) {
            if (!IsIsland(board[r][c])) continue;
            ++islands;
            if (ends[cell(r, c)] != board[r][c] - '0') return "an island with other bridges than its number";
            if (firstGroup < 0) firstGroup = group[cell(r, c)];
            if (group[cell(r, c)] != firstGroup) return "islands that do not hang together";
        }
    }
    return islands >= 2 ? "" : "no islands";
}

}  // namespace tidewalk::test
