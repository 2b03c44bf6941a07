// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/outcome.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// What tells one version of a file from the next.
struct FileState {
    std::uint64_t size = 0;    ///< Bytes.
    std::int64_t modified = 0; ///< Unix seconds.

    friend bool operator==(const FileState&, const FileState&) = default;
};

/// What an entry of a folder is once links are followed.
enum class EntryKind { File, Folder, Other, Nothing };

struct FolderEntry {
    std::string name; ///< Without folder.
    EntryKind kind = EntryKind::Other;
    bool isHidden = false;
    bool isLink = false;
    std::string realPath; ///< Of a link only: what it leads to, as it really lies; empty when that is nothing.
    FileState state;      ///< Of a file only.
};

struct FolderListing {
    std::string realPath; ///< The folder as it really lies.
    std::vector<FolderEntry> entries;
};

/// Bytes that are read at any place, without holding all of them.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// How many there are; of a file: there were when it was opened.
    virtual std::uint64_t size() const = 0;

    /// Fills `bytes` with those from `offset` on, which must all be inside. A file that has become shorter is a failure.
    virtual Failure read(std::uint64_t offset, std::span<char> bytes) = 0;
};

/// Bytes that are written one after another.
class ByteSink {
public:
    virtual ~ByteSink() = default;
    virtual Failure write(std::string_view bytes) = 0;
};

/// A file that takes its place when it is complete. Without `commit` there is nothing, and what lay there stays.
class NewFile : public ByteSink {
public:
    /// What has been written. Nothing more may be written once this was asked for.
    virtual Outcome<std::unique_ptr<ByteSource>> written() = 0;

    /// Brings it to the disk and puts it in its place, whole or not at all.
    virtual Failure commit() = 0;
};

/// Writes a file's content.
using FileContent = std::function<Failure(ByteSink&)>;

/// A folder that takes its place when it is complete. Without `commit` there is nothing.
class NewFolder {
public:
    virtual ~NewFolder() = default;

    /// Adds a file, with the folders on its way. The name is relative, its parts are separated by '/', and the caller
    /// vouches that it leads nowhere else. `modified` is in Unix seconds; 0: now. A file that is there already is a
    /// failure.
    virtual Failure addFile(const std::string& name, std::int64_t modified, const FileContent& content) = 0;

    /// Puts it in its place, whole or not at all.
    virtual Failure commit() = 0;
};

/// The way to files of any size, read and written in pieces, and to whole folders. Paths are those of `FileSystem`.
/// Nothing here throws.
class FileStreams {
public:
    virtual ~FileStreams() = default;

    /// All that a folder holds, itself and its parent left out, in no particular order.
    virtual Outcome<FolderListing> list(const std::string& folder) const = 0;

    /// The present state of a regular file, links followed.
    virtual Outcome<FileState> state(const std::string& path) const = 0;

    /// Opens a regular file, links followed.
    virtual Outcome<std::unique_ptr<ByteSource>> open(const std::string& path) const = 0;

    /// Begins a file that is to take the path; a link there stays one, and what it leads to is replaced. Failure when
    /// something else than a file is there, or when the folder takes no new file.
    virtual Outcome<std::unique_ptr<NewFile>> createFile(const std::string& path) = 0;

    /// Begins a folder that is to take the path, where nothing or an empty folder must be.
    virtual Outcome<std::unique_ptr<NewFolder>> createFolder(const std::string& path) = 0;
};

} // namespace kitwright
