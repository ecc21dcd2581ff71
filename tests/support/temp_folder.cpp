// SPDX-License-Identifier: MIT
#include "support/temp_folder.h"

#include <chrono>
#include <fstream>
#include <sstream>

#include "model/file_error.h"

namespace tidewalk::test {

namespace fs = std::filesystem;

TempFolder::TempFolder() : before_(fs::current_path()) {
    static int made = 0;
    const auto unique = std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
    path_ = fs::temp_directory_path() / ("tidewalk-test-" + unique + "-" + std::to_string(++made));
    fs::create_directories(path_);
    fs::current_path(path_);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::current_path(before_, ignored);
    fs::remove_all(path_, ignored);
}

std::string TempFolder::Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return Path(name);
}

std::string TempFolder::Read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(path_ / name, std::ios::binary).rdbuf();
    return bytes.str();
}

int TempFolder::Entries() const {
    return static_cast<int>(std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
}

std::string Refusal(const std::function<void()>& work) {
    try {
        work();
    } catch (const FileError& error) {
        return error.what();
    }
    return "done";
}

}  // namespace tidewalk::test
