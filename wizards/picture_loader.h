// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"
#include "widgets/picture_preview.h"

#include <QTimer>

#include <string>

namespace kitwright {

/// Reads the pictures that a preview shows. What cannot be shown is reported and leaves the preview as it was.
class PictureLoader final : public QObject {
    Q_OBJECT

public:
    /// `preview` and `files` have to outlive the loader.
    PictureLoader(PicturePreview& preview, const FileSystem& files);

    /// Shows the picture at a path; it is not read while the preview shows it already. Of calls that follow one
    /// another quickly only the first and the last read: a held arrow key waits for none of the pictures it passes.
    void show(const std::string& path);

    /// Reads a picture now, even if the preview shows it.
    void load(const std::string& path);

    /// Shows nothing.
    void clear();

private:
    void loadPending();

    PicturePreview& m_preview;
    const FileSystem& m_files;
    std::string m_shown;   ///< Path of the picture in the preview; empty: there is none.
    std::string m_pending; ///< Path of the picture to read once the calls have come to rest; empty: none.
    QTimer m_rest;         ///< Runs for a moment from each `show` on.
};

} // namespace kitwright
