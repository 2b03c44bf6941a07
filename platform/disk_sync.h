// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFileDevice>
#include <QString>

namespace kitwright {

/// Has the system bring what was written to an open, flushed file to the disk. Returns an error text, empty on success
/// and where the file system cannot sync.
QString syncToDisk(const QFileDevice& file);

} // namespace kitwright
