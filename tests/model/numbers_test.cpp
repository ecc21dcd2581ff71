// SPDX-License-Identifier: MIT
#include "model/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/board_state.h"
#include "model/cell_words.h"
#include "model/link_table.h"
#include "model/random_source.h"
#include "support/doubles.h"

namespace tidewalk::test {
namespace {

TEST(Numbers, BecomeText) {
    EXPECT_EQ(Str(12) + Str(-3) + Str(0), " 12-3 0");
    EXPECT_EQ(NumText(12) + NumText(-3), "12-3");
    EXPECT_EQ(Format(7, "000") + Format(1234, "000") + Format(-7, "00"), "0071234-07");
}

TEST(Numbers, AreReadAsFarAsTheyGo) {
    EXPECT_EQ(Val(" 1 2abc"), 12);
    EXPECT_EQ(Val("-3.5x"), -3.5);
    EXPECT_EQ(Val("1e2"), 100);
    EXPECT_EQ(Val("2e"), 2);
    EXPECT_EQ(Val(".5"), 0.5);
    for (const char* none : {"", " ", "x5", "-", ".", "e5", "|", "="})
        EXPECT_EQ(Val(none), 0) << none;
    EXPECT_EQ(RoundedVal("1e999"), std::numeric_limits<int>::max());
    EXPECT_EQ(RoundedVal("-99999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(RoundedVal("1e-999"), 0);
    EXPECT_EQ(RoundedVal(std::string(400, '9')), std::numeric_limits<int>::max());
}

TEST(Numbers, RoundHalvesToEven) {
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(3.5), 4);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
    EXPECT_EQ(RoundHalfEven(62.5), 62);
}

TEST(Words, PrintAndParseTheirTextForms) {
    NeighbourList open;
    open.Append(12);
    open.Append(45);
    EXPECT_EQ(Text(open), "012 045 ");
    EXPECT_EQ(ParseNeighbourList("012 045 "), open);
    for (const char* bad : {"012", "12  ", "012 045 001 002 003 ", "abc ", "626 "})
        EXPECT_FALSE(ParseNeighbourList(bad)) << bad;

    JoinedList joined;
    joined.Append(12);
    joined.Append(7);
    EXPECT_EQ(Text(joined), " 12, 7,");
    EXPECT_EQ(ParseJoinedList(" 12, 7,"), joined);
    EXPECT_FALSE(ParseJoinedList("12,"));
    EXPECT_FALSE(ParseJoinedList(" 12"));

    EXPECT_EQ(Text(Link{12, 15, 1}), "0120151");
    EXPECT_EQ(ParseLink("0120151"), (Link{12, 15, 1}));
    for (const char* bad : {"0120153", "012015", "0 20151", "6260011"})
        EXPECT_FALSE(ParseLink(bad)) << bad;

    EXPECT_EQ(Text(UndoRecord{12, 15, 1}), " 12, 15, 1");
    EXPECT_EQ(ParseUndoRecord(" 12, 15, 1"), (UndoRecord{12, 15, 1}));
    for (const char* bad : {" 12, 15", "12, 15, 1", " 12, 15, 3", " 12, 15, 1, 1"})
        EXPECT_FALSE(ParseUndoRecord(bad)) << bad;
}

TEST(LinkTable, FindsTheFirstEntryOfAPairInEitherOrder) {
    LinkTable links;
    links.Clear(9);
    links.Append(1, 4, 2);
    links.Append(1, 10, 1);
    links.Append(4, 1, 0);
    EXPECT_EQ(links.Find(1, 4), 1);
    EXPECT_EQ(links.Find(4, 1), 1);
    EXPECT_EQ(links.Find(10, 1), 2);
    EXPECT_EQ(links.Find(1, 5), 0);
    EXPECT_EQ(links.Find(1, 19), 0);
    for (int i = 0; i < 3000; ++i)
        links.Append(20, 21, 2);
    EXPECT_EQ(links.Count(), LinkTable::kCapacity);
}

TEST(RandomSource, DrawsDifferWithinATickAndRepeatWithASeed) {
    ClockDouble clock;
    RandomSource random(clock);
    std::vector<int> counts(10);
    for (int i = 0; i < 10000; ++i)
        ++counts[random.Draw(10)];
    for (const int count : counts)
        EXPECT_NEAR(count, 1000, 150);

    RandomSource first(clock);
    first.UseSeed(42);
    clock.seconds = 5;
    RandomSource second(clock);
    second.UseSeed(42);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(first.Draw(1000), second.Draw(1000));
    second.UseSeed(1);
    // The same on every machine and with every standard library.
    EXPECT_EQ(second.Draw(1000), 341);
    EXPECT_EQ(second.Draw(1000), 301);
    EXPECT_EQ(second.Draw(1000), 642);
}

}  // namespace
}  // namespace tidewalk::test
