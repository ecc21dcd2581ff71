// SPDX-License-Identifier: MIT
// Replacing a file as a whole.
#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace tidewalk {

/// "" when a file may appear at `path` or replace the one that is there; else the reason, for the player. A folder, a
/// pipe or a device is not replaced: a file renamed over it would take its place for every other program.
QString WhyNotReplaceable(const QString& path);

/// What is buffered of the file goes to the disk. "" when that is done; else the system's reason, for the player.
QString FlushFile(QFileDevice& file);

/// Puts a file that was written in its place, if all of it could be. "" when that is done; else the system's reason,
/// for the player, and what is there stays as it was.
QString CommitFile(QSaveFile& file);

/// Makes `bytes` the content of the file at `path`, which appears or is replaced. "" or a reason as above.
QString WriteFile(const QString& path, const QByteArray& bytes);

}  // namespace tidewalk
