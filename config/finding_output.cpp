// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/finding_output.h"

#include <algorithm>

namespace kitwright {

namespace {

/// How many characters begin in a range.
std::size_t countCharacters(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

std::string quoted(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            result.append(1, '\\').append(1, character);
        } else if (static_cast<unsigned char>(character) < ' ') {
            result.append("\\u00")
                .append(1, digits[static_cast<std::size_t>(character) >> 4])
                .append(1, digits[static_cast<std::size_t>(character) & 15]);
        } else {
            result += character;
        }
    }
    return result += '"';
}

std::string rangeMembers(LinePlaces& places, TextRange range)
{
    const LinePlace start = places.at(range.start);
    const LinePlace end = places.at(range.end);
    return "\"line\": " + std::to_string(start.line) + ", \"column\": " + std::to_string(start.column)
         + ", \"endLine\": " + std::to_string(end.line) + ", \"endColumn\": " + std::to_string(end.column);
}

std::string textIn(const MessageTexts& texts, const Finding& finding)
{
    return withArguments(texts ? texts(finding.message) : textOf(finding.message), finding.arguments);
}

} // namespace

LinePlaces::LinePlaces(std::string_view text) : m_text(text), m_starts(1, 0)
{
    for (std::size_t i = text.find_first_of("\r\n"); i < text.size(); ++i) {
        const bool isEnd = text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'));
        if (isEnd)
            m_starts.push_back(static_cast<std::uint32_t>(i + 1));
    }
}

LinePlace LinePlaces::at(std::uint32_t offset)
{
    const auto behind = std::upper_bound(m_starts.begin(), m_starts.end(), offset);
    const auto line = static_cast<std::size_t>(behind - m_starts.begin());
    if (line != m_place.line) {
        m_offset = m_starts[line - 1];
        m_place = {line, 1};
    }
    const std::size_t between = countCharacters(
        m_text.substr(std::min(offset, m_offset), std::max(offset, m_offset) - std::min(offset, m_offset)));
    m_place.column = offset > m_offset ? m_place.column + between : m_place.column - between;
    m_offset = offset;
    return m_place;
}

std::string findingLines(std::string_view file, std::string_view text, const FindingList& findings,
                         const MessageTexts& texts)
{
    std::string lines;
    LinePlaces places(text);
    for (const Finding& finding : findings.kept()) {
        const LinePlace place = places.at(finding.range.start);
        lines.append(file).append(":").append(std::to_string(place.line)).append(":");
        lines.append(std::to_string(place.column)).append(": ").append(nameOf(finding.severity())).append(": ");
        lines.append(textIn(texts, finding)).append(" [").append(idOf(finding.kind())).append("]\n");
    }
    return lines;
}

std::string findingObjects(std::string_view file, std::string_view text, const FindingList& findings,
                           const MessageTexts& texts)
{
    std::string objects;
    LinePlaces places(text);
    for (const Finding& finding : findings.kept()) {
        objects.append(objects.empty() ? "" : ",\n").append("  {\"file\": ").append(quoted(file)).append(", ");
        objects.append(rangeMembers(places, finding.range)).append(", \"severity\": ");
        objects.append(quoted(nameOf(finding.severity())))
            .append(", \"id\": ")
            .append(quoted(idOf(finding.kind())));
        objects.append(", \"text\": ").append(quoted(textIn(texts, finding))).append(", \"mend\": [");
        for (const TextEdit& edit : finding.mend) {
            objects.append(&edit == finding.mend.data() ? "{" : ", {").append(rangeMembers(places, edit.range));
            objects.append(", \"text\": ").append(quoted(edit.text)).append("}");
        }
        objects += "]}";
    }
    return objects;
}

} // namespace kitwright
