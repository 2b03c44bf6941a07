// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/archive_format.h"

namespace kitwright {

std::string encodedEntry(std::string_view name, std::uint32_t method, std::uint32_t time, std::uint32_t dataSize)
{
    std::string bytes(name);
    bytes += '\0';
    for (const std::uint32_t word : {method, 0U, 0U, time, dataSize}) {
        for (int shift = 0; shift < 32; shift += 8)
            bytes += static_cast<char>((word >> shift) & 0xFF);
    }
    return bytes;
}

} // namespace kitwright
