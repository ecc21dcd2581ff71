// SPDX-License-Identifier: MIT
// Collections of the older layout, in which a puzzle takes several lines.
#pragma once

#include <ostream>
#include <string>

#include "model/line_reader.h"

namespace tidewalk {

/// Where the conversion of a collection is written: its path, with the file name cut before its first ".", then
/// "-newformat.txt". "" for a file name without a ".", which is not converted.
std::string ConvertedPath(const std::string& collectionPath);

/// Reads the older layout from `from` and writes a record a line to `out`. Throws FileError when reading fails.
///
/// The first line is passed over. A puzzle is a line whose first letter is the kind, a line that is the header, and
/// rows up to a line that begins with "#". The last line of the file is never used: the files end with such a line.
void ConvertLayout(LineReader& from, std::ostream& out);

/// Writes the conversion of the collection `from` to the file `to`, which is replaced as a whole. Throws FileError when
/// reading or writing fails; an older file is then as it was.
void ConvertCollection(const std::string& from, const std::string& to);

/// True when the first puzzle of the file can be read as one of the older layout, and its first line is no record of
/// today's. False too when the file cannot be read.
bool IsOlderLayout(const std::string& path);

}  // namespace tidewalk
