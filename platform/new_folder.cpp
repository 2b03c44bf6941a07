// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/new_folder.h"

#include "platform/folder_entries.h"
#include "platform/native_path.h"
#include "platform/qt_text.h"
#include "platform/replacement_file.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace kitwright {

namespace {

namespace fs = std::filesystem;

fs::path diskPath(const QString& path)
{
    return QFileInfo(path).filesystemFilePath();
}

Failure failureAt(const QString& path, const std::error_code& error)
{
    return kitwright::failureAt(path, QString::fromStdString(error.message()));
}

class FileSink final : public ByteSink {
public:
    explicit FileSink(QFile& file) : m_file(file) {}

    Failure write(std::string_view bytes) override
    {
        const QString error = writeAll(m_file, bytes);
        return error.isEmpty() ? Failure() : kitwright::failureAt(m_file.fileName(), error);
    }

private:
    QFile& m_file;
};

class GrowingFolder final : public NewFolder {
public:
    GrowingFolder(const QString& growing, const QString& place) : m_growing(growing), m_place(place) {}
    GrowingFolder(const GrowingFolder&) = delete;
    GrowingFolder& operator=(const GrowingFolder&) = delete;

    ~GrowingFolder() override
    {
        std::error_code ignored;
        if (!m_committed)
            fs::remove_all(diskPath(m_growing), ignored);
    }

    Failure addFile(const std::string& name, std::int64_t modified, const FileContent& content) override
    {
        QFile file(m_growing + QLatin1Char('/') + toQt(name));
        const QString folder = QFileInfo(file.fileName()).path();
        std::error_code error;
        fs::create_directories(diskPath(folder), error);
        if (error)
            return failureAt(folder, error);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            return kitwright::failureAt(file.fileName(), file.errorString());
        FileSink sink(file);
        if (const Failure failure = content(sink))
            return failure;
        if (modified != 0
            && !file.setFileTime(QDateTime::fromSecsSinceEpoch(modified), QFileDevice::FileModificationTime))
            return kitwright::failureAt(file.fileName(), file.errorString());
        return {};
    }

    Failure commit() override
    {
        std::error_code error;
#ifdef Q_OS_WIN
        fs::remove(diskPath(m_place), error);
#endif
        fs::rename(diskPath(m_growing), diskPath(m_place), error);
        if (error)
            return failureAt(m_place, error);
        m_committed = true;
        return {};
    }

private:
    QString m_growing; ///< Where it is until it is complete.
    QString m_place;
    bool m_committed = false;
};

/// Where a folder would really lie; a failure when something is there that it must not replace.
Outcome<QString> freePlace(const QString& path)
{
    using Place = Outcome<QString>;
    const QFileInfo info(QDir::cleanPath(path));
    if (!info.exists() && !info.isSymbolicLink()) {
        const Outcome<QString> parent = folderOf(info.filePath());
        return parent ? QDir(*parent).filePath(info.fileName()) : parent;
    }
    const QString place = info.canonicalFilePath();
    bool isEmpty = true;
    if (const Failure failure = eachEntry(place, [&](const QFileInfo&) { isEmpty = false; }))
        return Place::failed(*failure);
    if (!isEmpty)
        return Place::failed(kitwright::failureAt(path, QStringLiteral("the folder is not empty")));
    // Whoever stands in a folder that is replaced would look at the old one.
    if (place == QDir::current().canonicalPath())
        return Place::failed(kitwright::failureAt(path, QStringLiteral("is the current folder; name a new one")));
    return place;
}

} // namespace

Outcome<std::unique_ptr<NewFolder>> newFolderAt(const QString& path)
{
    using Made = Outcome<std::unique_ptr<NewFolder>>;
    const Outcome<QString> place = freePlace(path);
    if (!place)
        return Made::failed(place.reason());
    constexpr int mostLeftovers = 100; // Of earlier runs that were killed.
    std::error_code error;
    for (int number = 1; number <= mostLeftovers; ++number) {
        const QString suffix = number == 1 ? QString() : QString::number(number);
        const QString growing = *place + QLatin1String(".unpacking") + suffix;
        if (fs::create_directory(diskPath(growing), error))
            return Made(std::make_unique<GrowingFolder>(growing, *place));
        if (error)
            break;
    }
    return Made::failed(*failureAt(*place, error ? error : std::make_error_code(std::errc::file_exists)));
}

} // namespace kitwright
