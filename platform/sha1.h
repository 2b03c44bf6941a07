// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

namespace kitwright {

/// Bytes of a SHA-1.
inline constexpr std::size_t sha1Size = 20;

/// The SHA-1 of bytes that come in pieces.
class Sha1 {
public:
    virtual ~Sha1() = default;

    /// Begins anew.
    virtual void start() = 0;
    virtual void add(std::string_view bytes) = 0;

    /// The 20 bytes for all that was added since the start.
    virtual std::string result() = 0;
};

} // namespace kitwright
