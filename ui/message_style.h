// SPDX-License-Identifier: MIT
// The words of a message box's style: which picture it shows and which buttons it has.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "game/messages.h"

namespace tidewalk {

struct MessageButton {
    std::string_view caption;
    int code = 0;

    bool operator==(const MessageButton&) const = default;
};

struct MessageStyle {
    std::vector<std::string_view> icons;  ///< the keywords without "vb", such as "happy"
    std::vector<MessageButton> buttons;   ///< from left to right

    /// What closing the box by its frame or with Escape answers: Cancel if it is offered, else No, else Ok, and 0 for
    /// a box without buttons.
    int FrameAnswer() const;
};

/// Reads keywords joined by "+", in any case and order. Words that mean nothing are passed over.
MessageStyle ParseMessageStyle(std::string_view style);

}  // namespace tidewalk
