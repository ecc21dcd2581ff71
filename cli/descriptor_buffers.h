// SPDX-License-Identifier: MIT
// Stream buffers over the system's file descriptors that a signal can stop while they wait.
#pragma once

#include <array>
#include <atomic>
#include <streambuf>
#include <string>
#include <vector>

namespace tidewalk {

/// Reads from a descriptor. Being asked to stop looks like the end of what there is to read.
class InputDescriptor final : public std::streambuf {
 public:
    /// Takes a descriptor that somebody else closes.
    InputDescriptor(int descriptor, const std::atomic<int>& stopSignal);
    /// Opens a file. Throws FileError when the system refuses or it is a folder.
    InputDescriptor(const std::string& path, const std::atomic<int>& stopSignal);
    ~InputDescriptor() override;
    InputDescriptor(const InputDescriptor&) = delete;
    InputDescriptor& operator=(const InputDescriptor&) = delete;

    /// How many bytes the file holds, or -1 for what is no file.
    long long Size() const;

 protected:
    /// Throws FileError when the system cannot read.
    int_type underflow() override;

 private:
    std::string name_;
    int descriptor_;
    bool owned_;
    const std::atomic<int>& stopSignal_;
    std::vector<char> buffer_;
};

/// Writes to a descriptor. A signal does not cut off what was handed over, unless nobody takes it.
class OutputDescriptor final : public std::streambuf {
 public:
    OutputDescriptor(int descriptor, const std::atomic<int>& stopSignal);
    OutputDescriptor(const OutputDescriptor&) = delete;
    OutputDescriptor& operator=(const OutputDescriptor&) = delete;

    /// Why writing failed, as the system's number; 0 for no failure.
    int Failure() const { return failure_; }

 protected:
    int_type overflow(int_type character) override;
    int sync() override;

 private:
    bool WaitForRoom() const;
    bool Flush();

    int descriptor_;
    const std::atomic<int>& stopSignal_;
    int failure_ = 0;
    std::array<char, 4096> buffer_{};
};

}  // namespace tidewalk
