// SPDX-License-Identifier: MIT
// What has to be asked before a file is replaced as a whole.
#pragma once

#include <QString>

namespace tidewalk {

/// "" when a file may appear at `path` or replace the one that is there; else the reason, for the player. A folder, a
/// pipe or a device is not replaced: a file renamed over it would take its place for every other program.
QString WhyNotReplaceable(const QString& path);

}  // namespace tidewalk
