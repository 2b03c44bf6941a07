// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/native_path.h"

#include "platform/qt_text.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace kitwright {

QString nativePath(const std::string& path)
{
    if (path.find('\0') != std::string::npos)
        return {};
    QString native;
    for (const QString& name : toQt(path).split(QLatin1Char('/'))) {
        // The start of the name that stands on the disk with its backslashes, up to one of them or all of it.
        qsizetype length = name.size();
        while (length > 0 && name.lastIndexOf(QLatin1Char('\\'), length - 1) >= 0
               && !QFileInfo::exists(native + name.left(length)))
            length = name.lastIndexOf(QLatin1Char('\\'), length - 1);
        native +=
            name.left(length) + name.mid(length).replace(QLatin1Char('\\'), QLatin1Char('/')) + QLatin1Char('/');
    }
    native.chop(1);
    return native;
}

std::string failureAt(const QString& path, const QString& error)
{
    return fromQt(path + QLatin1String(": ") + error);
}

Outcome<QString> folderOf(const QString& path)
{
    const QString folder = path.isEmpty() ? QString() : QFileInfo(QFileInfo(path).path()).canonicalFilePath();
    return folder.isEmpty() ? Outcome<QString>::failed(failureAt(path, qt_error_string(ENOENT))) : folder;
}

Outcome<QString> fileBehind(const QString& path)
{
    // Each link is read by itself, and from the folder that it really lies in: only there does a ".." in it mean what it
    // means to the system.
    constexpr int maxLinks = 40; // As many as the kernel follows; more is a circle.
    QString target = path;
    for (int links = 0; links < maxLinks; ++links) {
        const Outcome<QString> folder = folderOf(target);
        if (!folder)
            return folder;
        const QDir dir(*folder);
        target = dir.filePath(QFileInfo(target).fileName());
        if (!QFileInfo(target).isSymbolicLink())
            return target;
        std::error_code error;
        const std::filesystem::path next =
            std::filesystem::read_symlink(QFileInfo(target).filesystemFilePath(), error);
        if (error)
            return Outcome<QString>::failed(failureAt(path, QString::fromStdString(error.message())));
        target = dir.filePath(QFileInfo(next).filePath());
    }
    return Outcome<QString>::failed(failureAt(path, qt_error_string(ELOOP)));
}

} // namespace kitwright
