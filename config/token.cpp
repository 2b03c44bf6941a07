// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/token.h"

#include <algorithm>

namespace kitwright {

TokenIndex Tokens::at(std::uint32_t offset) const
{
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
    const auto index = static_cast<TokenIndex>(after - m_starts.begin());
    if (index == 0)
        return 0;
    return offset < end(index - 1) || index > count() ? index - 1 : index;
}

void Tokens::addDirective(std::uint32_t start)
{
    m_directives.push_back(static_cast<TokenIndex>(m_starts.size()));
    add(TokenKind::Directive, start, true);
}

void Tokens::addCutOff(TokenKind kind, std::uint32_t start, bool isFirstOnLine)
{
    m_areCutOff = true;
    add(kind, start, isFirstOnLine);
}

void Tokens::end()
{
    m_count = static_cast<TokenIndex>(m_starts.size());
    add(TokenKind::End, static_cast<std::uint32_t>(m_text.size()), true);
}

void Tokens::reserve(std::size_t count)
{
    m_starts.reserve(count);
    m_kinds.reserve(count);
}

} // namespace kitwright
