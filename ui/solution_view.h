// SPDX-License-Identifier: MIT
// One solution as a picture.
#pragma once

#include <QWidget>
#include <vector>

#include "board/board.h"
#include "game/questions.h"
#include "options/options.h"

namespace tidewalk {

/// A solved puzzle in the colours of the board, as large as the widget lets it be. Pairs of islands where another
/// solution differs lie in a ring, a dashed one where there is no bridge in this one.
class SolutionView final : public QWidget {
    Q_OBJECT

 public:
    SolutionView(const Puzzle& solution, std::vector<Difference> differences, Options options);

    /// The difference that stands out, by its place among them; -1 for none.
    void Choose(int difference);

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void Mark(QPainter& painter, const Difference& difference, bool chosen) const;

    Board board_;
    std::vector<Difference> differences_;
    Options options_;
    int chosen_ = -1;
};

}  // namespace tidewalk
