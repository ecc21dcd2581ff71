// SPDX-License-Identifier: MIT
#include "cli/temporary_files.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "cli/descriptor_buffers.h"
#include "model/file_error.h"

namespace tidewalk {

namespace {

/// Copies until the end, until the run is to stop, or until nobody takes any more.
void Copy(Console& console, std::streambuf& from, std::ostream& to) {
    std::array<char, 4096> piece{};
    while (to && !console.Stopped()) {
        const std::streamsize count = from.sgetn(piece.data(), piece.size());
        if (count <= 0) return;
        to.write(piece.data(), count);
    }
}

}  // namespace

TemporaryFile::TemporaryFile() {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error) folder = "/tmp";
    path_ = (folder / "tidewalk-XXXXXX").string();
    const int descriptor = mkstemp(path_.data());
    if (descriptor < 0) Fail(path_, errno);
    close(descriptor);
}

TemporaryFile::~TemporaryFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

InputFile::InputFile(Console& console, const std::string& path) : path_(path) {
    if (path != kStandard) {
        // Opening it says what is wrong with it better than the routines that read it do.
        const InputDescriptor file(path, console.stopSignal);
        return;
    }
    path_ = copy_.emplace().Path();
    errno = 0;
    std::ofstream file(path_, std::ios::binary);
    Copy(console, *console.in.rdbuf(), file);
    file.close();
    if (!file) Fail(path_, errno);
}

void CopyToOutput(Console& console, const std::string& path) {
    InputDescriptor file(path, console.stopSignal);
    Copy(console, file, console.out);
    console.out << std::flush;
}

}  // namespace tidewalk
