// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_file.h"

#include "stringtable/table_columns.h"
#include "text/letter_case.h"

#include <algorithm>
#include <utility>

namespace kitwright {

namespace {

/// How a UTF-8 byte order mark in front of the first line reads in the code page.
constexpr std::string_view decodedMark = "\u010F\u00BB\u017C";

bool isHeader(const TableRecord& line)
{
    const std::string text = fieldText(line.fields.front());
    std::string_view name = text;
    if (name.starts_with(decodedMark))
        name.remove_prefix(decodedMark.size());
    return equalIgnoringCase(trimmedSpaces(name), "LANGUAGE");
}

/// Where the header starts, or the length of a text without one.
std::size_t headerStart(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        if (isHeader(takeLine(text, position)))
            return start;
    }
    return text.size();
}

/// True for a text of which a line would be taken apart into more fields than a table has.
bool hasTooManyFields(std::string_view text)
{
    std::size_t commas = 0;
    return std::any_of(text.begin(), text.end(), [&commas](char character) {
        if (character == '\r' || character == '\n')
            commas = 0;
        commas += character == ',' ? 1 : 0;
        return commas >= mostFields;
    });
}

/// Takes the lines behind the header, as long as the records hold no more texts than are bearable.
void takeRecords(std::string_view text, std::size_t position, TableFile& file)
{
    std::size_t texts = 0;
    while (position < text.size()) {
        const std::size_t start = position;
        TableRecord line = takeLine(text, position);
        if (looksLikeRecord(line))
            file.layout.width = std::max(file.layout.width, filledFields(line));
        if (isTableRecord(line)) {
            texts += line.fields.size();
            file.parts.push_back({std::exchange(file.tail, {}), std::move(line)});
        } else {
            file.tail += text.substr(start, position - start);
        }
        if (texts > mostTexts) {
            file = {};
            file.tooLarge = true;
            return;
        }
    }
}

} // namespace

TableFile parseTable(std::string_view text)
{
    TableFile file;
    file.tooLarge = hasTooManyFields(text);
    if (file.tooLarge)
        return file;
    std::size_t position = 0;
    if (!text.empty()) {
        const TableRecord first = takeLine(text, position);
        if (!first.lineEnd.empty())
            file.layout.lineEnd = first.lineEnd;
    }
    position = headerStart(text);
    if (position < text.size()) {
        file.layout.preamble = text.substr(0, position);
        file.layout.header = takeLine(text, position);
        file.tooLarge = file.layout.header->fields.size() > mostColumns;
    } else {
        file.layout.unheaded = text;
        position = 0;
    }
    if (!file.tooLarge)
        takeRecords(text, position, file);
    return file;
}

} // namespace kitwright
