// SPDX-License-Identifier: MIT
// Collections of the older layout, in which a puzzle takes several lines.
#pragma once

#include <string>

namespace tidewalk {

/// Where the conversion of a collection is written: its path cut before the first ".", then "-newformat.txt". "" for a
/// path without a ".", which is not converted.
std::string ConvertedPath(const std::string& collectionPath);

/// Reads the older layout from `from` and writes a record a line to `to`, which is created or emptied.
/// Throws FileError when reading or writing fails.
///
/// The first line is passed over. A puzzle is a line whose first letter is the kind, a line that is the header, and
/// rows up to a line that begins with "#". The last line of the file is never used: the files end with such a line.
void ConvertLayout(const std::string& from, const std::string& to);

}  // namespace tidewalk
