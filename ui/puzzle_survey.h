// SPDX-License-Identifier: MIT
// Finding out about the puzzles of a collection beside the window.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "techniques/puzzle_filter.h"
#include "ui/qt_play_store.h"

namespace tidewalk {

/// Grades puzzles in a thread of its own, those that were asked about last first.
class PuzzleGrader final : public QObject {
    Q_OBJECT

 public:
    PuzzleGrader();
    ~PuzzleGrader() override;

    /// Asks about a puzzle; nobody is told twice.
    void Ask(int number, const Puzzle& puzzle);
    /// Nobody wants to know any more what was asked.
    void Clear();

 signals:
    void Known(int number, const tidewalk::Assessment& assessment);

 private:
    struct Question {
        int number = 0;
        int generation = 0;
        Puzzle puzzle;
    };
    void Work();
    bool Next(Question& question);

    std::mutex mutex_;
    std::condition_variable asked_;
    std::vector<Question> questions_;  ///< the last one is the next
    bool ends_ = false;
    int generation_ = 0;              ///< another one after each `Clear`
    std::atomic<bool> stop_ = false;  ///< the question at work has become idle
    std::thread thread_;
};

/// Reads a collection in a thread of its own and finds the puzzles that a filter takes.
class PuzzleSearch final : public QObject {
    Q_OBJECT

 public:
    ~PuzzleSearch() override { Stop(); }

    /// Gives up what it was looking for before.
    void Start(const std::string& path, const PuzzleFilter& filter, const PlayStates& states);
    void Stop();

 signals:
    /// Further numbers, ascending; `looked` puzzles were looked at so far, and these are all if `atEnd`.
    void Found(const QList<int>& numbers, int looked, bool atEnd);

 private:
    void Look(const std::string& path, const PuzzleFilter& filter, const PlayStates& states, int search);

    std::atomic<bool> stop_ = false;
    int search_ = 0;  ///< what an earlier one has found comes too late
    std::thread thread_;
};

}  // namespace tidewalk
