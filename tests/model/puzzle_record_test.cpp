// SPDX-License-Identifier: MIT
// Puzzles as text: records and plain grids.
#include <gtest/gtest.h>

#include "model/plain_grid.h"
#include "model/puzzle_record.h"
#include "support/board_text.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

std::vector<std::string> LinkTexts(const Puzzle& puzzle) {
    std::vector<std::string> texts;
    for (const Link& link : puzzle.LinkList)
        texts.push_back(Text(link));
    return texts;
}

TEST(PuzzleRecord, GivesNumbersAndBridges) {
    const auto puzzle =
        ParsePuzzleRecord(" 7,9 , 0;;1-2..1=2.3,|.I......,1.4====.-4,I...-....,2........,.........,.........,");
    ASSERT_TRUE(puzzle);
    EXPECT_EQ(puzzle->Size(), (BoardSize{7, 9}));
    EXPECT_EQ(puzzle->IslandGrid(1, 2), 0) << "a bridge is water";
    EXPECT_EQ(puzzle->NumberTotal(), 13) << "a character beyond the last column does not count";
    // Row by row the single and then the double bridges, then the columns' single bridges, then their double ones. A
    // run that ends on water is recorded, one that no island begins is not.
    EXPECT_EQ(LinkTexts(*puzzle),
              (std::vector<std::string>{"0010031", "0060080", "0210260", "0010191", "0190370", "0030210"}));
}

TEST(PuzzleRecord, ARunToTheEdgeIsNoBridge) {
    EXPECT_EQ(PuzzleFrom({"1--", "I..", "I.."}).LinkCount(), 0);
    EXPECT_EQ(PuzzleFrom({"..1", "..|", "..1"}).LinkCount(), 1) << "the last column, too";
    EXPECT_EQ(PuzzleFrom({"1-=1", "1..."}).LinkCount(), 1) << "another stroke ends the run";
}

TEST(PuzzleRecord, AColumnIsACharacterWhateverItsBytes) {
    const auto puzzle = ParsePuzzleRecord("6,4,0;D;\xE2\x82\xAC\xC3\xBC.4,...|,1-\xF0\x9F\x8C\x8A.,...1,...|,\xFF..2,");
    ASSERT_TRUE(puzzle);
    EXPECT_EQ(puzzle->IslandGrid(1, 4) * 10 + puzzle->IslandGrid(6, 4), 42);
    EXPECT_EQ(LinkTexts(*puzzle), (std::vector<std::string>{"0090111", "0040121", "0160241"}));
}

TEST(PuzzleRecord, IsReadLeniently) {
    const auto puzzle = ParsePuzzleRecord(" 7 ,+7.5, x;;1,1,1,1,1,1,1");
    ASSERT_TRUE(puzzle) << "blanks, signs, fractions and short rows are fine";
    EXPECT_EQ(puzzle->Cols, 8) << "halves go to even";
    EXPECT_EQ(puzzle->IslandCount(), 7);
    EXPECT_TRUE(ParsePuzzleRecord("1,25,0,9;D;;rest;"));
    EXPECT_TRUE(ParsePuzzleRecord("25,1,;\xC3\xBC\t;,,,,,,,,,,,,,,,,,,,,,,,,"));
}

TEST(PuzzleRecord, IsRefusedWhenItIsNone) {
    for (const char* record : {"", " 7, 7;D;..,", " 7, 7, 0;D", "26, 7, 0;D;,", " 0, 7, 0;D;,", " 7, 0, 0;D;,",
                               "7,26,0;D;,,,,,,,", " -7, 7, 0;D;,", "1e99, 7, 0;D;,"}) {
        Puzzle puzzle({3, 3});
        EXPECT_EQ(ReadPuzzleRecord(record, puzzle), RecordRead::Nothing) << record;
        EXPECT_EQ(puzzle.CellCount(), 0) << record;
    }
    Puzzle puzzle;
    EXPECT_EQ(ReadPuzzleRecord(" 7, 7, 0;D;1-1,1,1,1,1,1", puzzle), RecordRead::Rows);
    EXPECT_EQ(puzzle.IslandCount() * 10 + puzzle.LinkCount(), 70) << "the rows before the one that is missing";
}

TEST(PuzzleRecord, HasNoBytesThatNoTextHasAndIsNotEndless) {
    const std::string record = Record({"1-1", "\t\xC3\xBC", ""});
    EXPECT_TRUE(MayBeRecord(record));
    EXPECT_FALSE(ParsePuzzleRecord(record + '\0'));
    EXPECT_FALSE(ParsePuzzleRecord(record + '\x7F'));
    EXPECT_TRUE(MayBeRecord(record + std::string(kLongestRecord - record.size(), ' ')));
    EXPECT_FALSE(MayBeRecord(std::string(kLongestRecord + 1, ' ')));
}

TEST(PuzzleRecord, ComesBackAsItWasWritten) {
    const Puzzle puzzle = ParsePuzzleRecord(kSmallPuzzle).value();
    // The header counts the links that were found, whatever the old header told.
    EXPECT_EQ(PuzzleRecord(puzzle), " 7, 7, 10;D;..4===2,1.I....,|.6===3,|.I...|,|.I2..|,2-3I..|,.1-4--2,");
    EXPECT_EQ(ParsePuzzleRecord(PuzzleRecord(puzzle)), puzzle);
}

TEST(PuzzleRecord, HasNoRoomForABridgeBetweenIslandsThatTouch) {
    const auto holds = [](const Link& link) {
        Puzzle puzzle({2, 3});
        puzzle.LinkList = {{1, 3, 1}, link};
        return RecordHoldsBridges(puzzle);
    };
    EXPECT_TRUE(holds({4, 1, 2}) && holds({4, 6, 0})) << "a link without a bridge needs none";
    EXPECT_FALSE(holds({2, 1, 1}) || holds({1, 4, 0}));
}

TEST(PuzzleRecord, DrawsEachLinkAsItsStateAndOrderTell) {
    Puzzle puzzle = PuzzleFrom({"3.2", "...", "3.2"});
    for (const char* link : {"0030011", "0090070", "0070010", "0030092", "0010091", "0010011"})
        puzzle.LinkList.push_back(ParseLink(link).value());
    EXPECT_EQ(PuzzleRecord(puzzle), " 3, 3, 6;D;3 -2,I..,3=2,") << "no slanting ones";
    puzzle = PuzzleFrom({"..1.", "1..1", "..1."});
    puzzle.LinkList = {MakeLink(3, 11, 1), MakeLink(8, 5, 0)};
    EXPECT_EQ(PuzzleRecord(puzzle), " 3, 4, 2;D;..1.,1=|1,..1.,") << "the first bridge over a cell stays";
}

std::string Lines(int count, const std::string& line) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line + "\r\n";
    return text;
}

/// The rows of grid `number` of a file that holds `bytes`; or in one row why there are none.
Rows Read(const std::string& bytes, int number = 1) {
    const TempFolder folder;
    FoundGrid grid;
    const GridResult result = ReadGridFrom(folder.Write("grid.txt", bytes), number, grid);
    if (result != GridResult::Read) return {result == GridResult::NotFound ? "not found" : "failed"};
    EXPECT_EQ(grid.puzzle.LinkCount(), 0);
    return PlainGrid(grid.puzzle);
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
    EXPECT_EQ(Read("\n1\n"), Rows{"not found"});
    FoundGrid grid;
    EXPECT_EQ(ReadGridFrom("missing", 1, grid), GridResult::Failed);
}

}  // namespace
}  // namespace tidewalk::test
