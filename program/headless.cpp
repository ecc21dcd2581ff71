// SPDX-License-Identifier: MIT
#include "program/headless.h"

#include "model/numbers.h"

namespace tidewalk {

namespace {

constexpr int kOk = 1;
constexpr int kNo = 7;

}  // namespace

int HeadlessPrompts::Show(const std::string& text, std::string_view style) {
    lastText = text;
    return LowerCase(style).find("vbyesno") == std::string::npos ? kOk : kNo;
}

int HeadlessPrompts::SystemBox(const std::string& text, SystemButtons buttons) {
    lastText = text;
    return buttons == SystemButtons::Ok ? kOk : kNo;
}

std::string HeadlessFilePicker::Pick(const FileRequest& /*request*/) {
    return "";
}

std::string HeadlessWindow::Text(Control control) const {
    const auto found = texts_.find(control);
    return found == texts_.end() ? "" : found->second;
}

}  // namespace tidewalk
