// SPDX-License-Identifier: MIT
// A small board that shows what the options window would make of the real one.
#pragma once

#include <QWidget>

#include "board/board.h"
#include "options/options.h"

namespace tidewalk {

/// A board with one of everything: single and double bridges, thin lines, a mark, finished islands and mistakes. As
/// large as its window makes it.
class ColourPreview final : public QWidget {
    Q_OBJECT

 public:
    explicit ColourPreview(QWidget* parent = nullptr);

    /// Draws the board under these options from now on.
    void Show(const Options& options);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Board board_;
    Options options_;
};

}  // namespace tidewalk
