// SPDX-License-Identifier: MIT
// Reading text line by line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace tidewalk {

/// The end of every line that is written. Readers take a lone LF for one too.
inline constexpr std::string_view kLineEnd = "\r\n";

/// The three bytes that some editors put before UTF-8 text.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// What is longer is no line of text but a disk image or the like, and would only fill the memory.
inline constexpr std::size_t kLongestLine = 64 * 1024 * 1024;

/// Takes lines, one after the other. Their end is CR LF or LF, the last one may have none. A byte order mark at the
/// start is no text and is passed over.
class LineReader {
 public:
    /// Opens a file. Throws FileError when the system refuses or it is no regular file.
    explicit LineReader(const std::string& path);
    /// Reads from `source`, which has to live as long and which waits no longer than for its next bytes; messages call
    /// it `name`. Its first byte is that at place `from` of the text.
    LineReader(std::streambuf& source, std::string name, std::uint64_t from = 0);
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    /// Takes the next line into `line`, without its end; of one that is longer than `most` bytes only so many. False,
    /// with `line` empty, when there is none. Throws FileError when reading fails or a line does not end.
    bool Next(std::string& line, std::size_t most = kLongestLine);

    /// Passes over the next line; false when there is none.
    bool Skip();

    /// How many bytes of the text were taken, the line that comes next beginning there.
    std::uint64_t Position() const { return position_; }

    /// Where the line that was taken last begins, in bytes from the file's beginning.
    std::uint64_t LineStart() const { return lineStart_; }

    /// True when the line that was taken last had an end.
    bool LineEnded() const { return lineEnded_; }

 private:
    bool Fill();
    bool Take(std::string* line, std::size_t most);
    void SkipByteOrderMark();

    std::filebuf file_;
    std::streambuf& source_;
    std::string name_;
    // What was read and not yet handed out: buffer_[at_, filled_).
    std::vector<char> buffer_;
    std::size_t at_ = 0;
    std::size_t filled_ = 0;
    std::uint64_t position_ = 0;
    std::uint64_t lineStart_ = 0;
    bool lineEnded_ = true;
};

}  // namespace tidewalk
