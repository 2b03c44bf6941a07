// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/code_page.h"

#include "text/utf8.h"

#include <cassert>

namespace kitwright {

namespace {

/// The plain form of a typographic character, or nothing.
std::string_view plainForm(char32_t codePoint)
{
    switch (codePoint) {
    case 0x2010:
    case 0x2011:
    case 0x2012:
    case 0x2013:
    case 0x2014:
    case 0x2015:
    case 0x2212:
        return "-";
    case 0x2018:
    case 0x2019:
    case 0x201A:
    case 0x201B:
    case 0x2032:
        return "'";
    case 0x201C:
    case 0x201D:
    case 0x201E:
    case 0x201F:
    case 0x2033:
        return "\"";
    case 0x2026:
        return "...";
    case 0x2000:
    case 0x2001:
    case 0x2002:
    case 0x2003:
    case 0x2004:
    case 0x2005:
    case 0x2006:
    case 0x2007:
    case 0x2008:
    case 0x2009:
    case 0x200A:
    case 0x202F:
        return " ";
    default:
        return {};
    }
}

} // namespace

CodePage::CodePage(const std::array<char16_t, 256>& characters)
{
    for (std::size_t byte = 0; byte < characters.size(); ++byte) {
        appendUtf8(m_utf8[byte], characters[byte]);
        m_bytes.emplace(characters[byte], static_cast<unsigned char>(byte));
    }
    assert(m_bytes.size() == characters.size());
}

// Almost all of a text is ASCII, which all three take run by run.

std::string CodePage::decode(std::string_view bytes) const
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 16);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const std::size_t ascii = asciiRun(bytes, i);
        text.append(bytes, i, ascii);
        i += ascii;
        if (i < bytes.size())
            text += m_utf8[static_cast<unsigned char>(bytes[i])];
    }
    return text;
}

std::string CodePage::encode(std::string_view text) const
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t ascii = asciiRun(text, i);
        bytes.append(text, i, ascii);
        i += ascii;
        if (i == text.size())
            break;
        const Utf8Character character = utf8At(text, i);
        const int byte = character.valid ? byteFor(character.codePoint) : -1;
        if (byte >= 0)
            bytes += static_cast<char>(byte);
        else if (character.valid)
            bytes += plainForm(character.codePoint);
        i += character.length;
    }
    return bytes;
}

bool CodePage::holds(std::string_view text) const
{
    for (std::size_t i = asciiRun(text, 0); i < text.size(); i += asciiRun(text, i)) {
        const Utf8Character character = utf8At(text, i);
        if (!character.valid || byteFor(character.codePoint) < 0)
            return false;
        i += character.length;
    }
    return true;
}

std::string CodePage::keepable(std::string_view text) const
{
    return decode(encode(text));
}

int CodePage::byteFor(char32_t codePoint) const
{
    const auto found = m_bytes.find(codePoint);
    return found == m_bytes.end() ? -1 : found->second;
}

} // namespace kitwright
