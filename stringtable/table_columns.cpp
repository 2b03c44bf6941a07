// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/table_columns.h"

#include "text/letter_case.h"

#include <algorithm>

namespace kitwright {

std::vector<std::string> headerLanguages(const TableRecord& header)
{
    std::vector<std::string> names;
    for (std::size_t field = 1; field < header.fields.size(); ++field)
        names.emplace_back(trimmedSpaces(fieldText(header.fields[field])));
    return names;
}

TableColumns columnsFor(const std::optional<TableRecord>& header, const std::vector<std::string>& languages)
{
    TableColumns columns(languages.size());
    if (!header) {
        for (std::size_t language = 0; language < languages.size(); ++language)
            columns[language] = language + 1;
        return columns;
    }
    std::vector<std::string> names = headerLanguages(*header);
    for (std::size_t language = 0; language < languages.size(); ++language) {
        const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
            return !name.empty() && equalIgnoringCase(name, languages[language]);
        });
        if (found == names.end())
            continue;
        columns[language] = static_cast<std::size_t>(found - names.begin()) + 1;
        found->clear();
    }
    return columns;
}

TableRecord plainHeader(const std::vector<std::string>& languages)
{
    TableRecord header{{"LANGUAGE"}, "\r\n"};
    header.fields.insert(header.fields.end(), languages.begin(), languages.end());
    if (languages.empty())
        header.fields.emplace_back();
    return header;
}

std::size_t filledFields(const TableRecord& record)
{
    const auto filled = [](const std::string& field) { return !field.empty(); };
    const auto last = std::find_if(record.fields.rbegin(), record.fields.rend(), filled);
    return static_cast<std::size_t>(record.fields.rend() - last);
}

void TableHeading::addColumn(std::size_t language, const std::string& name)
{
    width = std::max(width, header.fields.size());
    header.fields.resize(width);
    header.fields.push_back(name);
    columns[language] = width++;
}

TableRecord movedRecord(const TableRecord& record, const TableColumns& from, const TableHeading& to)
{
    if (from == to.columns)
        return record;
    TableRecord moved{{record.fields.front()}, record.lineEnd};
    std::size_t behind = to.header.fields.size();
    for (std::size_t field = 1; field < filledFields(record); ++field) {
        const auto language = static_cast<std::size_t>(std::find(from.begin(), from.end(), field) - from.begin());
        const std::size_t place = language < from.size() ? to.columns[language] : behind++;
        if (place == 0 || record.fields[field].empty())
            continue;
        moved.fields.resize(std::max(moved.fields.size(), place + 1));
        moved.fields[place] = record.fields[field];
    }
    return moved;
}

} // namespace kitwright
