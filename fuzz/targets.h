// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <stdexcept>
#include <string_view>

namespace kitwright::fuzzing {

/// What a target does with one input, raw bytes. It throws when something does not hold.
using TryInput = void(std::string_view bytes);

TryInput tryDocument, tryLists, tryStringtable;

struct Target {
    std::string_view name; ///< That of its folder in corpus/, and of its dictionary.
    TryInput* tryInput;
};

inline constexpr Target targets[] = {
    {"document", tryDocument}, {"lists", tryLists}, {"stringtable", tryStringtable}};

/// Throws an exception that says `promise` unless the promise was kept.
inline void require(bool kept, const char* promise)
{
    if (!kept)
        throw std::logic_error(promise);
}

} // namespace kitwright::fuzzing
