// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "record.h"
#include "services/shared_state.h"
#include "support/memory_file_system.h"
#include "text/code_page.h"

#include <map>
#include <set>
#include <string>

namespace kitwright::walking {

/// What the files are held against; the program while it runs.
class Surroundings {
public:
    virtual ~Surroundings() = default;
    virtual const SharedState& state() = 0;
    virtual std::string_view document() = 0;

    /// True while an input method has letters in the document that it has not given yet and may take back.
    virtual bool isComposing() = 0;
};

/// Files in memory that nothing but the author's own orders may change. Each write is judged as it comes: the
/// document goes under a path that a dialog answered and byte for byte as it stands in the editor, its stringtable and
/// copies of files go beside it, the settings go into the program folder; a document that lies on the disk is only ever
/// replaced by a document, and shipped files not at all.
class WatchedFiles final : public FileSystem {
public:
    WatchedFiles(Record& record, Surroundings& surroundings);

    /// A file dialog answered this path: a document may be written there from now on.
    void allow(const std::string& path);

    /// Ends the walk when a shipped file or a saved document is not as it was left.
    void checkDisk();

    /// Until the next call every write fails, as on a full disk.
    void setFull(bool full) { m_full = full; }

    /// Keys without a name are never the same, so that a table grows with each folder that it is saved to. The walk
    /// ends the program when one has grown large, and someone takes such tables away.
    bool hasLargeTable() const { return m_hasLargeTable; }
    void removeLargeTables();

    /// True when the settings file holds the last settings that were to be written.
    bool hasSettings() const { return m_hasSettings; }

    /// As an installation that has not been started yet.
    void forgetSettings() { m_files.files.erase(settingsPath()); }

    static std::string settingsPath() { return "/program/Kitwright.cfg"; }

    bool fileExists(const std::string& path) const override { return m_files.fileExists(path); }
    Outcome<std::string> realPath(const std::string& path) const override { return m_files.realPath(path); }
    Outcome<std::string> realFolder(const std::string& path) const override { return m_files.realFolder(path); }
    Outcome<std::string> readBytes(const std::string& path) const override { return m_files.readBytes(path); }
    Failure writeBytes(const std::string& path, std::string_view bytes) override;
    Failure copyFile(const std::string& from, const std::string& to) override;
    Outcome<std::vector<std::string>> listFiles(const std::string& folder) const override;
    Outcome<std::vector<std::string>> listFolders(const std::string& folder) const override;

private:
    static constexpr std::size_t largeTable = 40'000; // Bytes.

    bool refuses(const std::string& path) const;
    void judge(const std::string& path, std::string_view bytes);
    void judgeDocument(const std::string& path, std::string_view bytes);
    void judgeSettings(std::string_view bytes);
    void judgeCopy(const std::string& from, const std::string& to);
    [[noreturn]] void fail(const std::string& what, const std::string& path);

    Record& m_record;
    Surroundings& m_surroundings;
    testing::MemoryFileSystem m_files;
    std::map<std::string, std::string> m_shipped;
    std::map<std::string, std::string> m_documents; ///< As they were saved last.
    std::set<std::string> m_allowed;
    bool m_full = false;
    bool m_hasSettings = false;
    bool m_hasLargeTable = false;
};

} // namespace kitwright::walking
