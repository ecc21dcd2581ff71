// SPDX-License-Identifier: MIT
// Work on several threads whose results come in the order of the tasks.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace tidewalk {

/// What is to be done with many tasks. `take` and `idle` never run at the same time, so that they may share what is
/// not made for threads.
template <class Task, class Result>
struct WorkSteps {
    std::function<bool(Task&)> next;         ///< the next task, or false; asked by one thread at a time
    std::function<Result(int, Task&)> work;  ///< done by any thread, which gives its number, 0..jobs-1
    std::function<bool(Result&)> take;       ///< called by any thread in the order of the tasks; false ends all
    std::function<void()> idle;              ///< called ten times a second
};

/// Several threads that work. Each hands on what is due when it has done its part, so that nobody waits to be woken for
/// a single result.
template <class Task, class Result>
class OrderedWork {
 public:
    explicit OrderedWork(WorkSteps<Task, Result> steps) : steps_(std::move(steps)) {}

    /// Runs on so many threads until there is no task or no wish for more. What a step throws ends the work, with the
    /// results before it taken, and comes through.
    void Run(int jobs) {
        constexpr std::size_t kTasksAhead = 64;
        mostAhead_ = kTasksAhead * static_cast<std::size_t>(jobs);
        running_ = jobs;
        std::vector<std::thread> threads;
        try {
            for (int job = 0; job < jobs; ++job)
                threads.emplace_back([this, job] { WorkOn(job); });
            WaitForAll();
        } catch (...) {
            EndWith(std::current_exception());
        }
        for (std::thread& thread : threads)
            thread.join();
        if (thrown_ != nullptr) std::rethrow_exception(thrown_);
    }

 private:
    void WorkOn(int job) {
        try {
            Task task;
            std::size_t index = 0;
            while (TakeTask(task, index)) {
                Result result = steps_.work(job, task);
                std::unique_lock lock(mutex_);
                done_.emplace(index, std::move(result));
                TakeDue(lock);
            }
        } catch (...) {
            EndWith(std::current_exception());
        }
        const std::lock_guard lock(mutex_);
        if (--running_ == 0) over_.notify_all();
    }

    /// Waits while too many results lie untaken.
    bool TakeTask(Task& task, std::size_t& index) {
        const std::lock_guard reading(taskMutex_);
        {
            std::unique_lock lock(mutex_);
            room_.wait(lock, [this] { return ended_ || started_ < taken_ + mostAhead_; });
            if (ended_) return false;
        }
        // While nobody else can ask: after its end, or a failure, there is no next one.
        if (!HasNext(task)) return false;
        const std::lock_guard lock(mutex_);
        index = started_++;
        return true;
    }

    bool HasNext(Task& task) {
        try {
            if (steps_.next(task)) return true;
            EndWith(nullptr);
        } catch (...) {
            EndWith(std::current_exception());
        }
        return false;
    }

    /// Takes the results that are due, unless another thread is at it, which then takes these, too.
    void TakeDue(std::unique_lock<std::mutex>& lock) {
        if (taking_) return;
        taking_ = true;
        for (auto due = done_.find(taken_); due != done_.end(); due = done_.find(taken_)) {
            Result result = std::move(done_.extract(due).mapped());
            lock.unlock();
            const bool goOn = steps_.take(result);
            if (!goOn) EndWith(nullptr);
            lock.lock();
            // Nobody takes anything after a refusal, as after a failure: it stays this thread's turn.
            if (!goOn) return;
            ++taken_;
            room_.notify_one();
        }
        taking_ = false;
    }

    void WaitForAll() {
        constexpr std::chrono::milliseconds kIdle(100);
        std::unique_lock lock(mutex_);
        while (!over_.wait_for(lock, kIdle, [this] { return running_ == 0; })) {
            if (taking_ || !steps_.idle) continue;
            taking_ = true;
            lock.unlock();
            steps_.idle();
            lock.lock();
            taking_ = false;
            TakeDue(lock);
        }
    }

    /// Lets nobody begin another task. The first reason is kept.
    void EndWith(std::exception_ptr thrown) {
        const std::lock_guard lock(mutex_);
        if (thrown_ == nullptr) thrown_ = std::move(thrown);
        ended_ = true;
        room_.notify_all();
    }

    WorkSteps<Task, Result> steps_;
    std::size_t mostAhead_ = 0;

    std::mutex taskMutex_;  ///< held while `next` is asked, which may wait for input
    std::mutex mutex_;      ///< guards what follows
    std::condition_variable room_;
    std::condition_variable over_;
    std::map<std::size_t, Result> done_;
    std::size_t started_ = 0;
    std::size_t taken_ = 0;
    int running_ = 0;
    bool taking_ = false;  ///< a thread is taking results or in `idle`
    bool ended_ = false;
    std::exception_ptr thrown_;
};

}  // namespace tidewalk
