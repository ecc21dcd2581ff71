// SPDX-License-Identifier: MIT
#include "fuzz/scratch.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/invariants.h"

namespace tidewalk::fuzz {

namespace {

namespace fs = std::filesystem;

/// The folder goes with the process.
struct ProcessFolder {
    ProcessFolder() {
        const auto unique = std::chrono::steady_clock::now().time_since_epoch().count();
        // In memory where that is possible: thousands of files a second are written here.
        const fs::path parent = fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path();
        path = parent / ("tidewalk-fuzz-" + std::to_string(unique));
        fs::create_directories(path);
    }
    ~ProcessFolder() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    fs::path path;
};

const fs::path& Folder() {
    static const ProcessFolder folder;
    return folder.path;
}

}  // namespace

Scratch::Scratch() : folder_(Folder().string() + "/"), game_(std::make_unique<HeadlessGame>()) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
        fs::remove_all(entry.path());
    game_->AppFolder = folder_;
    game_->ColourListPath = folder_ + "all.col";
    game_->random.UseSeed(1);
}

std::string Scratch::Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
    return Path(name);
}

std::string Scratch::Read(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(Path(name), std::ios::binary).rdbuf();
    return bytes.str();
}

void Demand(bool holds, const std::string& text) {
    if (holds) return;
    std::fprintf(stderr, "%s\n", text.c_str());
    std::abort();
}

void DemandWhole(const Game& game) {
    const std::string wrong = test::CheckInvariants(game);
    Demand(wrong.empty(), wrong);
}

}  // namespace tidewalk::fuzz
