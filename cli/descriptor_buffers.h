// SPDX-License-Identifier: MIT
// Stream buffers over the system's file descriptors that a signal can stop while they wait.
#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <optional>
#include <streambuf>
#include <string>
#include <vector>

#include "cli/console.h"

namespace tidewalk {

/// The descriptor of this run that `path` stands for, as "/dev/stdout", "/dev/fd/3" and what a shell makes of "<(...)"
/// do; nothing for other paths.
std::optional<int> OwnDescriptor(const std::string& path);

/// True for what is read and written as it comes, and has no beginning to go back to: the standard input or output, a
/// descriptor of this run, a pipe, or a device of characters.
bool IsStream(const std::string& path);

/// True when what is read and what is written are one file, so that the one would be lost by the other. "-" is the
/// standard input or output here, too.
bool AreOneFile(const std::string& input, const std::string& output);

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

/// What is to be read for a path: the file there, or for "-" the console's input.
class Input {
 public:
    /// Throws FileError when the file cannot be opened.
    Input(Console& console, const std::string& path);

    std::streambuf& Buffer() const { return opened_ ? *opened_ : *console_.in.rdbuf(); }

    /// How many bytes there are, or -1 where that is not known.
    long long Size() const { return opened_ ? opened_->Size() : -1; }

 private:
    Console& console_;
    std::unique_ptr<InputDescriptor> opened_;
};

/// Writes to a descriptor. A signal does not cut off what was handed over, unless nobody takes it.
class OutputDescriptor final : public std::streambuf {
 public:
    /// Takes a descriptor that somebody else closes.
    OutputDescriptor(int descriptor, const std::atomic<int>& stopSignal);
    /// Opens a stream that is there. Waits until somebody reads from a named pipe. Throws FileError when the system
    /// refuses, or when it was asked to stop meanwhile.
    OutputDescriptor(const std::string& path, const std::atomic<int>& stopSignal);
    ~OutputDescriptor() override;
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
    bool owned_;
    const std::atomic<int>& stopSignal_;
    int failure_ = 0;
    std::array<char, 4096> buffer_{};
};

}  // namespace tidewalk
