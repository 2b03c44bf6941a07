// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/write_in_place.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#endif

namespace kitwright {

namespace {

/// Claims room for `size` bytes; an error text, empty on success.
QString claimRoom([[maybe_unused]] QFile& file, [[maybe_unused]] qint64 size)
{
#ifdef Q_OS_UNIX
    const qint64 oldSize = file.size();
    if (size > oldSize) {
        const int error = ::posix_fallocate(file.handle(), 0, size);
        if (error != 0 && error != EOPNOTSUPP && error != EINVAL) {
            file.resize(oldSize);
            return qt_error_string(error);
        }
    }
#endif
    return {};
}

} // namespace

QString writeInPlace(const QString& path, std::string_view bytes)
{
    const auto size = static_cast<qint64>(bytes.size());
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return file.errorString();
    if (QString error = claimRoom(file, size); !error.isEmpty())
        return error;
    for (qint64 written = 0; written < size;) {
        const qint64 step = file.write(bytes.data() + written, size - written);
        if (step <= 0)
            return file.errorString();
        written += step;
    }
    return file.resize(size) ? QString() : file.errorString();
}

} // namespace kitwright
