// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

// An archive is a list of entries, an entry without a name, and the data of the entries back to back in their order.
// An entry is a name with a NUL at its end and five words, 32 bits each and little-endian: how it is stored, original
// size, 0, time, size of the data. An entry without a name and with the method `properties` may come first; pairs of
// texts with NULs at their ends follow it, and an empty text. A NUL and the SHA-1 of all before it may end the archive.

namespace method {
inline constexpr std::uint32_t stored = 0;
inline constexpr std::uint32_t compressed = 0x43707273;
inline constexpr std::uint32_t properties = 0x56657273;
} // namespace method

/// Bytes of an entry without its name.
inline constexpr std::uint64_t bareEntrySize = 21;

/// Bytes behind the data of an archive with a SHA-1: a NUL and the 20 of the sum.
inline constexpr std::uint64_t trailerSize = 21;

/// What is neither written nor believed: it is many times what the game takes.
inline constexpr std::size_t mostEntries = 100'000;
inline constexpr std::size_t mostProperties = 1'000;
inline constexpr std::size_t longestName = 1'000;     ///< Bytes in the archive.
inline constexpr std::size_t longestProperty = 4'000; ///< Bytes in the archive.

/// The largest file, and the largest archive that is written: what 32 bits can count.
inline constexpr std::uint64_t largestSize = 0xFFFF'FFFF;

struct ArchiveEntry {
    std::string name; ///< UTF-8, relative, folders separated by backslashes.
    bool isCompressed = false;
    std::uint32_t time = 0;         ///< Unix seconds; 0: not told.
    std::uint32_t dataSize = 0;     ///< Bytes in the archive.
    std::uint32_t unpackedSize = 0; ///< Bytes of the file.
    std::uint64_t offset = 0;       ///< Where its data start in the archive.
};

struct ArchiveProperty {
    std::string name;
    std::string value;
};

/// What an archive holds, without the data.
struct ArchiveListing {
    std::vector<ArchiveProperty> properties; ///< UTF-8.
    std::vector<ArchiveEntry> entries;
    std::uint64_t dataEnd = 0; ///< Where the data of the last entry end.
    bool hasHash = false;
};

/// The bytes of an entry: `name` in the code page, the given method and sizes.
std::string encodedEntry(std::string_view name, std::uint32_t method, std::uint32_t time, std::uint32_t dataSize);

} // namespace kitwright
