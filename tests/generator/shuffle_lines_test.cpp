// SPDX-License-Identifier: MIT
#include "generator/shuffle_lines.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/file_error.h"
#include "model/line_reader.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

bool GoOn(const ShuffleCounts& /*counts*/) {
    return true;
}

std::string Numbered(int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += std::to_string(i) + "\n";
    return bytes;
}

TEST(ShuffleLines, KeepsEveryDistinctLineOnce) {
    const TempFolder folder;
    const std::string odd("b\0\xFFy", 4);
    const std::string spacious(100000, ' ');
    const std::string mark("\xEF\xBB\xBF");
    folder.Write("in", mark + "a\r\n" + odd + "\n\n\r\na\n" + spacious + "x\nA\r\n" + odd + "\r\nlast\rpart");
    RandomSource random(1);
    ShuffleCounts counts;
    EXPECT_TRUE(ShuffleLines("in", "out", random, counts, GoOn));
    EXPECT_TRUE(counts.lines == 9 && counts.Kept() == 6 && counts.written == 6);
    std::vector<std::string> lines;
    std::size_t length = 0;
    LineReader reader("out");
    for (std::string line; reader.Next(line); length += line.size() + 2)
        lines.push_back(line);
    EXPECT_EQ(reader.Position(), length) << "every line ends with CR LF";
    std::sort(lines.begin(), lines.end());
    std::vector<std::string> expected{"", "A", "a", odd, spacious + "x", "last\rpart"};
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(lines, expected);
}

TEST(ShuffleLines, KeysAreDrawnLineByLineAndEqualOnesFallToByteOrder) {
    const TempFolder folder;
    RandomSource keys(7);
    std::vector<std::pair<int, std::string>> lines;
    for (int i = 0; i < 5000; ++i)
        lines.emplace_back(keys.Draw(99997), std::to_string(i));
    std::sort(lines.begin(), lines.end());
    std::string expected;
    for (const auto& [key, line] : lines)
        expected += line + "\r\n";
    RandomSource random(7);
    ShuffleCounts counts;
    EXPECT_TRUE(ShuffleLines(folder.Write("in", Numbered(5000)), "out", random, counts, GoOn));
    EXPECT_EQ(folder.Read("out"), expected);
}

TEST(ShuffleLines, StopsWhereItIsToldToAndKeepsAnOlderOutput) {
    const TempFolder folder;
    folder.Write("in", Numbered(50000));
    folder.Write("out", "old");
    int looks = 0;
    const auto shuffle = [&](int stopAt) {
        looks = 0;
        RandomSource random(1);
        ShuffleCounts counts;
        return ShuffleLines("in", "out", random, counts, [&](const ShuffleCounts&) { return ++looks != stopAt; });
    };
    for (const int moment : {1, 2, 195, 196, 390}) {
        EXPECT_FALSE(shuffle(moment));
        EXPECT_EQ(looks, moment);
        EXPECT_EQ(folder.Read("out"), "old");
        EXPECT_EQ(folder.Entries(), 2) << "nothing is left beside the output";
    }
    EXPECT_TRUE(shuffle(0));
    EXPECT_EQ(looks, 390) << "for every 256 lines that are read or written";
}

TEST(ShuffleLines, SaysWhatItCannotReadOrWrite) {
    const TempFolder folder;
    RandomSource random(1);
    ShuffleCounts counts;
    EXPECT_THROW(ShuffleLines("missing", "out", random, counts, GoOn), FileError);
    EXPECT_THROW(ShuffleLines(folder.Path(""), "out", random, counts, GoOn), FileError);
    EXPECT_THROW(ShuffleLines(folder.Write("in", "a"), "no/folder", random, counts, GoOn), FileError);
    EXPECT_EQ(folder.Entries(), 1);
    EXPECT_EQ(ShuffledName("/a.b/some.puzzles.txt"), "/a.b/some.puzzles-noduprandom.txt");
    EXPECT_EQ(ShuffledName("/a.b/c"), "/a.b/c-noduprandom.txt");
}

}  // namespace
}  // namespace tidewalk::test
