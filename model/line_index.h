// SPDX-License-Identifier: MIT
// Where the lines of a collection begin, so that each is reached as quickly as the first.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/may_go_on.h"
#include "model/puzzle.h"
#include "model/system_file.h"

namespace tidewalk {

/// False for a file that may change once more without looking changed, `now` being in nanoseconds since 1970: two
/// changes within one tick of the file system's clock bear the same time.
bool IsSettled(const FileState& state, std::int64_t now);

/// What came of asking for a line.
enum class LineRead {
    Done,
    NoSuchLine,  ///< or it cannot be read
    NotOpened    ///< there is no such file, it is no regular one, or the system refuses
};

/// Remembers where lines begin in the file that it was asked about last.
///
/// Every call looks at the file anew. What is remembered is thrown away when file, size or a time is another one, and a
/// file that is not settled is read from its beginning without being remembered; so the answers are those of a reader
/// who remembers nothing, except that what another program writes through a memory mapping is noticed only when the
/// system notices. No file stays open, and memory is bounded: of more than 65,536 lines only every second, fourth,
/// eighth place is kept, half a megabyte in all. An index belongs to one thread at a time; a copy is one of its own.
class LineIndex {
 public:
    /// Takes line `number`, counted from 1, of the file at `path` into `line`, without its end. Lines further on stay
    /// unread. Unless it is done, what `line` holds is nothing to rely on.
    LineRead Read(const std::string& path, int number, std::string& line);

    /// How many lines the file has, the last one without an end too. A file that cannot be read has none.
    int Count(const std::string& path);

    /// What is known of a file so far.
    struct Progress {
        int lines = 0;              ///< lines 1 to `lines` have been found
        bool all = false;           ///< there are no more
        std::uint64_t edition = 0;  ///< another number when what was known before was thrown away
    };

    /// Looks for further lines for as long as `mayGoOn` allows, which is asked before every 256 KB, and tells what is
    /// known then. Of a file that is not settled nothing is known; it is so within a few seconds, mostly at once. One
    /// that cannot be read has all its lines found: none.
    Progress Advance(const std::string& path, const MayGoOn& mayGoOn);

    /// Takes line `number` if it is among those that were found, and the file has not changed since; false otherwise.
    /// That takes no longer for the millionth line.
    bool FetchKnown(const std::string& path, int number, std::string& line);

 private:
    std::optional<SystemFile> Look(const std::string& path);
    void Forget();
    bool All() const { return state_ && scanned_ == state_->size; }
    int Lines() const;
    bool FindLines(const SystemFile& file, const std::string& path, const MayGoOn& mayGoOn);
    void FindIn(const char* from, const char* end);
    void NotePlace();
    bool Take(const SystemFile& file, const std::string& path, int number, std::string& line) const;

    std::optional<FileState> state_;
    std::uint64_t edition_ = 0;
    // The beginnings of lines 1, 1 + step_, 1 + 2 step_ and so on; step_ is a power of two.
    std::vector<std::uint64_t> places_;
    std::int64_t step_ = 1;
    std::int64_t ended_ = 0;       // lines whose end was found
    std::uint64_t lineStart_ = 0;  // where the line behind the last of these begins
    std::uint64_t scanned_ = 0;    // the bytes that were looked at
};

/// The puzzle of line `number`; nothing when there is no such line, it is no record or the file cannot be read.
std::optional<Puzzle> ReadPuzzle(LineIndex& index, const std::string& path, int number);

/// The number of the last line up to `number` that is a whole puzzle record; 0 when there is none, or when the file
/// cannot be read.
int LastPuzzleUpTo(LineIndex& index, const std::string& path, int number);

}  // namespace tidewalk
