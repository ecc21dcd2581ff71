// SPDX-License-Identifier: MIT
// Schemes of the player's own in "all.col": what they may be called, and writing them.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/system_file.h"
#include "options/options.h"

namespace tidewalk {

/// The thirteen colours of a scheme in the file.
using SchemeEntries = std::array<Colour, kReadEntries>;

/// Schemes to be written, by their names without the ending; nothing for one that is to go.
using SchemeEdits = std::map<std::string, std::optional<SchemeEntries>>;

/// True for the name, without its ending, of a scheme that comes with the program. These are never changed.
bool IsShippedScheme(std::string_view name);

/// Why no scheme can be called `name`, in a sentence for the player; "" when one can. `taken` are the names that there
/// are. What the file, "tide.cfg" or the list of schemes could not hold is refused.
std::string WhyNoSchemeName(std::string_view name, const std::vector<std::string>& taken);

/// Changes and removes schemes of the file at `path`, and adds those that it lacks at its end.
///
/// The file is locked and replaced as a whole; everything but these schemes stays as it is, byte for byte. A scheme to
/// be removed that is not there is passed over. Throws FileError, with the file as it was, when the system refuses or
/// `mayWait` gives up.
void WriteSchemes(const std::string& path, const SchemeEdits& edits, const MayWait& mayWait);

}  // namespace tidewalk
