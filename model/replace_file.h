// SPDX-License-Identifier: MIT
// Replacing a file as a whole, so that there is always either the old one or the new one.
#pragma once

#include <functional>
#include <ostream>
#include <string>

namespace tidewalk {

/// Makes what `write` puts into the stream the new content of the file at `path`, which may not exist yet.
///
/// The content goes to a file beside it, is brought to the disk, and is then renamed over it: a crash, a full disk or a
/// power cut in the middle leaves the old file whole. A link is followed, and the new file has an old one's rights from
/// the start. What a killed replacement has left beside the file is taken away. Throws FileError with the system's
/// reason when the file must not be written or could not be; whatever `write` throws comes through. After either the
/// file is as it was and nothing is left beside it. The bytes are written as they are.
void ReplaceFile(const std::string& path, const std::function<void(std::ostream&)>& write);

}  // namespace tidewalk
