// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_file_system.h"

#include "platform/folder_entries.h"
#include "platform/native_path.h"
#include "platform/qt_text.h"
#include "platform/replacement_file.h"
#include "platform/write_in_place.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace kitwright {

namespace {

/// Writes a file whole or not at all. `content` writes it to the device it is given and returns an error text, empty
/// on success.
template <class Content>
Failure replaceFile(const QString& path, const Content& content)
{
    ReplacementFile file(path);
    if (const Failure failure = file.open())
        return failure;
    if (const QString error = content(file.device()); !error.isEmpty())
        return failureAt(path, error);
    return file.commit();
}

/// True for a file whose owner could not be given to a new one.
bool wouldChangeHands([[maybe_unused]] const QFileInfo& file)
{
#ifdef Q_OS_UNIX
    return ::geteuid() != 0 && file.ownerId() != ::geteuid();
#else
    return false;
#endif
}

/// True where a file can be written to, but none beside it that could take its place.
bool onlyInPlace(const QString& target)
{
    constexpr qsizetype longestName = 240; // Bytes; that of the new file is longer, and 255 are taken.
    const QFileInfo info(target);
    if (!info.isFile() || !info.isWritable())
        return false;
    return !QFileInfo(info.path()).isWritable() || wouldChangeHands(info)
        || QFile::encodeName(info.fileName()).size() > longestName;
}

QString copyAll(QFile& source, QIODevice& device)
{
    constexpr qint64 block = 1 << 20;
    while (!source.atEnd()) {
        const QByteArray bytes = source.read(block);
        if (bytes.isEmpty())
            return source.errorString();
        if (device.write(bytes) != bytes.size())
            return device.errorString();
    }
    return {};
}

bool isSameFile(const QString& left, const QString& right)
{
    const QString target = QFileInfo(right).canonicalFilePath();
    return !target.isEmpty() && QFileInfo(left).canonicalFilePath() == target;
}

Outcome<std::string> inUtf8(const Outcome<QString>& path)
{
    return path ? Outcome<std::string>(fromQt(*path)) : Outcome<std::string>::failed(path.reason());
}

/// The names of those entries of a folder that are wanted, in the order in which the system lists them.
template <class Wanted>
Outcome<QStringList> list(const std::string& folder, const Wanted& wanted)
{
    QStringList names;
    const Failure failure = eachEntry(nativePath(folder), [&](const QFileInfo& entry) {
        if (wanted(entry))
            names << entry.fileName();
    });
    if (failure)
        return Outcome<QStringList>::failed(*failure);
    return names;
}

Outcome<std::vector<std::string>> utf8Names(const Outcome<QStringList>& names)
{
    using Names = Outcome<std::vector<std::string>>;
    if (!names)
        return Names::failed(names.reason());
    std::vector<std::string> result;
    for (const QString& name : *names)
        result.push_back(fromQt(name));
    return result;
}

} // namespace

bool QtFileSystem::fileExists(const std::string& path) const
{
    return !path.empty() && QFileInfo(nativePath(path)).isFile();
}

Outcome<std::string> QtFileSystem::realPath(const std::string& path) const
{
    return inUtf8(fileBehind(nativePath(path)));
}

Outcome<std::string> QtFileSystem::realFolder(const std::string& path) const
{
    return inUtf8(folderOf(nativePath(path)));
}

Outcome<std::string> QtFileSystem::readBytes(const std::string& path) const
{
    using Bytes = Outcome<std::string>;
    const QString name = nativePath(path);
    if (!QFileInfo(name).isFile())
        return Bytes::failed(failureAt(name, QStringLiteral("not a file")));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return Bytes::failed(failureAt(name, file.errorString()));

    const auto size = static_cast<std::size_t>(file.size());
    std::string bytes;
    std::size_t read = 0;
    for (qint64 got = 1; got != 0; read += static_cast<std::size_t>(got)) {
        if (std::max(read, size) > largestFile)
            return Bytes::failed(failureAt(name, QStringLiteral("too large a file")));
        // One more than there should be, to see the end. Some systems tell no size.
        if (read == bytes.size())
            bytes.resize(std::max(size, 2 * read + 4'095) + 1);
        got = file.read(bytes.data() + read, static_cast<qint64>(bytes.size() - read));
        if (got < 0)
            return Bytes::failed(failureAt(name, file.errorString()));
    }
    if (read < size)
        return Bytes::failed(failureAt(name, QStringLiteral("read only %1 of %2 bytes").arg(read).arg(size)));
    bytes.resize(read);
    return bytes;
}

Failure QtFileSystem::writeBytes(const std::string& path, std::string_view bytes)
{
    const Outcome<QString> target = fileBehind(nativePath(path));
    if (!target)
        return target.reason();
    if (onlyInPlace(*target)) {
        const QString error = writeInPlace(*target, bytes);
        return error.isEmpty() ? Failure() : Failure(failureAt(*target, error));
    }
    return replaceFile(*target, [&](QIODevice& device) { return writeAll(device, bytes); });
}

Failure QtFileSystem::copyFile(const std::string& from, const std::string& to)
{
    const QString source = nativePath(from);
    if (!QFileInfo(source).isFile())
        return failureAt(source, QStringLiteral("not a file"));
    const Outcome<QString> target = fileBehind(nativePath(to));
    if (!target)
        return target.reason();
    if (isSameFile(source, *target))
        return {};
    if (onlyInPlace(*target)) {
        const Outcome<std::string> bytes = readBytes(from);
        return bytes ? writeBytes(to, *bytes) : Failure(bytes.reason());
    }
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        return failureAt(source, file.errorString());
    return replaceFile(*target, [&](QIODevice& device) { return copyAll(file, device); });
}

Outcome<std::vector<std::string>> QtFileSystem::listFiles(const std::string& folder) const
{
    return utf8Names(list(folder, [](const QFileInfo& entry) { return entry.isFile(); }));
}

Outcome<std::vector<std::string>> QtFileSystem::listFolders(const std::string& folder) const
{
    Outcome<QStringList> names =
        list(folder, [](const QFileInfo& entry) { return entry.isDir() && !entry.isHidden(); });
    if (names)
        (*names).sort(Qt::CaseInsensitive);
    return utf8Names(names);
}

} // namespace kitwright
