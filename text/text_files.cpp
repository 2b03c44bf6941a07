// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/text_files.h"

#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace kitwright {

Outcome<std::string> TextFiles::read(const std::string& path) const
{
    Outcome<std::string> bytes = m_files.readBytes(path);
    if (bytes)
        *bytes = m_codePage.decode(*bytes);
    return bytes;
}

Outcome<std::string> TextFiles::readDocument(const std::string& path) const
{
    Outcome<std::string> bytes = m_files.readBytes(path);
    if (!bytes)
        return bytes;
    if (isUtf16(*bytes))
        return Outcome<std::string>::failed(path + ": in UTF-16, which this editor cannot keep");
    *bytes = m_codePage.decode(*bytes);
    return bytes;
}

Outcome<std::string> TextFiles::readMarked(const std::string& path) const
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    Outcome<std::string> bytes = m_files.readBytes(path);
    if (!bytes)
        return bytes;
    if (bytes->starts_with(mark))
        *bytes = m_codePage.keepable(std::string_view(*bytes).substr(mark.size()));
    else
        *bytes = m_codePage.decode(*bytes);
    return bytes;
}

Failure TextFiles::write(const std::string& path, std::string_view text)
{
    return m_files.writeBytes(path, m_codePage.encode(text));
}

std::vector<std::string_view> dataLines(std::string_view text, std::size_t most)
{
    std::vector<std::string_view> lines;
    while (!text.empty() && lines.size() < most) {
        const std::size_t end = text.find('\r');
        lines.push_back(cutUtf8(text.substr(0, end), longestDataLine));
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
        if (text.starts_with('\n'))
            text.remove_prefix(1);
    }
    return lines;
}

Failure linesLeftOut(const std::string& path, std::string_view text, std::size_t most)
{
    std::size_t end = 0;
    for (std::size_t line = 0; line < most; ++line) {
        const std::size_t found = text.find('\r', end);
        if (found == std::string_view::npos)
            return {};
        end = found + (text.substr(found, 2) == "\r\n" ? 2 : 1);
    }
    return end < text.size() ? Failure(path + ": only the first " + std::to_string(most) + " lines are taken")
                             : Failure();
}

bool hasLineLongerThan(std::size_t most, std::string_view text)
{
    while (text.size() > most) {
        const std::size_t end = text.substr(0, most + 1).find_last_of("\r\n");
        if (end == std::string_view::npos)
            return true;
        text.remove_prefix(end + 1);
    }
    return false;
}

bool isUtf16(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return true;
    constexpr std::size_t looked = 256;
    const std::string_view start = bytes.substr(0, looked);
    std::array<std::size_t, 2> nuls{}; // At even and at odd places.
    for (std::size_t i = 0; i < start.size(); ++i)
        nuls[i % 2] += start[i] == '\0' ? 1 : 0;
    const std::size_t pairs = start.size() / 2;
    return pairs > 1 && std::min(nuls[0], nuls[1]) == 0 && 4 * std::max(nuls[0], nuls[1]) >= 3 * pairs;
}

bool hasOnlyCrLf(std::string_view text)
{
    if (text.starts_with('\n') || text.ends_with('\r'))
        return false;
    // Whether some CR and LF stand apart; without a branch for each byte, so that the compiler takes many at once.
    constexpr std::size_t block = 4096;
    for (std::size_t start = 0; start + 1 < text.size(); start += block) {
        const std::size_t end = std::min(start + block, text.size() - 1);
        unsigned char apart = 0;
        for (std::size_t i = start; i < end; ++i) {
            const unsigned char isCr = text[i] == '\r';
            const unsigned char isBeforeLf = text[i + 1] == '\n';
            apart = static_cast<unsigned char>(apart | (isCr ^ isBeforeLf));
        }
        if (apart != 0)
            return false;
    }
    return true;
}

std::string withCrLf(std::string text)
{
    if (hasOnlyCrLf(text))
        return text;
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i;
        while (end < text.size() && text[end] != '\r' && text[end] != '\n')
            ++end;
        result.append(text, i, end - i);
        if (end < text.size())
            result += "\r\n";
        i = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    }
    return result;
}

} // namespace kitwright
