// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_file.h"

#include "support/input.h"
#include "support/target.h"

namespace kitwright::fuzzing {

/// The input is a language file.
void tryInput(std::string_view bytes)
{
    const std::string text = decoded(bytes);
    UiTexts texts;
    texts.fill("\r");
    readTexts(text, texts);

    std::size_t reached = 0;
    std::size_t place = 0;
    for (; reached < texts.size() && texts[reached] != "\r"; ++reached) {
        require(text.compare(place, texts[reached].size(), texts[reached]) == 0, "a line is taken as it stands");
        place += texts[reached].size();
        require(place == text.size() || text[place] == '\r', "a text ends where its line does");
        place += text.compare(place, 2, "\r\n") == 0 ? 2 : 1;
    }
    require(reached == texts.size() || place >= text.size(), "no line is left out");
    for (std::size_t index = reached; index < texts.size(); ++index)
        require(texts[index] == "\r", "texts that the file does not reach keep their value");
}

} // namespace kitwright::fuzzing
