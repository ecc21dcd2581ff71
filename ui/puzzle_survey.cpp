// SPDX-License-Identifier: MIT
#include "ui/puzzle_survey.h"

#include <chrono>
#include <exception>
#include <utility>

#include "model/line_reader.h"
#include "model/puzzle_record.h"
#include "ui/qt_background.h"

namespace tidewalk {

namespace {

/// So many choices are seconds of work: then the puzzle has no grade here.
constexpr int kMostChoices = 200'000;

}  // namespace

PuzzleGrader::PuzzleGrader() : thread_([this] { Work(); }) {}

PuzzleGrader::~PuzzleGrader() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
        stop_ = true;
    }
    asked_.notify_one();
    thread_.join();
}

void PuzzleGrader::Ask(int number, const Puzzle& puzzle) {
    {
        const std::lock_guard lock(mutex_);
        questions_.push_back({number, generation_, puzzle});
    }
    asked_.notify_one();
}

void PuzzleGrader::Clear() {
    const std::lock_guard lock(mutex_);
    questions_.clear();
    stop_ = true;
    ++generation_;
}

bool PuzzleGrader::Next(Question& question) {
    std::unique_lock lock(mutex_);
    asked_.wait(lock, [this] { return ends_ || !questions_.empty(); });
    if (ends_) return false;
    question = std::move(questions_.back());
    questions_.pop_back();
    stop_ = false;
    return true;
}

void PuzzleGrader::Work() {
    Question question;
    while (Next(question)) {
        const Assessment assessment = AssessWithin(kMostChoices, question.puzzle, stop_);
        const auto tell = [this, assessment, generation = question.generation, number = question.number] {
            if (generation == generation_) emit Known(number, assessment);
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    }
}

void PuzzleSearch::Start(const std::string& path, const PuzzleFilter& filter, const PlayStates& states) {
    Stop();
    stop_ = false;
    thread_ = std::thread([this, path, filter, states, search = search_] { Look(path, filter, states, search); });
}

void PuzzleSearch::Stop() {
    ++search_;
    stop_ = true;
    if (thread_.joinable()) thread_.join();
}

void PuzzleSearch::Look(const std::string& path, const PuzzleFilter& filter, const PlayStates& states, int search) {
    using Steady = std::chrono::steady_clock;
    constexpr auto kPause = std::chrono::milliseconds(100);
    QList<int> numbers;
    int looked = 0;
    auto told = Steady::now();
    const auto tell = [&](bool atEnd) {
        const auto now = [this, numbers = std::exchange(numbers, {}), looked, atEnd, search] {
            if (search == search_) emit Found(numbers, looked, atEnd);
        };
        QMetaObject::invokeMethod(this, now, Qt::QueuedConnection);
        told = Steady::now();
    };
    const auto takes = [&](const std::string& line) {
        const auto puzzle = ParsePuzzleRecord(line);
        if (!puzzle || !filter.TakesAtOnce(puzzle->Size(), states.Of(*puzzle).state)) return false;
        return !filter.grade || filter.TakesGrade(AssessWithin(kMostChoices, *puzzle, stop_));
    };
    try {
        LineReader lines(path);
        std::string line;
        while (!stop_ && lines.Next(line)) {
            ++looked;
            if (takes(line)) numbers += looked;
            if (Steady::now() - told >= kPause) tell(false);
        }
    } catch (const std::exception&) {
        // What cannot be read further ends here.
    }
    tell(true);
}

}  // namespace tidewalk
