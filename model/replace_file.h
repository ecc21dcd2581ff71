// SPDX-License-Identifier: MIT
// Replacing a file as a whole, so that there is always either the old one or the new one.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>

namespace tidewalk {

/// A new content for a file, written bit by bit to a file beside it. Unless it is put in the old one's place, it goes
/// away with the object, and the file is as it was.
class Replacement {
 public:
    /// Throws FileError when the file at `path`, which may not exist yet, could not be replaced: it or its folder must
    /// not be written, it is no plain file, or there is no such folder.
    explicit Replacement(const std::string& path);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// What takes the content.
    std::ostream& Stream();

    /// Throws FileError when something that was put into the stream could not be written, as far as that is known.
    void DemandWritten();

    /// Brings the content to the disk and renames it over the file. Throws FileError when that fails.
    void Finish();

 private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

/// Makes what `write` puts into the stream the new content of the file at `path`, which may not exist yet.
///
/// The content goes to a file beside it, is brought to the disk, and is then renamed over it: a crash, a full disk or a
/// power cut in the middle leaves the old file whole. A link is followed, and the new file has an old one's rights from
/// the start. What a killed replacement has left beside the file is taken away. Throws FileError with the system's
/// reason when the file must not be written or could not be; whatever `write` throws comes through. After either the
/// file is as it was and nothing is left beside it. The bytes are written as they are.
void ReplaceFile(const std::string& path, const std::function<void(std::ostream&)>& write);

}  // namespace tidewalk
