// SPDX-License-Identifier: MIT
// The entry of libFuzzer; which reader is fed is decided by the build.
#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidewalk::fuzz::TIDEWALK_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}
