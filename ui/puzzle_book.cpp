// SPDX-License-Identifier: MIT
#include "ui/puzzle_book.h"

#include <QElapsedTimer>
#include <algorithm>
#include <utility>

#include "model/puzzle_record.h"
#include "ui/whole_board.h"

namespace tidewalk {

namespace {

constexpr int kMostCards = 400;   ///< whose pictures are held
constexpr int kMostWanted = 200;  ///< what was wanted before has been scrolled past
constexpr int kSlice = 8;         ///< between two events, in milliseconds
constexpr int kSoon = 50;         ///< until a file that is being written is looked at again, in milliseconds
constexpr int kLater = 2000;      ///< the same for one that is known

}  // namespace

PuzzleBook::PuzzleBook(std::string path, LineIndex index, Options options, PlayStates states)
    : path_(std::move(path)),
      index_(std::move(index)),
      options_(std::move(options)),
      states_(std::move(states)),
      cards_(kMostCards) {
    // Small pictures are clearer without the lines that would join all islands.
    options_.ShowLines = 0;
    finding_.setSingleShot(true);
    looking_.setSingleShot(true);
    connect(&finding_, &QTimer::timeout, this, &PuzzleBook::FindLines);
    connect(&looking_, &QTimer::timeout, this, &PuzzleBook::Look);
    connect(&grader_, &PuzzleGrader::Known, this, [this](int number, const Assessment& assessment) {
        assessments_.insert(number, assessment);
        emit Changed(number);
    });
    finding_.start(0);
}

void PuzzleBook::SetPictures(int side, double ratio) {
    if (std::exchange(side_, side) == side && std::exchange(ratio_, ratio) == ratio) return;
    ratio_ = ratio;
    cards_.clear();
}

void PuzzleBook::FindLines() {
    QElapsedTimer time;
    time.start();
    const int before = lines_;
    const LineIndex::Progress progress = index_.Advance(path_, [&time] { return !time.hasExpired(kSlice); });
    lines_ = progress.lines;
    hasAll_ = progress.all;
    const bool isOther = edition_ && *edition_ != progress.edition;
    edition_ = progress.edition;
    if (isOther) {
        cards_.clear();
        assessments_.clear();
        wanted_.clear();
        grader_.Clear();
        emit Replaced();
    } else {
        emit Grown();
    }
    const int waits = hasAll_ ? kLater : lines_ > before ? 0 : kSoon;
    finding_.start(waits);
}

const PuzzleCard* PuzzleBook::Card(int number) {
    if (const PuzzleCard* const card = cards_.object(number)) return card;
    wanted_.push_back(number);
    if (!looking_.isActive()) looking_.start(0);
    return nullptr;
}

const Assessment* PuzzleBook::AssessmentOf(int number) {
    const auto found = assessments_.constFind(number);
    return found == assessments_.constEnd() ? nullptr : &*found;
}

void PuzzleBook::Look() {
    QElapsedTimer time;
    time.start();
    if (wanted_.size() > kMostWanted) wanted_.erase(wanted_.begin(), wanted_.end() - kMostWanted);
    while (!wanted_.empty() && !time.hasExpired(kSlice)) {
        const int number = wanted_.back();
        wanted_.pop_back();
        if (!cards_.contains(number)) LookAt(number);
    }
    if (!wanted_.empty()) looking_.start(0);
}

void PuzzleBook::LookAt(int number) {
    std::string line;
    // Once the file is another one, that will be noticed soon.
    if (!index_.FetchKnown(path_, number, line)) return;
    auto* const card = new PuzzleCard;
    if (const auto puzzle = ParsePuzzleRecord(line)) {
        card->isPuzzle = true;
        card->size = puzzle->Size();
        card->played = states_.Of(*puzzle);
        Board board;
        board.puzzle = WithoutLinks(*puzzle);
        board.layout = WholeBoardLayout(card->size);
        card->picture = DrawWholeBoard(board, options_, ScaleInto(board, QSizeF(side_, side_)), ratio_);
        if (!assessments_.contains(number)) grader_.Ask(number, *puzzle);
    }
    cards_.insert(number, card);
    emit Changed(number);
}

}  // namespace tidewalk
