// SPDX-License-Identifier: MIT
#include "model/line_reader.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "model/file_error.h"

namespace tidewalk {

namespace {

constexpr std::size_t kBufferBytes = 128 * 1024;

}  // namespace

LineReader::LineReader(const std::string& path) : source_(file_), name_(path), buffer_(kBufferBytes) {
    DemandReadable(path);
    // Without a buffer of its own the stream reads straight into ours.
    file_.pubsetbuf(nullptr, 0);
    errno = 0;
    if (file_.open(path, std::ios::in | std::ios::binary) == nullptr) Fail(path, errno);
}

LineReader::LineReader(std::streambuf& source, std::string name, std::uint64_t from)
    : source_(source), name_(std::move(name)), buffer_(kBufferBytes), position_(from) {}

bool LineReader::Fill() {
    using Traits = std::streambuf::traits_type;
    auto wanted = static_cast<std::streamsize>(buffer_.size());
    at_ = 0;
    filled_ = 0;
    errno = 0;
    try {
        if (&source_ != &file_) {
            // Whoever types lines wants them to be read before the buffer is full.
            if (Traits::eq_int_type(source_.sgetc(), Traits::eof())) return false;
            wanted = std::clamp<std::streamsize>(source_.in_avail(), 1, wanted);
        }
        filled_ = static_cast<std::size_t>(source_.sgetn(buffer_.data(), wanted));
    } catch (const std::ios_base::failure&) {
        Fail(name_, errno);
    }
    return filled_ > 0;
}

void LineReader::SkipByteOrderMark() {
    // A pipe may bring it in pieces.
    while (filled_ < kByteOrderMark.size() && kByteOrderMark.starts_with(std::string_view(buffer_.data(), filled_))) {
        const auto next = source_.sbumpc();
        if (std::streambuf::traits_type::eq_int_type(next, std::streambuf::traits_type::eof())) break;
        buffer_[filled_++] = std::streambuf::traits_type::to_char_type(next);
    }
    if (std::string_view(buffer_.data(), filled_).starts_with(kByteOrderMark)) {
        at_ = position_ = kByteOrderMark.size();
    }
}

bool LineReader::Take(std::string* line, std::size_t most) {
    if (line != nullptr) line->clear();
    if (at_ == filled_) {
        if (!Fill()) return false;
        if (position_ == 0) SkipByteOrderMark();
        if (at_ == filled_ && !Fill()) return false;
    }
    lineStart_ = position_;
    lineEnded_ = false;
    do {
        const char* const from = buffer_.data() + at_;
        const std::size_t left = filled_ - at_;
        const void* const end = std::memchr(from, '\n', left);
        lineEnded_ = end != nullptr;
        const std::size_t length = lineEnded_ ? static_cast<std::size_t>(static_cast<const char*>(end) - from) : left;
        at_ += length + (lineEnded_ ? 1 : 0);
        position_ += length + (lineEnded_ ? 1 : 0);
        if (line != nullptr) line->append(from, std::min(length, most - std::min(most, line->size())));
        if (line != nullptr && position_ - lineStart_ > kLongestLine) Fail(name_, EFBIG);
    } while (!lineEnded_ && Fill());
    if (line != nullptr && !line->empty() && line->back() == '\r') line->pop_back();
    return true;
}

bool LineReader::Next(std::string& line, std::size_t most) {
    return Take(&line, most);
}

bool LineReader::Skip() {
    return Take(nullptr, 0);
}

}  // namespace tidewalk
