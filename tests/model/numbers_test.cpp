// SPDX-License-Identifier: MIT
// Numbers, the small types that stand for texts, paths and random draws.
#include "model/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/cell_words.h"
#include "model/characters.h"
#include "model/link.h"
#include "model/paths.h"
#include "model/random_source.h"
#include "support/temp_folder.h"

namespace tidewalk::test {
namespace {

TEST(Numbers, BecomeText) {
    EXPECT_EQ(Str(12) + Str(-3) + Str(0), " 12-3 0");
    EXPECT_EQ(NumText(12) + NumText(-3), "12-3");
    EXPECT_EQ(Format(7, "000") + Format(1234, "000") + Format(-7, "00"), "0071234-07");
    EXPECT_EQ(LowerCase("AZ[z 9"), "az[z 9");
    EXPECT_EQ(Trim(" \t a b\t "), "a b");
}

TEST(Numbers, AreReadAsFarAsTheyGo) {
    const std::pair<const char*, double> cases[] = {
        {" 1 2abc", 12}, {"-3.5x", -3.5}, {"+4", 4},   {"1e2", 100}, {"2e", 2},    {"1d-1x", 0.1}, {"1 E + 1", 10},
        {".5", 0.5},     {"1.5.5", 1.5},  {"- 7", -7}, {"\t8", 8},   {"12/3", 12}, {"1:2", 1},     {"2e+", 2}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Val(text), value) << text;
    for (const char* none : {"", "x5", "-", ".", "e5", ":", "/"})
        EXPECT_EQ(Val(none), 0) << none;
    EXPECT_EQ(RoundedVal("1e999"), std::numeric_limits<int>::max());
    EXPECT_EQ(RoundedVal("-1e999"), std::numeric_limits<int>::min());
    EXPECT_EQ(Val("1e-999"), 0);
}

TEST(Numbers, RoundHalvesToEven) {
    const std::pair<double, int> cases[] = {{2.5, 2}, {3.5, 4}, {-2.5, -2}, {2.51, 3}, {-99999999999., -2147483648}};
    for (const auto& [value, rounded] : cases)
        EXPECT_EQ(RoundHalfEven(value), rounded);
    EXPECT_EQ(RoundedVal("62.5"), 62);
}

TEST(Characters, AreTakenWholeAndBrokenOnesByteByByte) {
    const std::pair<const char*, int> cases[] = {
        {"ab", 2},    {"\xC3\xBCx", 2}, {"\xE2\x82\xAC", 1}, {"\xF0\x9F\x8C\x8A.", 2}, {"\xC3", 1},
        {"\xC3x", 2}, {"\xE2\x82", 2},  {"\x80\x80", 2},     {"\xF8\x80", 2},          {"\xF7\xBF\xBF\xBF", 1}};
    for (const auto& [text, count] : cases)
        EXPECT_EQ(CharacterCount(text), count) << text;
    std::string_view text = "\xE2\x82\xAC.";
    EXPECT_EQ(TakeCharacter(text), "\xE2\x82\xAC");
    EXPECT_EQ(text, ".");
}

TEST(Words, PrintAndParseTheirTextForms) {
    NeighbourList open;
    for (const CellNumber id : {12, 7, 625})
        open.Append(id);
    open.Remove(7);
    EXPECT_EQ(Text(open), "012 625 ");
    EXPECT_EQ(ParseNeighbourList("012 625 "), open);
    for (const char* bad : {"012", "12  ", "012 045 001 002 003 ", "abc ", "626 ", "000 ", "012x"})
        EXPECT_FALSE(ParseNeighbourList(bad)) << bad;

    const auto joined = ParseJoinedList(" 12, 1,");
    EXPECT_EQ(Text(joined.value()), " 12, 1,");
    EXPECT_NE(ParseJoinedList(" 1, 12,"), joined);
    for (const char* bad : {"12,", " 12", " 626,", " 0,"})
        EXPECT_FALSE(ParseJoinedList(bad)) << bad;

    EXPECT_EQ(std::string(Text(Cross::H)).append(Text(Cross::V)).append(Text(Cross::X)).append(Text(Cross::Free)),
              "hvX");
    EXPECT_EQ(Text(Link{12, 15, 1}), "0120151");
    EXPECT_EQ(ParseLink("0120151"), (Link{12, 15, 1}));
    for (const char* bad : {"0120153", "012015", "0 20151", "6260011", "0016261", "00100 1"})
        EXPECT_FALSE(ParseLink(bad)) << bad;
}

TEST(Paths, GetAnExtensionWhereTheFileNameHasNone) {
    const TempFolder folder;
    std::string name = "/a.d/b";
    AddExtension(name, "txt");
    AddExtension(name, "grd");
    EXPECT_EQ(name, "/a.d/b.txt");
    EXPECT_EQ(FileNameOf("/a/b.tdw") + FileNameOf("c"), "b.tdwc");
    EXPECT_EQ(WithSeparator("/") + WithSeparator("/a") + WithSeparator(""), "//a//");
    EXPECT_EQ(FileLength(folder.Write("three", "abc")), 3U);
    EXPECT_EQ(FileLength("missing"), 0U);
}

TEST(RandomSource, DrawsDifferWithinATickAndRepeatWithASeed) {
    int readings = 0;
    RandomSource random([&] { return ++readings, 5.0; });
    std::vector<int> counts(10);
    for (int i = 0; i < 10000; ++i)
        ++counts[static_cast<std::size_t>(random.Draw(10))];
    for (const int count : counts)
        EXPECT_NEAR(count, 1000, 150);
    EXPECT_EQ(readings, 1 + 10000 / 16) << "the clock is slow, and read for every sixteenth draw";

    RandomSource later([] { return 6.0; });
    RandomSource earlier([] { return 5.0; });
    EXPECT_NE(later.Draw(1000000), earlier.Draw(1000000));

    // The same on every machine and with every standard library.
    random.UseSeed(1);
    for (const int drawn : {341, 301, 642})
        EXPECT_EQ(random.Draw(1000), drawn);
}

}  // namespace
}  // namespace tidewalk::test
