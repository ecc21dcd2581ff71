// SPDX-License-Identifier: MIT
// The puzzles of a collection as small pictures with what is known of each.
#pragma once

#include <QCache>
#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "model/line_index.h"
#include "options/options.h"
#include "ui/puzzle_survey.h"

namespace tidewalk {

/// What is shown of one puzzle.
struct PuzzleCard {
    bool isPuzzle = false;  ///< or a line that is none
    BoardSize size;
    PlayedSoFar played;
    QPixmap picture;
};

/// Reads, draws and grades puzzles when somebody looks at them, a little at a time between two events, and finds the
/// lines of the collection meanwhile.
class PuzzleBook final : public QObject {
    Q_OBJECT

 public:
    /// What is known already of the file's lines comes with the index.
    PuzzleBook(std::string path, LineIndex index, Options options, PlayStates states);

    const std::string& Path() const { return path_; }
    const PlayStates& States() const { return states_; }

    /// Pictures get this side, in pixels, at this pixel ratio.
    void SetPictures(int side, double ratio);

    /// What is known of the puzzle; otherwise nothing, and `Changed` tells when it is.
    const PuzzleCard* Card(int number);
    /// The puzzle's grade and solutions, or nothing as long as they are not known.
    const Assessment* AssessmentOf(int number);

    int Lines() const { return lines_; }
    bool HasAllLines() const { return hasAll_; }

 signals:
    void Changed(int number);
    /// More lines were found, or there are no more.
    void Grown();
    /// The file has become another one, and all that was known is gone.
    void Replaced();

 private:
    void FindLines();
    void Look();
    void LookAt(int number);

    std::string path_;
    LineIndex index_;
    Options options_;
    PlayStates states_;
    int side_ = 0;
    double ratio_ = 1;
    int lines_ = 0;
    bool hasAll_ = false;
    std::optional<std::uint64_t> edition_;  ///< of what is known; none before anything is
    QCache<int, PuzzleCard> cards_;
    QHash<int, Assessment> assessments_;
    std::vector<int> wanted_;  ///< the last one is the next
    QTimer finding_;
    QTimer looking_;
    PuzzleGrader grader_;
};

}  // namespace tidewalk
