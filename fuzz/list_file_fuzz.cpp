// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/list_file.h"

#include "platform/text_files.h"
#include "services/letter_case.h"
#include "support/input.h"
#include "support/target.h"
#include "wizards/catalogue.h"

namespace kitwright::fuzzing {

namespace {

bool isTrimmed(std::string_view text)
{
    return trimmedSpaces(text) == text;
}

void checkEntry(std::string_view line, const ListEntry& entry)
{
    const std::size_t comma = line.find(',');
    require(entry.text == trimmedSpaces(line.substr(0, comma)), "an entry's text ends at the first comma");
    require(isTrimmed(entry.help) && trimmedSpaces(line).ends_with(entry.help), "the help ends its line");
    if (comma == std::string_view::npos)
        require(entry.kind == 0 && entry.help.empty(), "a line without a comma is a text only");
}

void checkBaseClasses(const std::vector<ListEntry>& entries)
{
    const BaseClassList list(entries);
    require(list.count() == static_cast<int>(entries.size()), "every entry is offered as a base class");
    for (int index = 1; index < list.count(); ++index)
        require(upperCased(list.textAt(index - 1)) <= upperCased(list.textAt(index)), "base classes are sorted");
    for (const ListEntry& entry : entries) {
        const int found = list.find(entry.text);
        require(found < 0 || upperCased(list.textAt(found)).starts_with(upperCased(entry.text)),
                "what is found begins with what was looked for");
        const int exact = FindExact(0, list.count() - 1, entry.text, list);
        require(equalIgnoringCase(list.textAt(exact), entry.text), "every base class is found by its name");
    }
}

} // namespace

/// The input is a flat list file.
void tryInput(std::string_view bytes)
{
    const std::string text = decoded(bytes);
    const std::vector<ListEntry> entries = listEntries(text);
    const std::vector<std::string_view> lines = dataLines(text);
    require(entries.size() == lines.size(), "each line is an entry");
    for (std::size_t index = 0; index < entries.size(); ++index)
        checkEntry(lines[index], entries[index]);
    checkBaseClasses(entries);
    const PropertyHelp help(entries);
    for (const ListEntry& entry : entries)
        help.find(entry.text, entry.help);
}

} // namespace kitwright::fuzzing
