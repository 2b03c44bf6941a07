// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/input.h"

#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace kitwright::fuzzing {

namespace {

constexpr std::array<char16_t, 128> upperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

CodePage buildCodePage()
{
    std::array<char16_t, 256> table{};
    for (std::size_t byte = 0; byte < upperHalf.size(); ++byte) {
        table[byte] = static_cast<char16_t>(byte);
        table[byte + 128] = upperHalf[byte];
    }
    return CodePage(table);
}

} // namespace

const CodePage& codePage()
{
    static const CodePage table = buildCodePage();
    return table;
}

std::string_view Pieces::bytes()
{
    const std::size_t end = std::min(m_rest.find('|'), m_rest.size());
    const std::string_view piece = m_rest.substr(0, end);
    m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
    return piece;
}

std::size_t characterStart(std::string_view text, std::size_t position)
{
    position = std::min(position, text.size());
    while (position > 0 && position < text.size() && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80)
        --position;
    return position;
}

std::vector<std::string_view> characters(std::string_view text)
{
    std::vector<std::string_view> result;
    for (std::size_t start = 0; start < text.size(); start += result.back().size()) {
        const std::size_t length = text.substr(start, 2) == "\r\n" ? 2 : utf8At(text, start).length;
        result.push_back(text.substr(start, length));
    }
    return result;
}

} // namespace kitwright::fuzzing
