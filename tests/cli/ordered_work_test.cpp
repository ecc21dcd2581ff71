// SPDX-License-Identifier: MIT
#include "cli/ordered_work.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>

namespace tidewalk::test {
namespace {

/// Steps over the numbers below `count`; the work is to square them.
WorkSteps<int, int> Squares(int count, std::vector<int>& taken) {
    WorkSteps<int, int> steps;
    steps.next = [at = 0, count](int& task) mutable {
        task = at++;
        return task < count;
    };
    steps.work = [](int /*job*/, int& task) {
        if (task % 7 == 0) std::this_thread::sleep_for(std::chrono::microseconds(200));
        return task * task;
    };
    steps.take = [&taken](int& result) {
        taken.push_back(result);
        return true;
    };
    return steps;
}

TEST(OrderedWork, ResultsComeInTheOrderOfTheTasks) {
    for (const int jobs : {1, 2, 5}) {
        std::vector<int> taken;
        OrderedWork<int, int>(Squares(1000, taken)).Run(jobs);
        ASSERT_EQ(taken.size(), 1000U);
        for (std::size_t i = 0; i < taken.size(); ++i)
            ASSERT_EQ(taken[i], static_cast<int>(i * i));
    }
}

TEST(OrderedWork, AnEndlessSupplyEndsWhenNoMoreIsWanted) {
    std::vector<int> taken;
    auto steps = Squares(40000, taken);
    std::atomic<int> worked = 0;
    steps.work = [&](int /*job*/, int& task) { return ++worked, task; };
    steps.take = [&](int& result) { return taken.push_back(result), taken.size() < 10; };
    OrderedWork<int, int>(std::move(steps)).Run(2);
    EXPECT_EQ(taken.size(), 10U);
    EXPECT_LT(worked, 1000) << "nobody runs far ahead of what is taken";
}

TEST(OrderedWork, WhatAnyStepThrowsComesThrough) {
    std::vector<int> taken;
    for (int step = 0; step < 3; ++step) {
        auto steps = Squares(100, taken);
        if (step == 0) steps.next = [](int& /*task*/) -> bool { throw std::runtime_error("next"); };
        if (step == 1) steps.work = [](int /*job*/, int& /*task*/) -> int { throw std::runtime_error("work"); };
        if (step == 2) steps.take = [](int& /*result*/) -> bool { throw std::runtime_error("take"); };
        EXPECT_THROW((OrderedWork<int, int>(std::move(steps)).Run(3)), std::runtime_error) << step;
    }
}

TEST(OrderedWork, WhatWasBegunBeforeAFailureIsTaken) {
    std::vector<int> taken;
    auto steps = Squares(100, taken);
    steps.next = [next = steps.next](int& task) {
        const bool more = next(task);
        if (task == 49) throw std::runtime_error("unreadable");
        return more;
    };
    EXPECT_THROW((OrderedWork<int, int>(std::move(steps)).Run(3)), std::runtime_error);
    EXPECT_EQ(taken.size(), 49U);
}

}  // namespace
}  // namespace tidewalk::test
