// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_record.h"

#include <algorithm>

namespace kitwright {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view lineBreaks = "\r\n";
constexpr std::string_view delimiters = ",\r\n";
constexpr auto npos = std::string_view::npos;

bool isOneOf(std::string_view characters, char character)
{
    return characters.find(character) != npos;
}

std::string_view withoutBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// The quote that closes the one in front of `position`, or npos.
std::size_t closingQuote(std::string_view text, std::size_t position)
{
    while ((position = text.find_first_of("\"\r\n", position)) != npos) {
        if (text[position] != '"') {
            ++position;
            const std::size_t start = std::min(text.find_first_not_of(blanks, position), text.size());
            if (text.substr(start).starts_with(keyPrefix))
                return npos;
        } else if (text.substr(position, 2) == "\"\"") {
            position += 2;
        } else {
            return position;
        }
    }
    return npos;
}

/// Where the quoted field that starts at `start` ends, or npos when it is no such field.
std::size_t quotedFieldEnd(std::string_view text, std::size_t start)
{
    const std::size_t open = text.find_first_not_of(blanks, start);
    if (open == npos || text[open] != '"')
        return npos;
    const std::size_t close = closingQuote(text, open + 1);
    if (close == npos)
        return npos;
    const std::size_t end = std::min(text.find_first_not_of(blanks, close + 1), text.size());
    return end == text.size() || isOneOf(delimiters, text[end]) ? end : npos;
}

std::size_t fieldEnd(std::string_view text, std::size_t start)
{
    const std::size_t end = quotedFieldEnd(text, start);
    return end != npos ? end : std::min(text.find_first_of(delimiters, start), text.size());
}

bool isQuoted(std::string_view field)
{
    return quotedFieldEnd(field, 0) == field.size();
}

std::size_t lineEndLength(std::string_view text, std::size_t position)
{
    if (position >= text.size())
        return 0;
    return text.substr(position, 2) == "\r\n" ? 2 : 1;
}

bool isComment(std::string_view line)
{
    return withoutBlanks(line).starts_with("//");
}

/// The text as the inside of a quoted field.
std::string escaped(std::string_view text)
{
    std::string result;
    for (const char character : text) {
        result += character;
        if (character == '"')
            result += '"';
    }
    return result;
}

/// A bare quote in front could pair up with one in a later field.
bool needsQuotes(std::string_view text)
{
    return text.find_first_of(delimiters) != npos || withoutBlanks(text).starts_with('"');
}

} // namespace

std::string rawText(const TableRecord& record)
{
    std::string text;
    for (std::size_t i = 0; i < record.fields.size(); ++i) {
        if (i > 0)
            text += ',';
        text += record.fields[i];
    }
    return text += record.lineEnd;
}

std::string fieldText(std::string_view field)
{
    if (!isQuoted(field))
        return std::string(field);
    const std::string_view quoted = withoutBlanks(field);
    std::string text;
    for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
        text += quoted[i];
        if (quoted[i] == '"')
            ++i;
    }
    return text;
}

std::string withFieldText(std::string_view field, std::string_view text)
{
    std::string wanted(text);
    if (field.find('\n') != npos && field.find('\r') == npos)
        std::erase(wanted, '\r');
    if (isQuoted(field)) {
        const std::size_t open = field.find('"');
        const std::size_t close = field.rfind('"');
        return std::string(field.substr(0, open + 1)) + escaped(wanted) + std::string(field.substr(close));
    }
    return needsQuotes(wanted) ? '"' + escaped(wanted) + '"' : wanted;
}

void settleOpenQuotes(TableRecord& record)
{
    for (std::string& field : record.fields) {
        if (!isQuoted(field) && withoutBlanks(field).starts_with('"'))
            field = '"' + escaped(field) + '"';
    }
}

bool isTableRecord(const TableRecord& record)
{
    const std::string key = fieldText(record.fields.front());
    return withoutBlanks(key).starts_with(keyPrefix);
}

std::string recordKey(const TableRecord& record)
{
    const std::string key = fieldText(record.fields.front());
    return std::string(withoutBlanks(key).substr(keyPrefix.size()));
}

bool looksLikeRecord(const TableRecord& record)
{
    const std::string key = fieldText(record.fields.front());
    const std::string_view name = withoutBlanks(key);
    return record.fields.size() > 1 && !name.empty() && !isComment(name) && name.find_first_of(blanks) == npos;
}

bool isBlank(const TableRecord& record)
{
    return record.fields.size() == 1 && withoutBlanks(record.fields.front()).empty();
}

TableRecord takeLine(std::string_view text, std::size_t& position)
{
    TableRecord record;
    const std::size_t physicalEnd = std::min(text.find_first_of(lineBreaks, position), text.size());
    const bool comment = isComment(text.substr(position, physicalEnd - position));
    for (;;) {
        const std::size_t end = comment ? physicalEnd : fieldEnd(text, position);
        record.fields.emplace_back(text.substr(position, end - position));
        position = end;
        if (position >= text.size() || text[position] != ',')
            break;
        ++position;
    }
    record.lineEnd = text.substr(position, lineEndLength(text, position));
    position += record.lineEnd.size();
    return record;
}

std::vector<TableRecord> tableLines(std::string_view text)
{
    std::vector<TableRecord> lines;
    for (std::size_t position = 0; position < text.size();)
        lines.push_back(takeLine(text, position));
    return lines;
}

} // namespace kitwright
