// SPDX-License-Identifier: MIT
#include "ui/app_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>

namespace tidewalk {

namespace {

/// Copies the files that `to` lacks. A folder of pictures for buttons is of no use there.
void FillMissing(const QString& from, const QString& to) {
    const QDir source(from);
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString name = source.relativeFilePath(file);
        const QString target = to + "/" + name;
        if (name.startsWith("icons/") || QFileInfo::exists(target)) continue;
        QDir().mkpath(QFileInfo(target).path());
        // The installed file may be for reading only; the player's own copy is to be written.
        if (QFile::copy(file, target)) {
            QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner | QFile::WriteUser);
        }
    }
}

AppFolderChoice RequestedFolder(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.isDir()) return {{}, QCoreApplication::translate("AppFolder", "There is no folder %1").arg(folder)};
    return {info.absoluteFilePath(), {}};
}

}  // namespace

FolderPlaces SystemPlaces() {
    const QString executable = QCoreApplication::applicationDirPath();
    return {executable, QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/tidewalk",
            ShareFolder(executable, TIDEWALK_SHARE_FOLDER)};
}

QString ShareFolder(const QString& executableFolder, const QString& installed) {
    const QString folder = QDir::cleanPath(QDir(executableFolder).absoluteFilePath(installed));
    if (QFileInfo(folder).isDir()) return folder;
    return QDir::cleanPath(executableFolder + "/../share/tidewalk");
}

AppFolderChoice ChooseAppFolder(const std::optional<QString>& requested, const FolderPlaces& places) {
    if (requested) return RequestedFolder(*requested);
    const QString& own = places.executableFolder;
    if (QFileInfo::exists(own + "/all.col") && QFileInfo(own).isWritable()) return {own, {}};
    const QString& folder = places.userDataFolder;
    if (!QDir().mkpath(folder)) {
        return {{}, QCoreApplication::translate("AppFolder", "The folder %1 could not be made").arg(folder)};
    }
    FillMissing(places.shareFolder, folder);
    return {QFileInfo(folder).absoluteFilePath(), {}};
}

}  // namespace tidewalk
