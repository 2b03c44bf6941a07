// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/sequential_bytes.h"
#include "platform/outcome.h"

#include <cstdint>
#include <functional>
#include <string_view>

namespace kitwright {

/// Takes the next bytes of a file; a failure ends the reading.
using TakeBytes = std::function<Failure(std::string_view)>;

/// Unpacks compressed data: groups of a flag byte and eight items, the least bit for the first of them. A set bit is
/// a byte as it stands, a clear one two bytes a, b: from a + ((b & 0xF0) << 4) bytes before the end of what is there,
/// (b & 0x0F) + 3 bytes once more, blanks for those before the start. Four bytes with the sum of all bytes follow, which
/// may count them as signed or unsigned.
///
/// Failure, without a subject, when the data are cut, give other than `size` bytes, repeat what has not been there, or
/// have the wrong sum. What was taken until then is not to be used.
Failure decompress(SequentialBytes& data, std::uint32_t size, const TakeBytes& take);

} // namespace kitwright
