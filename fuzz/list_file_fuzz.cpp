// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/list_file.h"

#include "support/input.h"
#include "support/target.h"
#include "text/letter_case.h"
#include "text/text_files.h"
#include "wizards/catalogue.h"

#include <algorithm>

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

/// Beginnings are compared without the spaces around them, so that what sorts in front of a space confuses the search
/// for one; no class is named so.
bool hasControlCharacters(const std::string& text)
{
    return std::any_of(text.begin(), text.end(), [](unsigned char character) { return character < ' '; });
}

/// What both searches have to agree with: a look at each class.
void checkSearches(const BaseClassList& list, std::string_view name)
{
    const std::string wanted = upperCased(name);
    int first = -1;
    int equal = -1;
    for (int index = list.count() - 1; index >= 0; --index) {
        const std::string text = upperCased(list.textAt(index));
        first = text.starts_with(wanted) ? index : first;
        equal = text == wanted ? index : equal;
    }
    require(name.empty() || list.find(name) == first, "the first class with a beginning is found");
    const int exact = FindExact(0, list.count() - 1, name, list);
    require((exact < 0) == (equal < 0), "a class is found by its name, and nothing by any other");
    require(exact < 0 || equalIgnoringCase(list.textAt(exact), name), "what is found has the name");
}

void checkBaseClasses(const std::vector<ListEntry>& entries)
{
    const BaseClassList list(entries);
    require(list.count() == static_cast<int>(entries.size()), "every entry is offered as a base class");
    for (int index = 1; index < list.count(); ++index)
        require(upperCased(list.textAt(index - 1)) <= upperCased(list.textAt(index)), "base classes are sorted");
    if (std::any_of(entries.begin(), entries.end(), [](auto& entry) { return hasControlCharacters(entry.text); }))
        return;
    constexpr std::size_t enough = 20;
    for (std::size_t index = 0; index < std::min(entries.size(), enough); ++index) {
        const std::string_view name = entries[index].text;
        checkSearches(list, name);
        checkSearches(list, trimmedSpaces(name.substr(0, characterStart(name, name.size() / 2))));
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
