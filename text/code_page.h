// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace kitwright {

/// The 8-bit code page in which the author's files are written. Each of the 256 byte values stands for one
/// character of its own, so decoding and encoding give every file back byte for byte.
class CodePage {
public:
    /// `characters[b]` is the code point that byte b stands for; the 256 must differ, and 0 to 127 are ASCII.
    explicit CodePage(const std::array<char16_t, 256>& characters);

    /// Bytes of a file as UTF-8 text.
    std::string decode(std::string_view bytes) const;

    /// UTF-8 text as bytes of a file. What the code page lacks is left out, as `keepable` does.
    std::string encode(std::string_view text) const;

    /// True when every character of the UTF-8 text is in the code page.
    bool holds(std::string_view text) const;

    /// The text without the characters that the code page lacks; a typographic dash, quote or ellipsis that it
    /// lacks becomes its plain form. Bytes that are not UTF-8 are dropped.
    std::string keepable(std::string_view text) const;

private:
    /// The byte for a code point, or -1.
    int byteFor(char32_t codePoint) const;

    std::array<std::string, 256> m_utf8;
    std::unordered_map<char32_t, unsigned char> m_bytes;
};

} // namespace kitwright
