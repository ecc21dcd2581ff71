// SPDX-License-Identifier: MIT
#include "ui/file_picker.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>

namespace tidewalk {

QString FileFilter(const std::string& patterns, const std::string& patternName) {
    const QString named =
        QString::fromStdString(patternName) + " (" + QString::fromStdString(patterns).replace(';', ' ') + ")";
    return named + ";;" + QFileDialog::tr("All files") + " (*)";
}

std::string QtFilePicker::Pick(const FileRequest& request) {
    if (handlers_.game() != nullptr && handlers_.game()->job.Ending()) return "";
    QWidget* const active = QApplication::activeModalWidget();
    QFileDialog dialog(active != nullptr ? active : mainWindow_.data(), QString::fromStdString(request.title),
                       QFile::decodeName(request.startFolder.c_str()),
                       FileFilter(request.patterns, request.patternName));
    const bool open = request.mode == FileRequest::Mode::Open;
    dialog.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    dialog.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // Overwriting is a question of the commands themselves, who ask about the name with its ending.
    dialog.setDefaultSuffix(QString::fromStdString(request.ending));
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::DontUseNativeDialog, QGuiApplication::platformName() == "offscreen");
    if (!request.name.empty()) dialog.selectFile(QFile::decodeName(request.name.c_str()));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return "";
    return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

}  // namespace tidewalk
