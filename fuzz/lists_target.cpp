// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/targets.h"
#include "lang/language_file.h"
#include "services/class_declarations.h"
#include "services/settings.h"
#include "text/letter_case.h"
#include "text/windows_1250.h"
#include "wizards/catalogue.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace kitwright::fuzzing {

namespace {

/// Entries of a list that are looked up: each search takes as long as the list.
constexpr std::size_t enough = 50;

void checkCharacters(std::string_view bytes, const std::string& text)
{
    const CodePage& page = windows1250();
    require(page.holds(text) && page.encode(text) == bytes, "a file is given back byte for byte");
    // The bytes taken for UTF-8: what someone pastes.
    const std::string kept = page.keepable(bytes);
    require(page.holds(kept) && (!page.holds(bytes) || kept == bytes), "what is held is kept, and nothing else");
    require(upperCased(text).size() == text.size(), "capitals are as long as their letters");
    const std::string ended = withCrLf(text);
    require(hasOnlyCrLf(ended) && withCrLf(ended) == ended, "line ends become CR LF, once");
}

/// Each line but the first declares a class whose parent the line above declares.
void checkDeclarations(const KeywordTree& tree, const std::string& name)
{
    std::string parent;
    const std::string declarations = baseClassDeclarations(tree, name).value_or("");
    for (std::size_t start = 0; start < declarations.size();) {
        const std::string end = start == 0 ? " {};\r\n" : ": " + parent + " {};\r\n";
        const std::size_t behind = declarations.find(end, start);
        require(behind != declarations.npos, "classes are declared behind their parents");
        constexpr std::size_t keyword = std::string_view("   class ").size();
        parent = declarations.substr(start + keyword, behind - start - keyword);
        start = behind + end.size();
    }
    require(declarations.empty() || equalIgnoringCase(parent, name), "a class is declared last");
}

void checkTree(const std::string& text)
{
    KeywordTree tree;
    addTreeLines(text, tree);
    addTreeLines(text, tree);
    const std::vector<TreeNode>& nodes = tree.nodes();
    std::unordered_set<std::string_view> keys;
    for (std::size_t index = 0; index < nodes.size(); ++index) {
        const TreeNode& node = nodes[index];
        require(keys.insert(node.key).second, "keys are unique");
        require((node.level == 0) == (node.parent == TreeNode::noParent), "headings alone have no parent");
        require(node.parent < static_cast<int>(index) && node.depth <= deepestNode, "parents come first");
        require(node.level == 0 || nodes[static_cast<std::size_t>(node.parent)].hasChildren, "parents know it");
        if (index >= enough)
            continue;
        require(*tree.find(node.text) <= static_cast<int>(index), "the first node of a text is found");
        checkDeclarations(tree, node.text);
    }
}

void checkList(const std::string& text)
{
    const std::vector<ListEntry> entries = listEntries(text);
    const std::vector<std::string_view> lines = dataLines(text);
    require(entries.size() == lines.size(), "each line is an entry");
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const auto& [name, kind, help] = entries[index];
        require(name == trimmedSpaces(lines[index].substr(0, lines[index].find(','))),
                "an entry's text ends at the first comma");
        require(trimmedSpaces(lines[index]).ends_with(help), "the help ends its line");
    }
    const BaseClassList classes(entries);
    for (int index = 1; index < classes.count(); ++index)
        require(upperCased(classes.textAt(index - 1)) <= upperCased(classes.textAt(index)),
                "base classes are sorted");
    for (std::size_t index = 0; index < std::min(entries.size(), enough); ++index) {
        const std::string& name = entries[index].text;
        const int found = FindExact(0, classes.count() - 1, name, classes);
        require(found >= 0 && equalIgnoringCase(classes.textAt(found), name), "a class is found by its name");
        classes.find(name);
    }
}

void checkLanguageFile(const std::string& text)
{
    UiTexts texts;
    texts.fill("\r");
    readTexts(text, texts);
    const auto end = std::find(texts.begin(), texts.end(), "\r");
    require(std::all_of(end, texts.end(), [](auto& kept) { return kept == "\r"; }),
            "texts that the file does not reach keep their value");
    std::size_t place = 0;
    for (auto line = texts.begin(); line != end; ++line) {
        require(text.compare(place, line->size(), *line) == 0, "a line is taken as it stands");
        place += line->size();
        require(place == text.size() || text[place] == '\r', "a line ends at CR");
        place += text.compare(place, 2, "\r\n") == 0 ? 2 : 1;
    }
    require(end == texts.end() || place >= text.size(), "no line is left out");
}

void checkSettings(std::string_view bytes)
{
    const CodePage& page = windows1250();
    EditorSettings settings;
    decodeSettings(bytes, page, settings);
    const std::string written = encodeSettings(settings, page);
    EditorSettings again;
    decodeSettings(written + "x", page, again);
    require(again == settings, "settings that were written read as they were");
}

} // namespace

/// The input is each of the files of lines, and the settings.
void tryLists(std::string_view bytes)
{
    const std::string text = windows1250().decode(bytes);
    checkCharacters(bytes, text);
    checkTree(text);
    checkList(text);
    checkLanguageFile(text);
    checkSettings(bytes);
    require(std::isfinite(leadingNumber(text)), "a number is finite");
}

} // namespace kitwright::fuzzing
