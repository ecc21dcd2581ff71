// SPDX-License-Identifier: MIT
#include "model/put_aside.h"

#include <filesystem>

#include "model/numbers.h"

namespace tidewalk {

bool PutAside(const std::string& path) {
    constexpr int kMost = 1000;
    const std::filesystem::path file(path);
    std::error_code error;
    for (int number = 1; number < kMost; ++number) {
        std::filesystem::path aside = file;
        aside.replace_filename(file.stem().string() + "-" + NumText(number) + file.extension().string());
        if (std::filesystem::exists(aside, error)) continue;
        std::filesystem::rename(file, aside, error);
        return !error;
    }
    return false;
}

}  // namespace tidewalk
