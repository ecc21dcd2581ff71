// SPDX-License-Identifier: MIT
// Judging a created puzzle from its record alone, with nothing of the program's own reader.
#pragma once

#include <string>

namespace tidewalk::test {

/// "" when the record is that of a puzzle that can be played: a header and rows of the right form, islands that do not
/// touch, bridges from island to island that do not cross and give every island its number, and all islands one group.
/// Otherwise what is wrong with it.
std::string FaultOfRecord(const std::string& record, int rows, int cols);

/// As above without the bridges: the form of the record and islands that do not touch.
std::string FaultOfLayout(const std::string& record, int rows, int cols);

}  // namespace tidewalk::test
