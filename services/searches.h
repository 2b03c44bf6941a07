// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// A list of texts addressed from 0, kept in ascending order of the upper-cased texts, compared byte by byte.
class TextList {
public:
    virtual ~TextList() = default;

    virtual int count() const = 0;

    /// The text at an index; empty outside the list.
    virtual std::string_view textAt(int index) const = 0;
};

/// Binary search between two indexes, both included, for an entry equal to the key without regard to letter case;
/// its index, or -1.
int FindExact(int lower, int upper, std::string_view key, const TextList& list);

/// As `FindExact`, for the first entry that begins with the key, which must not be empty. An entry's beginning is
/// compared without the spaces around it.
int FindPrefix(int lower, int upper, std::string_view key, const TextList& list);

} // namespace kitwright
