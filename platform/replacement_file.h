// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <QSaveFile>

#include <string_view>

namespace kitwright {

/// A file that takes a path whole or not at all: it is written out of sight, and dropped unless it is committed.
class ReplacementFile {
public:
    /// `path` must be one that `fileBehind` gave. What lies there stays until `commit`.
    explicit ReplacementFile(const QString& path) : m_file(path) {}

    /// Failure where something else than a file has the path, or where its folder takes no new file.
    Failure open();

    /// What the content is written to.
    QSaveFile& device() { return m_file; }

    /// Brings the content to the disk and puts it in its place, with the owner and the modes of the file that it
    /// replaces as far as the system lets us. A failure leaves the path as it was.
    Failure commit();

private:
    QSaveFile m_file;
};

/// Writes all of the bytes; an error text, empty on success.
QString writeAll(QIODevice& device, std::string_view bytes);

} // namespace kitwright
