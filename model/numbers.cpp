// SPDX-License-Identifier: MIT
#include "model/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace tidewalk {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Copies the digits at `text[at]` on to `out`, passing over blanks, and leaves `at` behind them.
/// Returns how many there were.
int TakeDigits(std::string_view text, std::size_t& at, std::string& out) {
    int count = 0;
    for (; at < text.size() && (IsDigit(text[at]) || IsBlank(text[at])); ++at) {
        if (IsBlank(text[at])) continue;
        out += text[at];
        ++count;
    }
    return count;
}

void TakeSign(std::string_view text, std::size_t& at, std::string& out) {
    while (at < text.size() && IsBlank(text[at]))
        ++at;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        if (text[at] == '-') out += '-';
        ++at;
    }
}

}  // namespace

std::string Str(int n) {
    return (n < 0 ? "" : " ") + std::to_string(n);
}

std::string NumText(int n) {
    return std::to_string(n);
}

std::string Format(int n, std::string_view zeros) {
    std::string digits = std::to_string(std::abs(static_cast<long long>(n)));
    if (digits.size() < zeros.size()) digits.insert(0, zeros.size() - digits.size(), '0');
    return n < 0 ? "-" + digits : digits;
}

double Val(std::string_view text) {
    // The commonest number by far is a lone digit, a cell of a board.
    if (text.size() == 1) return IsDigit(text[0]) ? text[0] - '0' : 0;
    std::string number;
    std::size_t at = 0;
    TakeSign(text, at, number);
    int digits = TakeDigits(text, at, number);
    if (at < text.size() && text[at] == '.') {
        number += '.';
        ++at;
        digits += TakeDigits(text, at, number);
    }
    if (digits == 0) return 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E' || text[at] == 'd' || text[at] == 'D')) {
        std::string exponent = "e";
        TakeSign(text, ++at, exponent);
        if (TakeDigits(text, at, exponent) > 0) number += exponent;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        const bool tiny = number.find("e-") != std::string::npos;
        value = tiny ? 0 : std::copysign(std::numeric_limits<double>::max(), number[0] == '-' ? -1 : 1);
    }
    return value;
}

int RoundHalfEven(double value) {
    // The default rounding mode of the floating-point unit is half to even.
    const double rounded = std::nearbyint(value);
    constexpr double kLow = std::numeric_limits<int>::min();
    constexpr double kHigh = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(rounded, kLow, kHigh));
}

int RoundedVal(std::string_view text) {
    return RoundHalfEven(Val(text));
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

std::string Listed(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i)
        text += (i == 0 ? "" : i + 1 < words.size() ? ", " : " and ") + words[i];
    return text;
}

}  // namespace tidewalk
