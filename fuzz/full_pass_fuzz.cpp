// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"
#include "support/input.h"
#include "support/keywords.h"
#include "support/string_text_box.h"
#include "support/target.h"
#include "text/letter_case.h"

#include <algorithm>
#include <optional>

namespace kitwright::fuzzing {

namespace {

/// The words of a text, as a full pass takes them.
std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> result;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" \r\n", start), text.size());
        result.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return result;
}

/// The style of each byte of a text; nothing for one that keeps what it has.
using Styles = std::vector<std::optional<TextStyle>>;

/// The styles that a full pass gives, by the letter of the rules: one character after the other.
Styles ruledStyles(std::string_view text, const KeywordList& keywords, const EditorSettings& settings)
{
    Styles result(text.size());
    std::size_t wordStart = 0;
    bool comment = false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        comment = comment || text.substr(place, 2) == "//";
        if (comment) {
            result[place] = commentStyle(settings);
            comment = text[place] != '\n';
            wordStart = place + 1;
        } else if (text[place] == ' ' || text[place] == '\r' || text[place] == '\n') {
            const std::string_view word = text.substr(wordStart, place - wordStart);
            const int found = FindExact(0, keywords.count() - 1, word, keywords);
            const auto style = found < 0 ? TextStyle{} : keywordStyle(keywords.classAt(found), settings);
            std::fill_n(result.begin() + static_cast<std::ptrdiff_t>(wordStart), word.size(), style);
            result[place] = TextStyle{};
            wordStart = place + 1;
        }
    }
    return result;
}

Styles givenStyles(const StyleMap& map)
{
    Styles result;
    for (const char entry : map.entries) {
        const bool keeps = entry == StyleMap::keep;
        result.push_back(keeps ? std::nullopt : std::optional(map.palette[static_cast<unsigned char>(entry)]));
    }
    return result;
}

std::vector<TextStyle> styles(const RichTextBox& box)
{
    std::vector<TextStyle> result;
    for (Position place = 0; place < box.length(); ++place)
        result.push_back(box.styleAt(place));
    return result;
}

void checkPass(const std::string& text, const KeywordList& keywords)
{
    const EditorSettings settings = distinctStyles();
    const FullPass pass = colourText(text, keywords, settings);
    require(pass.styles.entries.size() == text.size(), "there is one entry for each byte");
    for (const char entry : pass.styles.entries)
        require(entry == StyleMap::keep || static_cast<unsigned char>(entry) < pass.styles.palette.size(),
                "every entry is a style");
    require(givenStyles(pass.styles) == ruledStyles(text, keywords, settings), "every style is by the rules");
    // Neighbours that would show if they were read.
    const std::string embedded = "//" + text + "/ CLASS ";
    const FullPass within = colourText(std::string_view(embedded).substr(2, text.size()), keywords, settings);
    require(within.styles.entries == pass.styles.entries, "nothing around the text is read");

    StringTextBox box(text);
    box.select(text.size() / 2, 1);
    const Selection selected = box.selection();
    colourBox(box, keywords, settings);
    require(box.selection() == selected, "the selection stays");
    require(upperCased(box.text()) == upperCased(text), "nothing but letter case changes");
    std::string respelled = text;
    for (const Respelling& respelling : pass.respellings) {
        const std::string_view spelling = keywords.textAt(respelling.keyword);
        respelled.replace(respelling.start, spelling.size(), spelling);
    }
    require(box.text() == respelled, "no other words than keywords change");
    const std::vector<TextStyle> coloured = styles(box);
    const int steps = box.undoSteps();
    require(steps == (respelled == text ? 0 : 1), "a pass that respells is one undo step, any other none");
    colourBox(box, keywords, settings);
    require(box.text() == respelled && styles(box) == coloured && box.undoSteps() == steps,
            "a second pass changes nothing");
}

} // namespace

/// The first piece is a keyword file, the second a document.
void tryInput(std::string_view bytes)
{
    Pieces pieces(bytes);
    KeywordList keywords = sampleKeywords();
    const std::string file = pieces.text();
    keywords.addLines(file, KeywordClass::ConfigCommand);
    const std::string text = pieces.text();
    for (const std::string& searched : {file, text}) {
        for (const std::string_view word : words(searched))
            require(keywords.find(word) == FindExact(0, keywords.count() - 1, word, keywords),
                    "a keyword is found as the binary search finds it");
    }
    checkPass(text, keywords);
    keywords.add("", KeywordClass::ClassName);
    keywords.add("cLASS", KeywordClass::ClassName);
    checkPass(text, keywords);
}

} // namespace kitwright::fuzzing
