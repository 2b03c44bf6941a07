// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/utf8.h"

#include <cstdint>
#include <cstring>

namespace kitwright {

namespace {

std::size_t sequenceLength(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool isOverlongOrSurrogate(char32_t codePoint, std::size_t length)
{
    return (length == 3 && codePoint < 0x800) || (length == 4 && codePoint < 0x10000)
        || (codePoint >= 0xD800 && codePoint < 0xE000) || codePoint > 0x10FFFF;
}

} // namespace

Utf8Character utf8At(std::string_view text, std::size_t offset)
{
    const auto lead = static_cast<unsigned char>(text[offset]);
    const std::size_t length = sequenceLength(lead);
    if (length == 1)
        return {lead, 1, true};
    if (length == 0 || offset + length > text.size())
        return {};

    auto codePoint = static_cast<char32_t>(lead & (0xFF >> (length + 1)));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[offset + i]);
        if ((next & 0xC0) != 0x80)
            return {};
        codePoint = (codePoint << 6) | (next & 0x3F);
    }
    if (isOverlongOrSurrogate(codePoint, length))
        return {};
    return {codePoint, length, true};
}

std::size_t asciiRun(std::string_view text, std::size_t offset)
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t end = offset;
    for (std::uint64_t eight = 0; end + sizeof eight <= text.size(); end += sizeof eight) {
        std::memcpy(&eight, text.data() + end, sizeof eight);
        if (eight & highBits)
            break;
    }
    while (end < text.size() && static_cast<unsigned char>(text[end]) < 0x80)
        ++end;
    return end - offset;
}

std::string_view cutUtf8(std::string_view text, std::size_t mostBytes)
{
    if (text.size() <= mostBytes)
        return text;
    while (mostBytes > 0 && (static_cast<unsigned char>(text[mostBytes]) & 0xC0) == 0x80)
        --mostBytes;
    return text.substr(0, mostBytes);
}

void appendUtf8(std::string& text, char32_t codePoint)
{
    const auto byte = [&](char32_t value) { text += static_cast<char>(value); };
    if (codePoint < 0x80) {
        byte(codePoint);
    } else if (codePoint < 0x800) {
        byte(0xC0 | (codePoint >> 6));
        byte(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        byte(0xE0 | (codePoint >> 12));
        byte(0x80 | ((codePoint >> 6) & 0x3F));
        byte(0x80 | (codePoint & 0x3F));
    } else {
        byte(0xF0 | (codePoint >> 18));
        byte(0x80 | ((codePoint >> 12) & 0x3F));
        byte(0x80 | ((codePoint >> 6) & 0x3F));
        byte(0x80 | (codePoint & 0x3F));
    }
}

} // namespace kitwright
