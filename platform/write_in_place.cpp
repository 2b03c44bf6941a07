// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/write_in_place.h"

#include "platform/disk_sync.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <fcntl.h>
#endif

namespace kitwright {

namespace {

/// Claims room for `size` bytes, so that they cannot run out of it halfway; an error text, empty on success. The file
/// keeps its size: a program that is killed before it writes leaves it as it was.
QString claimRoom([[maybe_unused]] QFile& file, [[maybe_unused]] qint64 size)
{
#ifdef Q_OS_LINUX
    if (size > file.size() && ::fallocate(file.handle(), FALLOC_FL_KEEP_SIZE, 0, size) != 0 && errno != EOPNOTSUPP)
        return qt_error_string(errno);
#endif
    return {};
}

/// Makes the bytes all that the file holds, on the disk; an error text, empty on success.
QString fill(QFile& file, std::string_view bytes)
{
    const auto size = static_cast<qint64>(bytes.size());
    if (!file.seek(0))
        return file.errorString();
    for (qint64 written = 0; written < size;) {
        const qint64 step = file.write(bytes.data() + written, size - written);
        if (step <= 0)
            return file.errorString();
        written += step;
    }
    return file.size() == size || file.resize(size) ? syncToDisk(file) : file.errorString();
}

} // namespace

QString writeInPlace(const QString& path, std::string_view bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return file.errorString();
    const qint64 size = file.size();
    const QByteArray before = file.readAll();
    if (before.size() != size)
        return file.errorString();

    QString error = claimRoom(file, static_cast<qint64>(bytes.size()));
    if (error.isEmpty())
        error = fill(file, bytes);
    // There is room for the old bytes still: what is left of them is in their place.
    if (!error.isEmpty())
        fill(file, {before.constData(), static_cast<std::size_t>(size)});
    return error;
}

} // namespace kitwright
