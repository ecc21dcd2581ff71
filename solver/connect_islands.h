// SPDX-License-Identifier: MIT
// Laying bridges, and taking them back.
#pragma once

#include <cstddef>
#include <string_view>

#include "model/game.h"

namespace tidewalk {

/// Lays `n` bridges (1 or 2) between the islands `a` and `b` and refreshes the open neighbours; only after that the
/// link's capacity goes down, so that a link that is full stays open until the next refresh.
///
/// The needs of both islands go down by `n` without a floor; the cells strictly between them are marked crossed.
/// `rule` names who asked, for tracing; it changes nothing.
void ConnectIslands(Game& game, std::string_view rule, CellNumber a, CellNumber b, int n);

/// Marks the cells strictly between two islands of one row ("h") or one column ("v"). Returns true when any of them had
/// another mark or none before.
bool MarkCrossed(Game& game, CellNumber a, CellNumber b);

/// Takes back the bridges laid last, until `kept` calls of `ConnectIslands` are left. The needs, marks, links and open
/// neighbours are then what they were.
void TakeBackBridges(Game& game, std::size_t kept);

}  // namespace tidewalk
