// SPDX-License-Identifier: MIT
#include "ui/qt_background.h"

#include <exception>
#include <utility>

namespace tidewalk {

namespace {

constexpr int kDelay = 30;  ///< in milliseconds
/// So many choices are many seconds of work; who could not tell by then will hardly ever.
constexpr int kMostChoices = 2'000'000;

}  // namespace

Assessment AssessWithin(int mostChoices, const Puzzle& puzzle, const std::atomic<bool>& stop) {
    try {
        int choices = 0;
        return AssessPuzzle(puzzle, [&] { return !stop && ++choices <= mostChoices; });
    } catch (const std::exception&) {
        // Out of memory, for one: then it is not known.
        return {};
    }
}

QtBackground::QtBackground(Handlers& handlers) : handlers_(handlers) {
    start_.setSingleShot(true);
    start_.setInterval(kDelay);
    connect(&start_, &QTimer::timeout, this, &QtBackground::Begin);
}

QtBackground::~QtBackground() {
    Stop();
}

void QtBackground::Assess(const Puzzle& puzzle, std::function<void(const Assessment&)> done) {
    ++question_;
    stop_ = true;
    puzzle_ = puzzle;
    done_ = std::move(done);
    start_.start();
}

void QtBackground::Begin() {
    Stop();
    thread_ = std::thread([this, puzzle = puzzle_, question = question_] {
        const Assessment assessment = AssessWithin(kMostChoices, puzzle, stop_);
        const auto tell = [this, assessment, question] {
            if (question == question_) handlers_.Run([&](Game&) { done_(assessment); });
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    });
}

void QtBackground::Stop() {
    stop_ = true;
    if (thread_.joinable()) thread_.join();
    stop_ = false;
}

}  // namespace tidewalk
