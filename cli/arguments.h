// SPDX-License-Identifier: MIT
// The arguments of the console program.
#pragma once

#include <string>
#include <vector>

#include "cli/console.h"

namespace tidewalk {

/// Runs the program with these arguments, the program's name not among them, and returns its exit code. Nothing is
/// thrown.
int RunCommandLine(Console& console, std::vector<std::string> arguments);

}  // namespace tidewalk
