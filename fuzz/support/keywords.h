// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"
#include "services/settings.h"

namespace kitwright::fuzzing {

/// Keywords of every class, one of them beyond ASCII, and one of a class that has no style.
inline KeywordList sampleKeywords()
{
    KeywordList keywords;
    keywords.addLines("Man\r\n\u0160koda\r\n", KeywordClass::ClassName);
    keywords.addLines("requiredVersion\r\nunits[]\r\n", KeywordClass::ConfigCommand);
    keywords.addLines("class\r\nCfgPatches\r\n", KeywordClass::CLanguageWord);
    keywords.addLines("odd\r\n", KeywordClass{7});
    return keywords;
}

/// Settings under which no two kinds of text look alike.
inline EditorSettings distinctStyles()
{
    EditorSettings settings;
    settings.ConfigKeywordItalic = true;
    settings.CommentColor = 0x008000;
    return settings;
}

} // namespace kitwright::fuzzing
