// SPDX-License-Identifier: MIT
#include "monkey.h"

namespace tidewalk::test {
namespace {

/// A test of this kind has to be repeatable by its seed and short enough for every build; others can be tried by hand.
unsigned Seed() {
    return qEnvironmentVariableIsSet("TIDEWALK_MONKEY_SEED") ? qEnvironmentVariable("TIDEWALK_MONKEY_SEED").toUInt()
                                                             : 20260607U;
}

TEST(Monkey, NothingThatIsDoneAtAnyMomentBreaksTheGame) {
    constexpr int kSteps = 2000;
    Monkey monkey(Seed());
    for (int step = 1; step <= kSteps; ++step)
        ASSERT_TRUE(monkey.Step()) << "step " << step;
    // A monkey that was locked out would find nothing.
    EXPECT_GT(monkey.interferences, 100);
    EXPECT_GT(monkey.answers, 300);
    EXPECT_GT(monkey.ends, 5);
    RecordProperty("interferences", monkey.interferences);
    RecordProperty("answers", monkey.answers);
    RecordProperty("ends", monkey.ends);
}

}  // namespace
}  // namespace tidewalk::test
