// SPDX-License-Identifier: MIT
#include "cli/temporary_files.h"

#include <array>
#include <cerrno>
#include <filesystem>

#include "cli/descriptor_buffers.h"
#include "model/file_error.h"

namespace tidewalk {

namespace {

void Copy(std::streambuf& from, std::ostream& to, const MayGoOn& mayGoOn) {
    std::array<char, 4096> piece{};
    while (to && mayGoOn()) {
        const std::streamsize count = from.sgetn(piece.data(), piece.size());
        if (count <= 0) return;
        to.write(piece.data(), count);
    }
}

/// A copy of what the stream brings.
SystemFile CopyOf(Console& console, const std::string& path) {
    const Input input(console, path);
    SystemFile copy = TemporaryFile();
    FileOutput output(copy);
    std::ostream stream(&output);
    Copy(input.Buffer(), stream, UntilStopSignal(console));
    stream.flush();
    if (!stream) Fail("the copy of " + (path == kStandard ? "standard input" : path), output.Failure());
    return copy;
}

SystemFile OpenToRead(const std::string& path) {
    DemandReadable(path);
    auto file = SystemFile::Open(path, SystemFile::Mode::Read);
    if (!file) Fail(path, errno);
    return std::move(*file);
}

}  // namespace

SystemFile TemporaryFile() {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error) folder = "/tmp";
    auto file = SystemFile::MakeNameless(folder.string());
    if (!file) Fail(folder.string(), errno);
    return std::move(*file);
}

InputFile::InputFile(Console& console, const std::string& path)
    : file_(IsStream(path) ? CopyOf(console, path) : OpenToRead(path)),
      path_(IsStream(path) ? "/dev/fd/" + std::to_string(file_.Descriptor()) : path) {}

void CopyTo(std::ostream& out, const SystemFile& file, const std::string& name, const MayGoOn& mayGoOn) {
    FileInput input(file, name);
    Copy(input, out, mayGoOn);
    out << std::flush;
}

}  // namespace tidewalk
