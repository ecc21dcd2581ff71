// SPDX-License-Identifier: MIT
// Finding out about the puzzles of a booklet beside the window.
#pragma once

#include <QObject>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include "game/questions.h"

namespace tidewalk {

/// Reads the puzzles that were asked for last in a thread of its own: first what is known at once, and then, if it is
/// wanted, their grades.
class BookletReader final : public QObject {
    Q_OBJECT

 public:
    struct Question {
        std::string collection;
        PuzzleRange range;
        bool graded = false;

        bool operator==(const Question&) const = default;
    };

    ~BookletReader() override { Stop(); }

    /// Gives up what was asked before, but for what the new question has in common with it.
    void Ask(const Question& question);

    /// What is known of the puzzles that were asked for; nothing before the first `Found`.
    std::shared_ptr<const KnownPuzzles> Known() const { return known_; }

    /// True while there is more to come.
    bool IsReading() const { return known_ == nullptr || (question_->graded && !known_->graded); }

    /// So many of the puzzles are done; when something is known of all, so many of their grades.
    int Done() const { return done_; }

 signals:
    void Advanced();
    /// More is known.
    void Found();

 private:
    void Stop();
    void Read(const Question& question, bool begins, int reading);
    bool ReadOnce(const Question& question, bool graded, int reading);

    std::optional<Question> question_;
    std::shared_ptr<const KnownPuzzles> known_;
    int done_ = 0;
    std::atomic<bool> stop_ = false;
    int reading_ = 0;  ///< what an earlier one has found comes too late
    std::thread thread_;
};

}  // namespace tidewalk
