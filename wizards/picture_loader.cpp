// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/picture_loader.h"

#include "wizards/window_helpers.h"

#include <chrono>
#include <utility>

namespace kitwright {

PictureLoader::PictureLoader(PicturePreview& preview, const FileSystem& files) : m_preview(preview), m_files(files)
{
    // Longer than a held key takes to repeat, and than the pause between quick presses.
    constexpr std::chrono::milliseconds restTime(250);
    m_rest.setInterval(restTime);
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &PictureLoader::loadPending);
}

void PictureLoader::show(const std::string& path)
{
    m_pending = path == m_shown ? std::string() : path;
    if (!m_rest.isActive())
        loadPending();
    m_rest.start();
}

void PictureLoader::load(const std::string& path)
{
    m_pending.clear();
    const Outcome<std::string> bytes = m_files.readBytes(path);
    if (!bytes)
        report(lcWizards(), "showing a picture", bytes.reason());
    else if (!m_preview.showPicture(*bytes))
        report(lcWizards(), "showing a picture", path + ": no JPG picture of a usable size");
    else
        m_shown = path;
}

void PictureLoader::clear()
{
    m_preview.clearPicture();
    m_shown.clear();
    m_pending.clear();
}

void PictureLoader::loadPending()
{
    if (!m_pending.empty())
        load(std::exchange(m_pending, {}));
}

} // namespace kitwright
