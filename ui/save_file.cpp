// SPDX-License-Identifier: MIT
#include "ui/save_file.h"

#include <QFileInfo>

namespace tidewalk {

QString WhyNotReplaceable(const QString& path) {
    const QFileInfo info(path);
    return !info.exists() || info.isFile() ? QString() : QString("This is no ordinary file");
}

QString FlushFile(QFileDevice& file) {
    // Where a write ends half way, the system has its reason ready for the next one only.
    if (!file.flush()) file.flush();
    return file.error() == QFileDevice::NoError ? "" : file.errorString();
}

QString CommitFile(QSaveFile& file) {
    // Committing would write what is buffered without a look at what becomes of it.
    QString reason = FlushFile(file);
    if (!reason.isEmpty() || file.commit()) return reason;
    return file.errorString();
}

QString WriteFile(const QString& path, const QByteArray& bytes) {
    if (QString reason = WhyNotReplaceable(path); !reason.isEmpty()) return reason;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 more = file.write(bytes.constData() + written, bytes.size() - written);
        if (more <= 0) return file.errorString();
        written += more;
    }
    return CommitFile(file);
}

}  // namespace tidewalk
