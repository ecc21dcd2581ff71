// SPDX-License-Identifier: MIT
// Whether a long job runs, and whether it has to stop.
#pragma once

#include <cstdint>
#include <string>

namespace tidewalk {

/// What the handlers know of the running job. Whatever changes it does so through the functions here.
class JobState {
 public:
    /// A long job runs: the board takes no moves, and commands that would replace the puzzle refuse.
    bool BusyFlag() const { return busy_; }

    /// The running job was asked to stop.
    bool CancelFlag() const { return cancelled_; }

    /// Another puzzle was loaded in the middle of the running job.
    bool Superseded() const { return superseded_; }

    /// The window was closed: jobs stop, nothing more is asked or saved.
    bool Ending() const { return ending_; }

    /// The running job is to stop as soon as it can.
    bool MustStop() const { return cancelled_ || superseded_ || ending_; }

    /// The running job, which works on many things one by one, was asked to end as a whole.
    bool StopFlag() const { return stopped_; }

    /// What the player calls the running job.
    const std::string& Name() const { return name_; }

    void Cancel() { cancelled_ = true; }
    void Stop() { stopped_ = cancelled_ = true; }
    void TakeBackCancel() { cancelled_ = false; }
    void EndProgram() { ending_ = true; }
    /// The board holds another puzzle now.
    void PuzzleReplaced() { superseded_ = busy_; }

    /// True when 20 ms have passed since pending events last happened, so that a loop may ask as often as it likes.
    /// `now` in milliseconds.
    bool PollIsDue(std::int64_t now) const;
    void Polled(std::int64_t now) { lastPoll_ = now; }

 private:
    friend class Job;

    /// A job begins, takes what is on the board for its own, ends.
    void Begin(std::string name);
    void Adopt() { superseded_ = false; }
    void End();

    bool busy_ = false;
    bool cancelled_ = false;
    bool superseded_ = false;
    bool ending_ = false;
    bool stopped_ = false;
    std::string name_;
    std::int64_t lastPoll_ = 0;
};

}  // namespace tidewalk
