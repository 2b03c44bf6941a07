// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "hasty_dialogs.h"

#include "texts.h"

#include <QScopedValueRollback>

namespace kitwright::walking {

HastyDialogs::HastyDialogs(Chance& chance, Record& record, WatchedFiles& files, std::function<void()> whileOpen)
    : m_chance(chance),
      m_record(record),
      m_files(files),
      m_whileOpen(std::move(whileOpen))
{
}

std::optional<std::string> HastyDialogs::openFile(const FileDialog& dialog)
{
    open("open");
    if (cancels())
        return std::nullopt;
    const bool document = dialog.filter.find(".cpp") != std::string::npos;
    const std::string path = openPath(m_chance, document);
    // The real dialog does not let an author choose what is not there; another program may take it away after that.
    if (!dialog.mayBeNew && !m_files.fileExists(path) && m_chance.percent(80))
        return std::nullopt;
    if (document) {
        m_files.allow(path);
        m_opened = path;
    }
    return path;
}

std::optional<std::string> HastyDialogs::saveFile(const FileDialog&)
{
    open("save");
    if (cancels())
        return std::nullopt;
    const std::string path = m_obedient ? "/addons/last/config.cpp" : savePath(m_chance);
    m_files.allow(path);
    return path;
}

std::optional<std::uint32_t> HastyDialogs::chooseColour()
{
    open("colour");
    if (cancels())
        return std::nullopt;
    return static_cast<std::uint32_t>(m_chance.below(1 << 24));
}

void HastyDialogs::showMessage(const std::string&)
{
    open("message");
}

bool HastyDialogs::askYesNo(const std::string&)
{
    open("yes or no");
    return m_chance.percent(60);
}

std::string HastyDialogs::askText(const std::string&)
{
    open("text");
    return cancels() ? std::string() : nameText(m_chance);
}

void HastyDialogs::open(const char* dialog)
{
    if (m_isOpen)
        m_record.fail(std::string("a second dialog opens over an open one: ") + dialog);
    const QScopedValueRollback isOpen(m_isOpen, true);
    m_record.count(std::string("dialogs, ") + dialog);
    m_whileOpen();
}

Failure PackerOnly::start(const std::string& program, const std::string& argument)
{
    if (program != "/program/brakpak.exe" || argument != packerArgument(m_surroundings.state()))
        m_record.fail("this is not to be started: " + program + " [" + argument + "]");
    m_record.count("starts of the packer");
    return "no such program";
}

} // namespace kitwright::walking
