// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/replacement_file.h"

#include "platform/disk_sync.h"
#include "platform/native_path.h"

#include <QFileInfo>

#include <cerrno>

#ifdef Q_OS_UNIX
#include <sys/stat.h>

#include <unistd.h>
#endif

namespace kitwright {

namespace {

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

} // namespace

QString writeAll(QIODevice& device, std::string_view bytes)
{
    const auto size = static_cast<qint64>(bytes.size());
    errno = 0;
    return device.write(bytes.data(), size) == size ? QString() : lastError(device);
}

Failure ReplacementFile::open()
{
    const QFileInfo before(m_file.fileName());
    if (before.exists() && !before.isFile())
        return failureAt(m_file.fileName(), QStringLiteral("not a regular file"));
    if (!m_file.open(QIODevice::WriteOnly))
        return failureAt(m_file.fileName(), m_file.errorString());
    takeOwnership(m_file, m_file.fileName());
    return {};
}

Failure ReplacementFile::commit()
{
    if (const QString error = reachDisk(m_file); !error.isEmpty()) {
        m_file.cancelWriting();
        return failureAt(m_file.fileName(), error);
    }
    if (!m_file.commit())
        return failureAt(m_file.fileName(), m_file.errorString());
    return {};
}

} // namespace kitwright
