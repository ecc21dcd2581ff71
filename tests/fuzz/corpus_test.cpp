// SPDX-License-Identifier: MIT
// Every input that a fuzzer starts from, or has found a fault with, in the ordinary builds. Which readers are fed is
// decided by the build.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fuzz/targets.h"

namespace tidewalk::test {
namespace {

TEST(Readers, TakeOrRefuseEveryInput) {
    for (const fuzz::Target& target : fuzz::TIDEWALK_TARGETS) {
        int fed = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::string(TIDEWALK_CORPUS_DIR "/") + target.name)) {
            std::ostringstream bytes;
            bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            // A target ends the process when something is wrong; this names the input then.
            std::fprintf(stderr, "%s\n", entry.path().c_str());
            target.feed(bytes.str());
            ++fed;
        }
        EXPECT_GE(fed, 3) << target.name;
    }
}

}  // namespace
}  // namespace tidewalk::test
