// SPDX-License-Identifier: MIT
#include "ui/booklet_reader.h"

#include <chrono>
#include <exception>
#include <utility>

namespace tidewalk {

void BookletReader::Ask(const Question& question) {
    if (question_ == question) return;
    const bool samePuzzles =
        question_ && question_->collection == question.collection && question_->range == question.range;
    Stop();
    question_ = question;
    if (!samePuzzles) known_.reset();
    if (!IsReading()) return;
    stop_ = false;
    done_ = 0;
    const bool begins = known_ == nullptr;
    thread_ = std::thread([this, question, begins, reading = reading_] { Read(question, begins, reading); });
}

void BookletReader::Stop() {
    ++reading_;
    stop_ = true;
    if (thread_.joinable()) thread_.join();
}

void BookletReader::Read(const Question& question, bool begins, int reading) {
    if (begins && !ReadOnce(question, false, reading)) return;
    if (question.graded) ReadOnce(question, true, reading);
}

/// False when it was stopped.
bool BookletReader::ReadOnce(const Question& question, bool graded, int reading) {
    using Steady = std::chrono::steady_clock;
    constexpr auto kPause = std::chrono::milliseconds(100);
    auto told = Steady::now();
    const auto step = [&](int done) {
        if (Steady::now() - told >= kPause) {
            const auto tell = [this, done, reading] {
                if (reading != reading_) return;
                done_ = done;
                emit Advanced();
            };
            QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
            told = Steady::now();
        }
        return !stop_;
    };
    auto known = std::make_shared<KnownPuzzles>();
    known->graded = graded;
    try {
        auto contents = ReadBookletContents(question.collection, question.range, graded, step);
        if (!contents) return false;
        known->contents = std::move(*contents);
    } catch (const std::exception&) {
        // A file that cannot be read, or no memory left: there are no puzzles then.
    }
    const auto tell = [this, known, reading] {
        if (reading != reading_) return;
        known_ = known;
        done_ = 0;
        emit Found();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    return true;
}

}  // namespace tidewalk
