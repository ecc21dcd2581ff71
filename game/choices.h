// SPDX-License-Identifier: MIT
// The seam of choices that are remembered beyond the configuration file.
#pragma once

#include <string>
#include <string_view>

namespace tidewalk {

/// The player's further choices, kept from run to run by name.
class Choices {
 public:
    virtual ~Choices() = default;

    /// What was kept under the name; `otherwise` when nothing was.
    virtual std::string Get(std::string_view name, const std::string& otherwise) const = 0;

    /// Keeps the value at once. One that cannot be written is forgotten at the end of the run.
    virtual void Set(std::string_view name, const std::string& value) = 0;

    /// Takes in what other windows have kept since.
    virtual void Refresh() = 0;
};

}  // namespace tidewalk
