// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/document_commands.h"
#include "chance.h"
#include "watched_files.h"

#include <functional>

namespace kitwright::walking {

/// Answers at random, or cancels. While a dialog is open the program's events run on, as they do in the real ones.
class HastyDialogs final : public Dialogs {
public:
    HastyDialogs(Chance& chance, Record& record, WatchedFiles& files, std::function<void()> whileOpen);

    /// Every save dialog gets a path and every box an answer; what waits for one comes to its end.
    void obey() { m_obedient = true; }

    /// The document that the last open dialog answered, until it is asked for again; empty when there was none.
    std::string takeOpened() { return std::exchange(m_opened, {}); }

    std::optional<std::string> openFile(const FileDialog& dialog) override;
    std::optional<std::string> saveFile(const FileDialog& dialog) override;
    std::optional<std::uint32_t> chooseColour() override;
    void showMessage(const std::string& text) override;
    bool askYesNo(const std::string& question) override;
    std::string askText(const std::string& prompt) override;

private:
    void open(const char* dialog);
    bool cancels() { return !m_obedient && m_chance.percent(20); }

    Chance& m_chance;
    Record& m_record;
    WatchedFiles& m_files;
    std::function<void()> m_whileOpen;
    bool m_obedient = false;
    bool m_isOpen = false;
    std::string m_opened;
};

/// Starts nothing, and ends the walk when it is not the packer that shall be started, or not on the document.
class PackerOnly final : public ProgramLauncher {
public:
    PackerOnly(Record& record, Surroundings& surroundings) : m_record(record), m_surroundings(surroundings) {}

    Failure start(const std::string& program, const std::string& argument) override;

private:
    Record& m_record;
    Surroundings& m_surroundings;
};

} // namespace kitwright::walking
