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

/// What is to be done with many tasks, and by whom.
template <class Task, class Result>
struct WorkSteps {
    std::function<bool(Task&)> next;         ///< the next task, or false; asked by one thread at a time
    std::function<Result(int, Task&)> work;  ///< done by any thread, which gives its number, 0..jobs-1
    std::function<bool(Result&)> take;  ///< called by the caller's thread in the order of the tasks; false ends all
    std::function<void()> idle;         ///< called by the caller's thread now and then while it waits
};

/// Several threads that work, and the caller's that takes what they have done.
template <class Task, class Result>
class OrderedWork {
 public:
    explicit OrderedWork(WorkSteps<Task, Result> steps) : steps_(std::move(steps)) {}

    /// Runs on so many threads until there is no task or no wish for more. What a step throws ends the work and comes
    /// through.
    void Run(int jobs) {
        constexpr std::size_t kTasksAhead = 64;
        mostAhead_ = kTasksAhead * static_cast<std::size_t>(jobs);
        running_ = jobs;
        std::vector<std::thread> threads;
        try {
            for (int job = 0; job < jobs; ++job)
                threads.emplace_back([this, job] { WorkOn(job); });
            TakeAll();
        } catch (...) {
            EndWith(std::current_exception());
        }
        EndWith(nullptr);
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
                const std::lock_guard lock(mutex_);
                done_.emplace(index, std::move(result));
                changed_.notify_all();
            }
        } catch (...) {
            EndWith(std::current_exception());
        }
        const std::lock_guard lock(mutex_);
        --running_;
        changed_.notify_all();
    }

    /// Waits while too many results lie untaken.
    bool TakeTask(Task& task, std::size_t& index) {
        const std::lock_guard reading(taskMutex_);
        {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return ended_ || started_ < taken_ + mostAhead_; });
            if (ended_) return false;
        }
        if (!steps_.next(task)) return false;
        const std::lock_guard lock(mutex_);
        index = started_++;
        return true;
    }

    void TakeAll() {
        for (;;) {
            std::unique_lock lock(mutex_);
            const auto found = [this] { return done_.count(taken_) != 0; };
            while (!found()) {
                if (running_ == 0 || ended_) return;
                constexpr std::chrono::milliseconds kIdle(100);
                changed_.wait_for(lock, kIdle, [&] { return found() || running_ == 0 || ended_; });
                if (found() || !steps_.idle) continue;
                lock.unlock();
                steps_.idle();
                lock.lock();
            }
            Result result = std::move(done_.extract(taken_).mapped());
            ++taken_;
            changed_.notify_all();
            lock.unlock();
            if (!steps_.take(result)) return;
        }
    }

    /// Lets nobody begin another task. The first reason is kept.
    void EndWith(std::exception_ptr thrown) {
        const std::lock_guard lock(mutex_);
        if (thrown_ == nullptr) thrown_ = std::move(thrown);
        ended_ = true;
        changed_.notify_all();
    }

    WorkSteps<Task, Result> steps_;
    std::size_t mostAhead_ = 0;

    std::mutex taskMutex_;  ///< held while `next` is asked, which may wait for input
    std::mutex mutex_;      ///< guards what follows
    std::condition_variable changed_;
    std::map<std::size_t, Result> done_;
    std::size_t started_ = 0;
    std::size_t taken_ = 0;
    int running_ = 0;
    bool ended_ = false;
    std::exception_ptr thrown_;
};

}  // namespace tidewalk
