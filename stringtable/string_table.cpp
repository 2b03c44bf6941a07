// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/string_table.h"

#include "text/text_files.h"

#include <algorithm>
#include <utility>

namespace kitwright {

namespace {

constexpr std::string_view lineBreaks = "\r\n";

/// Where the blank lines at the end of some lines begin.
std::size_t blankEnd(std::string_view lines)
{
    const std::size_t last = lines.find_last_not_of(" \t\r\n");
    if (last == std::string_view::npos)
        return 0;
    const std::size_t end = std::min(lines.find_first_of(lineBreaks, last), lines.size());
    return std::min(end + (lines.substr(end, 2) == lineBreaks ? 2 : 1), lines.size());
}

/// Appends lines, and before them the line end that the last one may lack.
void appendLines(std::string& text, std::string_view lines, std::string_view lineEnd)
{
    if (lines.empty())
        return;
    if (!text.empty() && lineBreaks.find(text.back()) == std::string_view::npos)
        text += lineEnd;
    text += lines;
}

/// The lines with every open quote of theirs closed.
std::string settledLines(std::string_view lines)
{
    std::string text;
    for (TableRecord& line : tableLines(lines)) {
        settleOpenQuotes(line);
        text += rawText(line);
    }
    return text;
}

/// True when the pieces, one behind the other, read as the same fields as each of them does by itself.
bool readApart(const std::vector<std::string>& pieces, std::string_view text)
{
    const std::vector<TableRecord> together = tableLines(text);
    auto line = together.begin();
    for (const std::string& piece : pieces) {
        for (const TableRecord& single : tableLines(piece)) {
            if (line == together.end() || (line++)->fields != single.fields)
                return false;
        }
    }
    return line == together.end();
}

std::string_view fieldAt(const TableRecord& record, std::size_t field)
{
    return field < record.fields.size() ? std::string_view(record.fields[field]) : std::string_view();
}

} // namespace

void StringTable::addLanguage(std::string name)
{
    m_languages.insert(m_languages.begin() + static_cast<std::ptrdiff_t>(m_ownLanguages), std::move(name));
    for (Row& row : StringEntries)
        row.Texts.insert(row.Texts.begin() + static_cast<std::ptrdiff_t>(m_ownLanguages), std::string());
    ++m_ownLanguages;
    m_columns = columnsFor(m_layout.header, m_languages);
}

void StringTable::add()
{
    Row row;
    row.Texts.resize(m_languages.size());
    // New records go in front of the empty lines that a file may end with.
    const std::size_t end = blankEnd(m_tail);
    row.before = m_tail.substr(0, end);
    m_tail.erase(0, end);
    append(std::move(row));
}

void StringTable::append(Row row)
{
    row.number = StringCount() + 1;
    StringEntries.push_back(std::move(row));
}

void StringTable::remove(std::size_t index)
{
    const std::string before = std::move(StringEntries[index].before);
    StringEntries.erase(StringEntries.begin() + static_cast<std::ptrdiff_t>(index));
    std::string& following = index < StringCount() ? StringEntries[index].before : m_tail;
    following.insert(0, before);
}

void StringTable::removeAll()
{
    std::string lines;
    for (const Row& row : StringEntries)
        appendLines(lines, row.before, m_layout.lineEnd);
    appendLines(lines, m_tail, m_layout.lineEnd);
    m_tail = std::move(lines);
    StringEntries.clear();
}

void StringTable::setKey(std::size_t index, std::string_view key)
{
    StringEntries[index].Key = key;
}

void StringTable::setText(std::size_t index, std::size_t language, std::string_view text)
{
    StringEntries[index].Texts[language] = text;
}

void StringTable::setTicked(std::size_t index, bool ticked)
{
    StringEntries[index].ticked = ticked;
}

bool StringTable::hasRoomFor(const TableFile& file) const
{
    const std::size_t columns = file.layout.header ? file.layout.header->fields.size() : 0;
    return file.parts.size() * (m_languages.size() + columns) <= mostTexts;
}

std::string StringTable::text() const
{
    const TableHeading written = heading();
    std::vector<std::string> pieces = piecesBehindHeader(written);
    std::string lines = joined(pieces);
    if (m_layout.unheaded && *m_layout.unheaded == lines)
        return lines;
    pieces.insert(pieces.begin(), m_layout.preamble + rawText(written.header));
    std::string text = joined(pieces);
    // Lines meet that no file had side by side: a quote that nothing closed could pair up with one of the other's.
    if (!readApart(pieces, text)) {
        for (std::string& piece : pieces)
            piece = settledLines(piece);
        text = joined(pieces);
    }
    return text;
}

void StringTable::written()
{
    TableHeading written = heading();
    for (Row& row : StringEntries) {
        row.inFile = row.ticked;
        if (row.record)
            row.record = recordOf(row, written);
    }
    if (!m_layout.header)
        return;
    m_layout.header = std::move(written.header);
    m_columns = std::move(written.columns);
}

TableHeading StringTable::heading() const
{
    if (!m_layout.header)
        return {plainHeader(m_languages), m_columns};
    TableHeading heading{*m_layout.header, m_columns, m_layout.width};
    for (std::size_t language = 0; language < m_languages.size(); ++language) {
        const auto hasText = [&](const Row& row) { return row.ticked && !row.Texts[language].empty(); };
        if (heading.columns[language] == 0 && std::any_of(StringEntries.begin(), StringEntries.end(), hasText))
            heading.addColumn(language, m_languages[language]);
    }
    return heading;
}

TableRecord StringTable::recordOf(const Row& row, const TableHeading& heading) const
{
    const std::string key = std::string(keyPrefix) + row.Key;
    TableRecord record;
    if (row.record) {
        record = *row.record;
        if (recordKey(record) != row.Key)
            record.fields.front() = withFieldText(record.fields.front(), key);
    } else {
        record = {{key}, m_layout.lineEnd};
        record.fields.resize(heading.header.fields.size());
    }
    for (std::size_t language = 0; language < m_languages.size(); ++language) {
        const std::size_t field = heading.columns[language];
        const std::string& text = row.Texts[language];
        if (field == 0 || withCrLf(fieldText(fieldAt(record, field))) == text)
            continue;
        record.fields.resize(std::max(record.fields.size(), field + 1));
        // A key that was added here is written as the author typed it.
        record.fields[field] = row.record ? withFieldText(record.fields[field], text) : text;
    }
    if (row.record && record != *row.record)
        settleOpenQuotes(record);
    return record;
}

std::vector<std::string> StringTable::textsOf(const TableRecord& record) const
{
    std::vector<std::string> texts(m_languages.size());
    for (std::size_t language = 0; language < texts.size(); ++language) {
        if (m_columns[language] > 0)
            texts[language] = withCrLf(fieldText(fieldAt(record, m_columns[language])));
    }
    return texts;
}

std::vector<std::string> StringTable::piecesBehindHeader(const TableHeading& heading) const
{
    std::vector<std::string> pieces;
    for (const Row& row : StringEntries) {
        pieces.push_back(row.before);
        if (row.ticked)
            pieces.push_back(rawText(recordOf(row, heading)));
    }
    pieces.push_back(m_tail);
    return pieces;
}

std::string StringTable::joined(const std::vector<std::string>& pieces) const
{
    std::string lines;
    for (const std::string& piece : pieces)
        appendLines(lines, piece, m_layout.lineEnd);
    return lines;
}

} // namespace kitwright
