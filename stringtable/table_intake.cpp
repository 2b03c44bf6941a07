// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stringtable/string_table.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace kitwright {

namespace {

/// A line without its line end, to tell whether two files both have it.
std::string lineContent(TableRecord line)
{
    line.lineEnd.clear();
    return rawText(line);
}

/// Tells which of the lines around the table's records another file has itself.
class KnownLines {
public:
    explicit KnownLines(const TableFile& file)
    {
        addAll(file.layout.preamble);
        for (const TablePart& part : file.parts)
            addAll(part.before);
        addAll(file.tail);
    }

    /// Takes the lines out that the file has, and records under a key of its.
    std::vector<TableRecord> unknown(std::string_view lines) const
    {
        std::vector<TableRecord> result = tableLines(lines);
        std::erase_if(result, [this](const TableRecord& line) {
            return m_lines.contains(lineContent(line))
                || (looksLikeRecord(line) && m_keys.contains(fieldText(line.fields.front())));
        });
        return result;
    }

private:
    void addAll(std::string_view lines)
    {
        for (const TableRecord& line : tableLines(lines)) {
            m_lines.insert(lineContent(line));
            if (looksLikeRecord(line))
                m_keys.insert(fieldText(line.fields.front()));
        }
    }

    std::unordered_set<std::string> m_lines;
    std::unordered_set<std::string> m_keys;
};

/// Lines around the records, and where the table keeps them.
struct LineGroup {
    std::string* place;
    std::vector<TableRecord> lines;
};

/// True when one of the lines has something in a field; field 0 stands for none.
bool anyHasField(const std::vector<LineGroup>& groups, std::size_t field)
{
    const auto hasField = [field](const TableRecord& line) {
        return looksLikeRecord(line) && field > 0 && field < line.fields.size() && !line.fields[field].empty();
    };
    return std::any_of(groups.begin(), groups.end(), [&](const LineGroup& group) {
        return std::any_of(group.lines.begin(), group.lines.end(), hasField);
    });
}

/// The lines under another heading, each with a line end.
std::string movedLines(std::vector<TableRecord> lines, const TableColumns& from, TableHeading& to,
                       const std::string& lineEnd)
{
    std::string text;
    for (TableRecord& line : lines) {
        if (line.lineEnd.empty())
            line.lineEnd = lineEnd;
        if (looksLikeRecord(line)) {
            line = movedRecord(line, from, to);
            to.width = std::max(to.width, filledFields(line));
        }
        text += rawText(line);
    }
    return text;
}

} // namespace

/// Finds for each record of a file the row with its key, each row once, in list order.
class StringTable::Intake {
public:
    /// `former` is what the file held when the table last saw it; nullptr for a file that it never saw. Made while
    /// the table still has the columns of the former file.
    Intake(StringTable& table, const TableFile* former) : m_table(table), m_again(former != nullptr)
    {
        for (std::size_t i = table.StringCount(); i-- > 0;) {
            const Row& row = table.StringEntries[i];
            // Two keys without a name are not the same key.
            if (m_again || !row.Key.empty())
                m_rows[m_again && row.record ? recordKey(*row.record) : row.Key].push_back(i);
        }
        if (!former)
            return;
        for (const TablePart& part : former->parts)
            ++m_formerly[recordKey(part.record)];
        for (const Row& row : table.StringEntries)
            m_formerTexts.push_back(row.record ? table.textsOf(*row.record) : row.Texts);
    }

    /// Lines that come in front of the next record.
    void passBy(std::string_view lines) { m_passed += lines; }

    void take(const TablePart& part)
    {
        const std::string key = recordKey(part.record);
        const bool known = m_formerly[key]-- > 0;
        std::vector<std::size_t>& rows = m_rows[key];
        // A key that the author does not want written must not take a foreign record with it.
        while (!known && !rows.empty() && !m_table.StringEntries[rows.back()].ticked)
            rows.pop_back();
        passBy(part.before);
        if (!rows.empty()) {
            m_table.StringEntries[rows.back()].before += passed();
            merge(rows.back(), part.record);
            rows.pop_back();
        } else if (!known) {
            append(part.record);
        }
    }

    std::string passed() { return std::exchange(m_passed, {}); }

private:
    void append(const TableRecord& record)
    {
        Row row;
        row.Key = recordKey(record);
        row.Texts = m_table.textsOf(record);
        row.inFile = true;
        row.record = record;
        row.before = passed();
        m_table.append(std::move(row));
    }

    /// True for a text that the row has, and that did not come out of the file that is read again.
    bool isAuthors(std::size_t index, std::size_t language) const
    {
        const Row& row = m_table.StringEntries[index];
        const std::string& text = row.Texts[language];
        return m_again && row.record ? text != m_formerTexts[index][language] : !text.empty();
    }

