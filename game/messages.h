// SPDX-License-Identifier: MIT
// The seam of messages and questions.
#pragma once

#include <string>
#include <string_view>

namespace tidewalk {

/// The caption of message boxes and dialogs.
inline constexpr std::string_view AppTitle = "Tidewalk";

enum class SystemButtons { Ok, YesNo };

// The codes that buttons answer with.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kAbort = 3;
inline constexpr int kRetry = 4;
inline constexpr int kIgnore = 5;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

/// Messages and questions.
class Prompts {
 public:
    virtual ~Prompts() = default;

    /// Shows the program's own message box and returns the code of the button that ended it. `style` holds keywords
    /// joined by "+", such as "vbYesNo+vbexit".
    virtual int Show(const std::string& text, std::string_view style) = 0;

    /// Shows a plain box of the system. Returns `kOk`, `kYes` or `kNo`.
    virtual int SystemBox(const std::string& text, SystemButtons buttons) = 0;
};

}  // namespace tidewalk
