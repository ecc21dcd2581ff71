// SPDX-License-Identifier: MIT
// Every input that a fuzzer starts from, or has found a fault with, in the ordinary builds.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fuzz/targets.h"

namespace tidewalk::fuzz {

/// For the name of the test, which would hold addresses otherwise.
void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

}  // namespace tidewalk::fuzz

namespace tidewalk::test {
namespace {

class Corpus : public testing::TestWithParam<fuzz::Target> {};

TEST_P(Corpus, EveryInputIsReadOrRefused) {
    int fed = 0;
    const std::filesystem::path folder = std::filesystem::path(TIDEWALK_CORPUS_DIR) / GetParam().name;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ostringstream bytes;
        bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        // A target ends the process when something is wrong; this names the input then.
        std::fprintf(stderr, "%s\n", entry.path().filename().string().c_str());
        GetParam().feed(bytes.str());
        ++fed;
    }
    EXPECT_GE(fed, 3);
}

INSTANTIATE_TEST_SUITE_P(Readers, Corpus, testing::ValuesIn(fuzz::kTargets),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace
}  // namespace tidewalk::test
