// SPDX-License-Identifier: MIT
// The forms of grids, and what is none of the newer ones.
#include "model/grid_reader.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "model/grid_tally.h"
#include "model/numbers.h"
#include "model/plain_grid.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

using Lines = std::vector<std::string>;

std::string Joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

/// The grids of a text: "line:row/row/", with "?" before what is no puzzle.
Lines Grids(const std::string& text, GridTally* tally = nullptr) {
    std::stringbuf source(text);
    GridReader reader(source, "text");
    Lines found;
    for (FoundGrid grid; reader.Next(grid);) {
        std::string all = (grid.isPuzzle ? "" : "?") + std::to_string(grid.line) + ":";
        for (const std::string& row : PlainGrid(grid.puzzle))
            all += row + "/";
        if (tally != nullptr) tally->Add(grid);
        found.push_back(all);
    }
    return found;
}

TEST(GridReader, TellsTheFormsByTheirLooks) {
    const Lines grid{"1:2.3/.../1../..2/"};
    EXPECT_EQ(Grids("2 . 3\r\n. . . \r\n1\r\n. . 2\r\n"), grid);
    for (const char* const size : {"4x3", "4 3", " 3 * 4 ", "3,4", "04\xC3\x97 3"}) {
        EXPECT_EQ(Grids(std::string(size) + "\n2.3\n...\n1..\n..2\n"), grid) << size;
        EXPECT_EQ(Grids(std::string(size) + "\r\n2 . 3\r\n. . . \r\n1 . .\r\n. . 2"), grid) << size;
    }
    EXPECT_EQ(Grids("3\n2 3\n   \n1 2\n"), Lines{"1:2.3/.../1.2/"}) << "the rows are wider than the line";
    EXPECT_EQ(Grids("2x3\n2 3\n   \n"), Lines{"1:2.3/.../"}) << "nobody writes water like that";
}

TEST(GridReader, ReadsAsEverWhatIsNoForm) {
    EXPECT_EQ(Grids("2 3\n\x20 \x20\n1 2"), Lines{"1:2.3/.../1.2/"}) << "blanks are water";
    EXPECT_EQ(Grids("2 3\n. .\n1 ."), Lines{"1:23/../1./"}) << "spaced, and no grid of 2x3";
    EXPECT_EQ(Grids("1 1\n2 2"), Lines{"1:1.1/2.2/"}) << "no point, so not spaced";
    EXPECT_EQ(Grids("1 .\n2..\n"), Lines{"1:1../2../"}) << "not every even column is blank";
    EXPECT_EQ(Grids("1\n."), Lines{"1:1/./"});
    EXPECT_EQ(Grids("3x3\n2.2\n...\n"), Lines{"?1:3.3/2.2/.../"}) << "a row is missing";
    EXPECT_EQ(Grids("3x3\n2.2\n...\n2.2\n1.1"), Lines{"?1:3.3/2.2/.../2.2/1.1/"}) << "there is one too many";
    EXPECT_EQ(Grids("\n1.1\n"), Lines());
}

TEST(GridReader, FindsManyAndWhatIsNoPuzzleAmongThem) {
    const std::string ring = "2.2\n...\n2.2\n";
    const Lines many = Grids(ring + "3x3\n" + ring + "\n\n  \n\n" + "2 . 2\n. . .\n2 . 2\n3\n" + ring + "3x3\n" + ring);
    EXPECT_EQ(many,
              (Lines{"1:2.2/.../2.2/", "4:2.2/.../2.2/", "12:2.2/.../2.2/", "15:2.2/.../2.2/", "19:2.2/.../2.2/"}));
    const std::string wide = std::string(26, '1') + "\n1\n";
    GridTally tally;
    const std::string bad = "3x3\n2.2\n2.2\n";
    EXPECT_EQ(Grids("3x3\n" + ring + bad + "3x3\n" + ring + "\n" + wide + "2x3\n1.1\n...\n\nNumber 7\n\n1.9\n", &tally),
              (Lines{"1:2.2/.../2.2/", "?5:3.3/2.2/2.2/", "8:2.2/.../2.2/", "?13:", "15:1.1/.../", "?19:.......7/",
                     "?21:1.9/"}));
    EXPECT_EQ(tally.Words(), "7 grids of 3x3 and 2x3, 4 not puzzles: lines 5, 13, 19 and 21");
}

