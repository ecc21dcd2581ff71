// SPDX-License-Identifier: MIT
#include "model/plain_grid.h"

#include <gtest/gtest.h>

#include "support/board_text.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

std::string Lines(int count, const std::string& line) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line + "\r\n";
    return text;
}

/// The rows of grid `number` of a file that holds `bytes`; or in one row why there are none.
Rows Read(const std::string& bytes, int number = 1) {
    const TempFolder folder;
    Puzzle puzzle;
    const GridResult result = ReadGridFrom(folder.Write("grid.txt", bytes), number, puzzle);
    if (result != GridResult::Read) return {result == GridResult::NotFound ? "not found" : "failed"};
    EXPECT_EQ(puzzle.LinkCount(), 0);
    return PlainGrid(puzzle);
}

TEST(PlainGrid, HoldsNumbersAloneAndIsReadBack) {
    const Puzzle puzzle = ParsePuzzleRecord(kSmallPuzzle).value();
    const Rows rows{"..4...2", "1......", "..6...3", ".......", "...2...", "2.3....", ".1.4..2"};
    EXPECT_EQ(PlainGrid(puzzle), rows);
    EXPECT_EQ(MarkedGrid(puzzle).substr(0, 16), "#0707\r\n..4...2\r\n");
    EXPECT_EQ(Read(MarkedGrid(puzzle)), rows);
}

TEST(PlainGrid, IsAsWideAsItsFirstLineAndEndsWithAnEmptyOne) {
    EXPECT_EQ(Read("2.9\n1\n x34567\n\nnot read\n"), (Rows{"2.9", "1..", "..3"}));
    EXPECT_EQ(Read("\xEF\xBB\xBF\xC3\xBC.2\r\n3\xF0\x9F\x8C\x8A"
                   "4\r\n"),
              (Rows{"..2", "3.4"}))
        << "a byte order mark is no column, and a column is one character whatever its bytes";
    EXPECT_EQ(Read(Lines(25, std::string(25, '8'))).size(), 25U);
    EXPECT_EQ(Read("1.1", 2), Rows{"not found"}) << "a file of one grid";
    EXPECT_EQ(Read("1.1", 0), Rows{"not found"});
}

TEST(PlainGrid, SeveralAreMarkedWithTheirSizes) {
    const std::string grids = "#0103\r\n1.1\r\n\r\n\r\n#0201 rest\r\n4\r\n\r\n#2525\r\n" + Lines(25, "8");
    EXPECT_EQ(Read(grids, 1), (Rows{"1.1"}));
    EXPECT_EQ(Read(grids, 2), (Rows{"4", "."}));
    EXPECT_EQ(Read(grids, 3).size(), 25U);
    EXPECT_EQ(Read(grids, 4), Rows{"not found"});
    EXPECT_EQ(Read("#01019\n2\n"), Rows{"2"}) << "two digits a side";
    EXPECT_EQ(Read("#011\n2\n"), Rows{"2"}) << "or one at the end";
    EXPECT_EQ(Read("#0101\n1\n1\n", 2), Rows{"failed"}) << "no mark behind the first grid";
}

TEST(PlainGrid, IsRefusedWhenItFitsNoBoardOrIsCutShort) {
    for (const std::string& bytes :
         {Lines(26, "1.1"), std::string(26, '1'), Lines(3, std::string(26, '1')), "#2601\r\n" + Lines(26, "1"),
          std::string("#0126\r\n1\r\n"), std::string("#0100\n1\n"), std::string("#00"), std::string("#xxyy\n"),
          std::string("#0302\n11\n22\n")})
        EXPECT_EQ(Read(bytes), Rows{"failed"}) << bytes;
    EXPECT_EQ(Read(""), Rows{"not found"});
    EXPECT_EQ(Read("\n1\n"), Rows{"not found"});
    Puzzle puzzle;
    EXPECT_EQ(ReadGridFrom("missing", 1, puzzle), GridResult::Failed);
}

}  // namespace
}  // namespace tidewalk::test
