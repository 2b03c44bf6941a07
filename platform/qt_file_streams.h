// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_streams.h"

namespace kitwright {

/// The disk itself.
class QtFileStreams final : public FileStreams {
public:
    Outcome<FolderListing> list(const std::string& folder) const override;
    Outcome<FileState> state(const std::string& path) const override;
    Outcome<std::unique_ptr<ByteSource>> open(const std::string& path) const override;
    Outcome<std::unique_ptr<NewFile>> createFile(const std::string& path) override;
    Outcome<std::unique_ptr<NewFolder>> createFolder(const std::string& path) override;
};

} // namespace kitwright
