// SPDX-License-Identifier: MIT
// The windowed program from its command line to its exit code.
#pragma once

namespace tidewalk {

/// Runs the program. Returns 0, 1 when it could not start or do what it was asked, 2 for wrong usage.
int RunApplication(int argc, char** argv);

}  // namespace tidewalk
