// SPDX-License-Identifier: MIT
// Numbers to text and back: every conversion that files, messages and labels use.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tidewalk {

/// `n` as decimal text; a non-negative number gets a leading blank: 12 gives " 12", -3 gives "-3".
std::string Str(int n);

/// `n` as decimal text without the leading blank: 12 gives "12".
std::string NumText(int n);

/// `n` with leading zeros, at least as many digits as `zeros` holds: 7 and "000" give "007".
std::string Format(int n, std::string_view zeros);

/// The number that `text` begins with: sign, digits, fraction and exponent; blanks anywhere are passed over.
/// Text that begins with no number, the empty text included, gives 0. Never infinite and never not-a-number.
double Val(std::string_view text);

/// `value` as a whole number, halves to even: 2.5 gives 2, 3.5 gives 4. Values beyond 32 bits give the nearest limit.
int RoundHalfEven(double value);

/// `Val` of the text, rounded half to even.
int RoundedVal(std::string_view text);

/// `text` without blanks and tabs at its ends.
std::string_view Trim(std::string_view text);

/// `text` with the letters A to Z in lower case.
std::string LowerCase(std::string_view text);

/// The words as one says them: "40", "40 and 52" or "40, 52 and 60".
std::string Listed(const std::vector<std::string>& words);

}  // namespace tidewalk
