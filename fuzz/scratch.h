// SPDX-License-Identifier: MIT
// A game in a folder that holds the input.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "program/headless.h"

namespace tidewalk::fuzz {

/// A folder of this process, emptied for each input, and a new game that has it for its program folder.
class Scratch {
 public:
    Scratch();

    Game& game() { return *game_; }
    std::string Path(const std::string& name) const { return folder_ + name; }
    /// Writes the bytes and returns the file's path.
    std::string Write(const std::string& name, std::string_view bytes) const;
    std::string Read(const std::string& name) const;

 private:
    std::string folder_;
    std::unique_ptr<HeadlessGame> game_;
};

/// Ends the process with this text when `holds` is false, which a fuzzer takes for a find and a test for a failure.
void Demand(bool holds, const std::string& text);

/// Demands that the game is whole.
void DemandWhole(const Game& game);

}  // namespace tidewalk::fuzz