    void merge(std::size_t index, TableRecord record) const
    {
        Row& row = m_table.StringEntries[index];
        std::vector<std::string> texts = m_table.textsOf(record);
        for (std::size_t language = 0; language < texts.size(); ++language) {
            if (!isAuthors(index, language))
                row.Texts[language] = std::move(texts[language]);
        }
        if (!m_again && row.record) {
            std::vector<std::string>& own = row.record->fields;
            own.resize(std::max(own.size(), record.fields.size()));
            for (std::size_t field = 0; field < record.fields.size(); ++field) {
                if (own[field].empty())
                    own[field] = record.fields[field];
            }
            return;
        }
        row.record = std::move(record);
    }

    StringTable& m_table;
    bool m_again;
    std::unordered_map<std::string, std::vector<std::size_t>>
        m_rows;                                          ///< By key in the file, the first at the back.
    std::unordered_map<std::string, int> m_formerly;     ///< How many records the file had of a key.
    std::vector<std::vector<std::string>> m_formerTexts; ///< What the file said, by row.
    std::string m_passed;
};

void StringTable::takeIn(const TableFile& file)
{
    takeInParts(file, nullptr);
}

void StringTable::takeInAgain(const TableFile& file, const TableFile& former)
{
    // The lines around the records are all the file's; it brings those that it still has.
    for (Row& row : StringEntries)
        row.before.clear();
    m_tail.clear();
    m_layout.preamble.clear();
    takeInParts(file, &former);
}

void StringTable::takeInParts(const TableFile& file, const TableFile* former)
{
    addFileLanguages(file);
    Intake intake(*this, former);
    moveRowsTo(file);
    intake.passBy(std::exchange(m_tail, {}));
    for (const TablePart& part : file.parts)
        intake.take(part);
    m_tail = intake.passed() + file.tail;
}

void StringTable::addFileLanguages(const TableFile& file)
{
    if (!file.layout.header)
        return;
    const std::vector<std::string> names = headerLanguages(*file.layout.header);
    const TableColumns columns = columnsFor(file.layout.header, m_languages);
    for (std::size_t column = 0; column < names.size(); ++column) {
        if (!names[column].empty() && std::find(columns.begin(), columns.end(), column + 1) == columns.end())
            m_languages.push_back(names[column]);
    }
    for (Row& row : StringEntries)
        row.Texts.resize(m_languages.size());
    m_columns = columnsFor(m_layout.header, m_languages);
}

void StringTable::moveRowsTo(const TableFile& file)
{
    std::vector<std::string*> places{&m_tail};
    for (Row& row : StringEntries)
        places.push_back(&row.before);
    places[StringEntries.empty() ? 0 : 1]->insert(0, m_layout.preamble);

    const bool anyLines =
        std::any_of(places.begin(), places.end(), [](const std::string* place) { return !place->empty(); });
    const KnownLines known(anyLines ? file : TableFile());
    std::vector<LineGroup> groups;
    groups.reserve(places.size());
    for (std::string* place : places)
        groups.push_back({place, known.unknown(*place)});
    TableHeading to{file.layout.header.value_or(plainHeader(m_languages)),
                    columnsFor(file.layout.header, m_languages), file.layout.width};
    // The rows keep their texts beside their records; for the lines around them, the fields are all there is.
    for (std::size_t language = 0; language < m_languages.size(); ++language) {
        if (to.columns[language] == 0 && anyHasField(groups, m_columns[language]))
            to.addColumn(language, m_languages[language]);
    }
    for (LineGroup& group : groups)
        *group.place = movedLines(std::move(group.lines), m_columns, to, file.layout.lineEnd);
    for (Row& row : StringEntries) {
        if (row.record) {
            row.record = movedRecord(*row.record, m_columns, to);
            to.width = std::max(to.width, filledFields(*row.record));
        }
    }
    m_layout = file.layout;
    m_layout.width = to.width;
    if (m_layout.header)
        m_layout.header = std::move(to.header);
    m_columns = std::move(to.columns);
}

void StringTable::release()
{
    std::erase_if(StringEntries, [](const Row& row) { return row.inFile; });
    for (Row& row : StringEntries) {
        row.record.reset();
        row.before.clear();
    }
    for (std::size_t language = m_languages.size(); language-- > m_ownLanguages;) {
        const bool needed = std::any_of(StringEntries.begin(), StringEntries.end(),
                                        [&](const Row& row) { return !row.Texts[language].empty(); });
        if (needed)
            continue;
        const auto offset = static_cast<std::ptrdiff_t>(language);
        m_languages.erase(m_languages.begin() + offset);
        for (Row& row : StringEntries)
            row.Texts.erase(row.Texts.begin() + offset);
    }
    m_layout = {};
    m_tail.clear();
    m_columns = columnsFor(m_layout.header, m_languages);
}

} // namespace kitwright
