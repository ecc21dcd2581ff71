// SPDX-License-Identifier: MIT
#include "ui/app_folder.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "model/system_file.h"
#include "ui/save_file.h"

namespace tidewalk {

namespace {

constexpr const char* kShippedList = "shipped.txt";
/// Lies in a folder whose first start has not come to its end.
constexpr const char* kUnfinished = "/tide.new";

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The line of the list of what shipped for a file of this name and content.
QByteArray ShippedLine(const QString& name, const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() + "  " + name.toUtf8();
}

/// Puts a copy of the file at `target`, which has another content or is not there. The installed file may be for
/// reading only; the player's own copy is to be written.
void Copy(const QByteArray& bytes, const QString& target) {
    QDir().mkpath(QFileInfo(target).path());
    WriteFile(target, bytes);
}

/// Copies the files that `to` lacks, and those that are there as they once shipped. A folder of pictures for buttons is
/// of no use there.
void FillAndRenew(const QString& from, const QString& to) {
    const QDir source(from);
    const QList<QByteArray> shipped = BytesOf(source.filePath(kShippedList)).split('\n');
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString name = source.relativeFilePath(file);
        const QString target = to + "/" + name;
        if (name.startsWith("icons/") || name == kShippedList) continue;
        // Another program may be adding to the player's own copy; then it is no longer as it shipped.
        auto locked = SystemFile::Open(QFile::encodeName(target).toStdString(), SystemFile::Mode::Change);
        if (locked && !locked->TryLock()) continue;
        const QByteArray bytes = BytesOf(file);
        const QByteArray old = BytesOf(target);
        const bool unchanged = old != bytes && shipped.contains(ShippedLine(name, old));
        if (!QFileInfo::exists(target) || unchanged) Copy(bytes, target);
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
    QString folder = QDir::cleanPath(QDir(executableFolder).absoluteFilePath(installed));
    if (QFileInfo(folder).isDir()) return folder;
    return QDir::cleanPath(executableFolder + "/../share/tidewalk");
}

AppFolderChoice ChooseAppFolder(const std::optional<QString>& requested, const FolderPlaces& places) {
    if (requested) return RequestedFolder(*requested);
    const QString& own = places.executableFolder;
    if (QFileInfo::exists(own + "/all.col") && QFileInfo(own).isWritable()) return {own, {}};
    const QString& folder = places.userDataFolder;
    const bool isNew = !QFileInfo::exists(folder) || QFileInfo::exists(folder + kUnfinished);
    if (!QDir().mkpath(folder)) {
        return {{}, QCoreApplication::translate("AppFolder", "The folder %1 could not be made").arg(folder)};
    }
    if (isNew) QFile(folder + kUnfinished).open(QIODevice::WriteOnly);
    FillAndRenew(places.shareFolder, folder);
    return {QFileInfo(folder).absoluteFilePath(), {}, isNew};
}

void EndFirstStart(const AppFolderChoice& choice) {
    if (choice.isNew) QFile::remove(choice.folder + kUnfinished);
}

}  // namespace tidewalk
