// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"

namespace kitwright {

/// The disk itself.
class QtFileSystem final : public FileSystem {
public:
    bool fileExists(const std::string& path) const override;
    Outcome<std::string> realPath(const std::string& path) const override;
    Outcome<std::string> realFolder(const std::string& path) const override;
    Outcome<std::string> readBytes(const std::string& path) const override;
    Failure writeBytes(const std::string& path, std::string_view bytes) override;
    Failure copyFile(const std::string& from, const std::string& to) override;
    Outcome<std::vector<std::string>> listFiles(const std::string& folder) const override;
    Outcome<std::vector<std::string>> listFolders(const std::string& folder) const override;
};

} // namespace kitwright