TEST(GridReader, ReadsNoMoreOfAGridThatFitsNoBoardUntilItIsAskedForTheNext) {
    const TempFolder folder;
    int asked = 0;
    const auto mayGoOn = [&asked] { return ++asked < 1000; };
    GridReader reader(folder.Write("long.txt", Joined(Lines(2000, "1"))), GridReader::kWithoutEnd, mayGoOn);
    FoundGrid grid;
    EXPECT_TRUE(reader.Next(grid) && !grid.fits);
    EXPECT_LT(asked, 100);
    EXPECT_FALSE(reader.Next(grid));
    EXPECT_EQ(asked, 1000) << "and then it can be stopped";
}

/// The first grid as grids were read before there were further forms; nothing when there is none.
Lines ReadAsEver(const Lines& lines) {
    Lines rows;
    int cols = 0;
    if (lines.empty() || lines[0].empty()) return {};
    if (lines[0][0] == '#') {
        const int height = lines[0].size() < 4 ? 0 : RoundedVal(lines[0].substr(1, 2));
        cols = lines[0].size() < 4 ? 0 : RoundedVal(lines[0].substr(3, 2));
        if (height < 1 || height > 25 || height >= static_cast<int>(lines.size())) return {};
        rows.assign(lines.begin() + 1, lines.begin() + 1 + height);
    } else {
        cols = static_cast<int>(lines[0].size());
        rows.assign(lines.begin(), std::find(lines.begin(), lines.end(), ""));
    }
    if (cols < 1 || cols > 25 || rows.size() > 25) return {};
    for (std::string& row : rows) {
        row.resize(static_cast<std::size_t>(cols), '.');
        for (char& cell : row)
            cell = cell >= '1' && cell <= '9' ? cell : '.';
    }
    return rows;
}

/// What a text has to look like for another reading than ever.
bool MayBeAForm(const Lines& lines) {
    const Lines block(lines.begin(), std::find(lines.begin(), lines.end(), ""));
    bool form = Joined(block).find('.') != std::string::npos;
    for (const std::string& row : block) {
        for (std::size_t i = 1; i < row.size(); i += 2)
            form = form && row[i] == ' ';
    }
    for (std::size_t at = 0; at < block.size() && !form; ++at) {
        int sides[2] = {0, 0};
        char between = ' ';
        std::istringstream words(block[at]);
        if (!(words >> sides[0])) continue;
        if (words >> std::ws && words.peek() == 'x') words >> between;
        if (!(words >> sides[1])) sides[1] = sides[0];
        const auto fits = [&](int rows, int cols) {
            bool all = static_cast<int>(block.size() - at) > rows;
            for (int row = 1; all && row <= rows; ++row) {
                const int columns = static_cast<int>(block[at + static_cast<std::size_t>(row)].size());
                all = columns == cols || (columns + 1) / 2 == cols;
            }
            return all;
        };
        form = fits(sides[0], sides[1]) || fits(sides[1], sides[0]);
    }
    return form;
}

TEST(GridReader, ReadsEveryOtherTextAsEver) {
    std::mt19937 random(16);
    const auto upTo = [&random](std::size_t most) { return random() % (most + 1); };
    int same = 0;
    int other = 0;
    for (int round = 0; round < 20000; ++round) {
        static const Lines starts{"", "", "3", "2 3", "3 2 ", "2x3", "#0203", "#0302 1", "1 2 ."};
        static const Lines alphabets{"12. ", "3 .", "19.x0# ", ".2"};
        const std::string& alphabet = alphabets[upTo(3)];
        Lines lines;
        if (const std::string& start = starts[upTo(8)]; !start.empty()) lines.push_back(start);
        const std::size_t width = upTo(5);
        for (std::size_t row = upTo(round % 50 == 0 ? 30 : 6); row > 0; --row) {
            lines.emplace_back();
            for (std::size_t col = upTo(7) == 0 ? upTo(27) : width; col > 0; --col)
                lines.back() +=
                    lines.back().size() % 2 == 1 && round % 3 == 0 ? ' ' : alphabet[upTo(alphabet.size() - 1)];
        }
        const Lines ever = ReadAsEver(lines);
        if (ever.empty()) continue;
        std::stringbuf source(Joined(lines));
        FoundGrid grid;
        const bool read = GridReader(source, "text").Next(grid) && grid.fits;
        const bool isSame = read && PlainGrid(grid.puzzle) == ever;
        EXPECT_TRUE(isSame || (read && MayBeAForm(lines))) << Joined(lines);
        ++(isSame ? same : other);
    }
    EXPECT_GT(same, 6000);
    EXPECT_GT(other, 150);
}

}  // namespace
}  // namespace tidewalk::test
