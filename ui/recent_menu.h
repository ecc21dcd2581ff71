// SPDX-License-Identifier: MIT
// The menu of the collections that were opened last.
#pragma once

#include <QMenu>

#include "ui/handlers.h"

namespace tidewalk {

/// Each time the menu opens, an entry for each recent file comes before what else it holds.
void FillWhenOpened(QMenu& menu, Handlers& handlers);

}  // namespace tidewalk
