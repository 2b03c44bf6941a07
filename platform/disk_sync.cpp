// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/disk_sync.h"

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace kitwright {

QString syncToDisk([[maybe_unused]] const QFileDevice& file)
{
#ifdef Q_OS_UNIX
    // EINVAL says that there is nothing to sync to, as for some network file systems.
    if (::fsync(file.handle()) != 0 && errno != EINVAL)
        return qt_error_string(errno);
#endif
    return {};
}

} // namespace kitwright
