// SPDX-License-Identifier: MIT
// Bringing hints and explanations to the board and beside it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "game/game.h"

namespace tidewalk {

/// What is told beside the board now; "" when nothing is, or when a move has made it out of date.
std::string GuidanceText(const Game& game);

/// Tells `text` beside the board and shows `guide` on it, until the next move.
void ShowGuide(Game& game, Guide guide, const std::string& text);

/// Takes hint and explanation away.
void EndGuidance(Game& game);

/// The islands that a deduction looks at, framed, and with `results` what follows between them.
Guide GuideTo(const Archipelago& board, const Deduction& deduction, bool results);

/// The solutions of the puzzle on the board, two at most. Nothing when looking for them would keep the player waiting.
std::optional<std::vector<SpanBridges>> SolutionsAtOnce(const Archipelago& board);

}  // namespace tidewalk
