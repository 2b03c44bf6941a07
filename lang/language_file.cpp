// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lang/language_file.h"

#include "text/text_files.h"

namespace kitwright {

void readTexts(std::string_view fileText, UiTexts& texts)
{
    std::size_t number = 0;
    for (const std::string_view line : dataLines(fileText, texts.size()))
        texts[number++] = line;
}

} // namespace kitwright
