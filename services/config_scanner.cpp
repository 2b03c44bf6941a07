// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/config_scanner.h"

#include "text/find_text.h"
#include "text/letter_case.h"
#include "text/utf8.h"

namespace kitwright {

namespace {

/// Where a character of a UTF-8 text starts, counted from 0; the length of the text when it has not so many.
std::size_t offsetOf(std::string_view text, int character)
{
    std::size_t offset = 0;
    for (; character > 0 && offset < text.size(); --character)
        offset += utf8At(text, offset).length;
    return offset;
}

} // namespace

void ReadPatchClassName(std::string_view text, std::string& PatchClassName)
{
    constexpr std::string_view keyword = "CFGPATCHES";
    const std::size_t found = findIgnoringCase(text, keyword);
    // The scan starts on the keyword's last letter; without a keyword, on the ninth character.
    const std::size_t start = found == std::string_view::npos ? offsetOf(text, 8) : found + keyword.size() - 1;

    long depth = 0;
    bool entered = false;
    bool classNext = false;
    std::size_t wordStart = start;

    for (std::size_t i = start; i < text.size(); ++i) {
        const char character = text[i];
        if (character == '{')
            ++depth;
        if (depth == 1)
            entered = true;
        if (character == ' ' || character == '\r' || character == '\n') {
            const std::string_view word = text.substr(wordStart, i - wordStart);
            if (classNext) {
                PatchClassName = word;
                classNext = false;
                depth = 0;
            }
            if (word.size() == 5 && equalIgnoringCase(word, "CLASS"))
                classNext = true;
            wordStart = i + 1;
        }
        if (character == '}')
            --depth;
        if (depth == 0 && entered)
            return;
    }
}

} // namespace kitwright
