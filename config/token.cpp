// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/token.h"

#include "config/characters.h"

#include <algorithm>

namespace kitwright {

std::uint32_t Tokens::end(TokenIndex index) const
{
    const TokenKind kind = this->kind(index);
    const std::uint32_t start = m_starts[index];
    if (kind >= TokenKind::OpenBrace && kind <= TokenKind::Comma)
        return start + (kind == TokenKind::Append ? 2 : 1);
    if (kind == TokenKind::End)
        return start;
    // What follows a token is blanks up to the next one.
    std::uint32_t end = m_starts[index + 1];
    while (end > start + 1 && isBlank(m_text[end - 1]))
        --end;
    return end;
}

TokenIndex Tokens::at(std::uint32_t offset) const
{
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
    const auto index = static_cast<TokenIndex>(after - m_starts.begin());
    if (index == 0)
        return 0;
    return offset < end(index - 1) || index > count() ? index - 1 : index;
}

void Tokens::reserve(std::size_t count)
{
    m_starts.reserve(count);
    m_kinds.reserve(count);
}

void Tokens::add(TokenKind kind, std::uint32_t start, bool isFirstOnLine)
{
    m_starts.push_back(start);
    m_kinds.push_back(static_cast<std::uint8_t>(static_cast<std::uint8_t>(kind) | (isFirstOnLine ? lineMark : 0)));
}

} // namespace kitwright
