// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/folder_entries.h"

#include "platform/native_path.h"

#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace kitwright {

Failure eachEntry(const QString& folder, const std::function<void(const QFileInfo&)>& visit)
{
    const QFileInfo info(folder);
    if (!info.isDir() || !info.isReadable() || !info.isExecutable())
        return failureAt(folder, QStringLiteral("not a folder that can be read"));
    std::error_code error;
    using Entries = std::filesystem::directory_iterator;
    for (Entries entry(info.filesystemFilePath(), error); !error && entry != Entries(); entry.increment(error))
        visit(QFileInfo(entry->path()));
    if (error)
        return failureAt(folder, QString::fromStdString(error.message()));
    return {};
}

} // namespace kitwright
