// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_file_system.h"

#include "platform/disk_sync.h"
#include "platform/qt_text.h"
#include "platform/write_in_place.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_UNIX
#include <sys/stat.h>

#include <unistd.h>
#endif

namespace kitwright {

namespace {

/// The path as the system takes it; empty for one with a NUL, which no file can bear. A backslash separates folders,
/// unless a file or folder bears the name as it stands.
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

std::string reason(const QString& path, const QString& error)
{
    return fromQt(path + QLatin1String(": ") + error);
}

/// See `FileSystem::realFolder`.
Outcome<QString> folderOf(const QString& path)
{
    const QString folder = path.isEmpty() ? QString() : QFileInfo(QFileInfo(path).path()).canonicalFilePath();
    return folder.isEmpty() ? Outcome<QString>::failed(reason(path, qt_error_string(ENOENT))) : folder;
}

/// See `FileSystem::realPath`. Each link is read by itself, and from the folder that it really lies in: only there does
/// a ".." in it mean what it means to the system.
Outcome<QString> fileBehind(const QString& path)
{
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
            return Outcome<QString>::failed(reason(path, QString::fromStdString(error.message())));
        target = dir.filePath(QFileInfo(next).filePath());
    }
    return Outcome<QString>::failed(reason(path, qt_error_string(ELOOP)));
}

/// Gives the new file the owner and the modes of the one that it replaces, as far as the system lets us.
void takeOwnership([[maybe_unused]] const QSaveFile& file, [[maybe_unused]] const QString& replaced)
{
#ifdef Q_OS_UNIX
    struct stat before = {};
    if (::stat(QFile::encodeName(replaced).constData(), &before) != 0)
        return;
    // The group alone may be given where the owner may not.
    if (::fchown(file.handle(), before.st_uid, before.st_gid) != 0
        && ::fchown(file.handle(), static_cast<uid_t>(-1), before.st_gid) != 0) {
        return;
    }
    [[maybe_unused]] const int kept = ::fchmod(file.handle(), before.st_mode & 07777);
#endif
}

/// Why the device has just failed. The library knows no reason for some failures of the system, which tells its own.
QString lastError(const QIODevice& device)
{
    return errno != 0 ? qt_error_string(errno) : device.errorString();
}

/// Brings what was written to the disk; an error text, empty on success. The library's own commit overlooks a disk
/// that has no room for the last bytes, and would put a cut file in the old one's place.
QString reachDisk(QSaveFile& file)
{
    errno = 0;
    return file.flush() ? syncToDisk(file) : lastError(file);
}

/// Writes a file whole or not at all. `content` writes it to the device it is given and returns an error text, empty
/// on success.
template <class Content>
Failure replaceFile(const QString& path, const Content& content)
{
    const QFileInfo before(path);
    if (before.exists() && !before.isFile())
        return reason(path, QStringLiteral("not a regular file"));

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return reason(path, file.errorString());
    takeOwnership(file, path);
    QString error = content(file);
    if (error.isEmpty())
        error = reachDisk(file);
    if (!error.isEmpty()) {
        file.cancelWriting();
        return reason(path, error);
    }
    if (!file.commit())
        return reason(path, file.errorString());
    return {};
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

QString writeAll(QIODevice& device, std::string_view bytes)
{
    const auto size = static_cast<qint64>(bytes.size());
    errno = 0;
    return device.write(bytes.data(), size) == size ? QString() : lastError(device);
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
    const QFileInfo info(nativePath(folder));
    if (!info.isDir() || !info.isReadable() || !info.isExecutable())
        return Outcome<QStringList>::failed(
            reason(info.filePath(), QStringLiteral("not a folder that can be read")));
    QStringList names;
    std::error_code error;
    using Entries = std::filesystem::directory_iterator;
    for (Entries entry(info.filesystemFilePath(), error); !error && entry != Entries(); entry.increment(error)) {
        if (const QFileInfo found(entry->path()); wanted(found))
            names << found.fileName();
    }
    if (error)
        return Outcome<QStringList>::failed(reason(info.filePath(), QString::fromStdString(error.message())));
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
        return Bytes::failed(reason(name, QStringLiteral("not a file")));
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return Bytes::failed(reason(name, file.errorString()));

    const auto size = static_cast<std::size_t>(file.size());
    std::string bytes;
    std::size_t read = 0;
    for (qint64 got = 1; got != 0; read += static_cast<std::size_t>(got)) {
        if (std::max(read, size) > largestFile)
            return Bytes::failed(reason(name, QStringLiteral("too large a file")));
        // One more than there should be, to see the end. Some systems tell no size.
        if (read == bytes.size())
            bytes.resize(std::max(size, 2 * read + 4'095) + 1);
        got = file.read(bytes.data() + read, static_cast<qint64>(bytes.size() - read));
        if (got < 0)
            return Bytes::failed(reason(name, file.errorString()));
    }
    if (read < size)
        return Bytes::failed(reason(name, QStringLiteral("read only %1 of %2 bytes").arg(read).arg(size)));
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
        return error.isEmpty() ? Failure() : Failure(reason(*target, error));
    }
    return replaceFile(*target, [&](QIODevice& device) { return writeAll(device, bytes); });
}

Failure QtFileSystem::copyFile(const std::string& from, const std::string& to)
{
    const QString source = nativePath(from);
    if (!QFileInfo(source).isFile())
        return reason(source, QStringLiteral("not a file"));
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
        return reason(source, file.errorString());
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
