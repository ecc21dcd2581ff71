// SPDX-License-Identifier: MIT
#include "ui/time_label.h"

#include "board/keep_play.h"
#include "ui/tool_tip.h"

namespace tidewalk {

namespace {

constexpr int kTick = 1000;  ///< in milliseconds

}  // namespace

TimeLabel::TimeLabel(Handlers& handlers) : handlers_(handlers) {
    setObjectName("PlayTime");
    setTextFormat(Qt::PlainText);
    setMargin(3);
    GiveToolTip(*this,
                tr("Time spent on this puzzle|It counts while the window is active, until the puzzle is solved"));
    hide();
    // Otherwise one second in twenty would show for none or for two.
    ticks_.setTimerType(Qt::PreciseTimer);
    connect(&ticks_, &QTimer::timeout, this, &TimeLabel::Tick);
    connect(&handlers_, &Handlers::Changed, this, &TimeLabel::Refresh);
    connect(&handlers_, &Handlers::Ending, &ticks_, &QTimer::stop);
}

void TimeLabel::SetActive(bool active) {
    active ? ticks_.start(kTick) : ticks_.stop();
    handlers_.Run([active](Game& game) { Form_Activate(game, active); });
}

/// No handler: nothing but the time has changed.
void TimeLabel::Tick() {
    Game* const game = handlers_.game();
    if (game == nullptr || game->job.Ending()) return;
    KeepTime(*game);
    Refresh();
}

void TimeLabel::Refresh() {
    Game* const game = handlers_.game();
    if (game == nullptr) return;
    const bool shows = game->options.ShowTime && game->board.puzzle.IslandCount() > 0;
    if (shows) {
        const QString text = QString::fromStdString(TimeText(game->playTime.Seconds(game->clock.Milliseconds())));
        if (text != this->text()) setText(text);
    }
    setVisible(shows);
}

}  // namespace tidewalk
