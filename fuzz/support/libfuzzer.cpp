// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/target.h"

#include <cstddef>
#include <cstdint>

/// What libFuzzer calls for each input that it thinks of.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kitwright::fuzzing::tryInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
