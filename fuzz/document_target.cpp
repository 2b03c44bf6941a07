// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/colouring.h"
#include "fuzz/targets.h"
#include "services/config_scanner.h"
#include "text/letter_case.h"
#include "text/windows_1250.h"

namespace kitwright::fuzzing {

namespace {

/// Keywords of every class, some in two spellings, and one whose class has no style.
KeywordList keywordList()
{
    KeywordList keywords;
    keywords.addLines("Man\r\nŠkoda\r\n", KeywordClass::ClassName);
    keywords.addLines("requiredVersion\r\nunits[]\r\n\r\n", KeywordClass::ConfigCommand);
    keywords.addLines("class\r\nCfgPatches\r\n", KeywordClass::CLanguageWord);
    keywords.add("cLASS", KeywordClass::ClassName);
    keywords.addLines("odd\r\n", KeywordClass{7});
    return keywords;
}

void checkPatchClassName(const std::string& text)
{
    const std::string former = "two words";
    std::string name = former;
    ReadPatchClassName(text, name);
    std::string loudName = upperCased(former);
    ReadPatchClassName(upperCased(text), loudName);
    require(loudName == upperCased(name), "letter case does not matter to the patch class");
    if (name == former)
        return;
    require(name.find_first_of(" \r\n") == name.npos && text.find(name) != text.npos,
            "the patch class is a word of the document");
}

void checkFullPass(const std::string& text)
{
    static const KeywordList keywords = keywordList();
    const FullPass pass = colourText(text, keywords, {});
    require(pass.styles.entries.size() == text.size(), "there is one entry for each byte");
    for (const char entry : pass.styles.entries)
        require(entry == StyleMap::keep || static_cast<unsigned char>(entry) < pass.styles.palette.size(),
                "every entry is a style");

    const std::string embedded = "//" + text + "/ CLASS ";
    const FullPass within = colourText(std::string_view(embedded).substr(2, text.size()), keywords, {});
    require(within.styles.entries == pass.styles.entries, "nothing around the text is read");

    std::string respelled = text;
    for (const auto& [start, spelling] : pass.respellings) {
        require(text.compare(start, spelling.size(), spelling) != 0, "what is respelled was misspelt");
        respelled.replace(start, spelling.size(), spelling);
    }
    require(upperCased(respelled) == upperCased(text), "nothing but letter case changes");
    const FullPass again = colourText(respelled, keywords, {});
    require(again.respellings.empty() && again.styles.entries == pass.styles.entries,
            "a second pass changes nothing");
}

} // namespace

/// The input is a document.
void tryDocument(std::string_view bytes)
{
    const std::string text = windows1250().decode(bytes);
    checkPatchClassName(text);
    checkFullPass(text);
}

} // namespace kitwright::fuzzing
