// SPDX-License-Identifier: MIT
// What somebody wants of booklets, remembered from one to the next.
#pragma once

#include "game/choices.h"
#include "game/questions.h"

namespace tidewalk {

/// Takes what was chosen for the last booklet into design and format; where nothing was, or what is no choice any more,
/// they stay. The title belongs to one booklet and is not remembered.
void ReadBookletChoices(const Choices& choices, BookletRequest& request);

void KeepBookletChoices(Choices& choices, const BookletRequest& request);

}  // namespace tidewalk
