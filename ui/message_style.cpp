// SPDX-License-Identifier: MIT
#include "ui/message_style.h"

#include <algorithm>
#include <array>

#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr std::array<std::string_view, 13> kIcons = {"open",        "save",     "exit",       "lighton",  "custom",
                                                     "trash",       "print",    "happy",      "critical", "error",
                                                     "exclamation", "question", "information"};

constexpr MessageButton kOkButton{"Ok", kOk};
constexpr MessageButton kCancelButton{"Cancel", kCancel};
constexpr MessageButton kAbortButton{"Abort", kAbort};
constexpr MessageButton kRetryButton{"Retry", kRetry};
constexpr MessageButton kIgnoreButton{"Ignore", kIgnore};
constexpr MessageButton kYesButton{"Yes", kYes};
constexpr MessageButton kNoButton{"No", kNo};
constexpr MessageButton kContinueButton{"Continue", kYes};

struct ButtonWord {
    std::string_view word;
    std::vector<MessageButton> buttons;
};

const std::vector<ButtonWord>& ButtonWords() {
    static const std::vector<ButtonWord> words = {
        {"ok", {kOkButton}},
        {"okonly", {kOkButton}},
        {"okcancel", {kOkButton, kCancelButton}},
        {"yesno", {kYesButton, kNoButton}},
        {"yesnocancel", {kYesButton, kNoButton, kCancelButton}},
        {"retrycancel", {kRetryButton, kCancelButton}},
        {"abortretryignore", {kAbortButton, kRetryButton, kIgnoreButton}},
        {"continuecancel", {kContinueButton, kCancelButton}},
        {"cancel", {kCancelButton}},
        {"ignore", {kIgnoreButton}},
        {"cancelok", {kCancelButton, kOkButton}},
        {"yes", {kYesButton}},
        {"no", {kNoButton}},
        {"abort", {kAbortButton}},
        {"retry", {kRetryButton}},
        {"normal", {kOkButton}},
    };
    return words;
}

/// Adds what the keyword `word` asks for.
void AddWord(MessageStyle& style, std::string_view word) {
    constexpr std::string_view kPrefix = "vb";
    if (word.substr(0, kPrefix.size()) != kPrefix) return;
    word.remove_prefix(kPrefix.size());
    const auto icon = std::find(kIcons.begin(), kIcons.end(), word);
    if (icon != kIcons.end() && std::count(style.icons.begin(), style.icons.end(), word) == 0) {
        style.icons.push_back(*icon);
    }
    for (const ButtonWord& candidate : ButtonWords()) {
        if (candidate.word != word) continue;
        style.buttons.insert(style.buttons.end(), candidate.buttons.begin(), candidate.buttons.end());
    }
}

}  // namespace

int MessageStyle::FrameAnswer() const {
    if (buttons.empty()) return 0;
    for (const int code : {kCancel, kNo}) {
        for (const MessageButton& button : buttons) {
            if (button.code == code) return code;
        }
    }
    return kOk;
}

MessageStyle ParseMessageStyle(std::string_view style) {
    MessageStyle parsed;
    const std::string lower = LowerCase(style);
    std::string_view rest = lower;
    for (;;) {
        const std::size_t end = rest.find('+');
        AddWord(parsed, Trim(rest.substr(0, end)));
        if (end == std::string_view::npos) return parsed;
        rest.remove_prefix(end + 1);
    }
}

}  // namespace tidewalk
