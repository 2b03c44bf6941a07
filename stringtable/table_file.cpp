// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_file.h"

#include "services/letter_case.h"
#include "stringtable/table_columns.h"

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

} // namespace

TableFile parseTable(std::string_view text)
{
    TableFile file;
    std::vector<TableRecord> lines = tableLines(text);
    if (!lines.empty() && !lines.front().lineEnd.empty())
        file.layout.lineEnd = lines.front().lineEnd;
    const auto header = std::find_if(lines.begin(), lines.end(), isHeader);
    auto line = lines.begin();
    if (header != lines.end()) {
        for (; line != header; ++line)
            file.layout.preamble += rawText(*line);
        file.layout.header = std::move(*line++);
    } else {
        file.layout.unheaded = text;
    }
    for (; line != lines.end(); ++line) {
        if (looksLikeRecord(*line))
            file.layout.width = std::max(file.layout.width, filledFields(*line));
        if (isTableRecord(*line))
            file.parts.push_back({std::exchange(file.tail, {}), std::move(*line)});
        else
            file.tail += rawText(*line);
    }
    return file;
}

} // namespace kitwright
