// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/keyword_list.h"
#include "services/settings.h"

namespace kitwright::testing {

/// Keywords of every class: `class` and `CfgPatches` of the C language, `requiredVersion` and `units[]` of the config,
/// the class names `Man` and `Škoda`, and `odd`, whose class number has no style.
inline KeywordList sampleKeywords()
{
    KeywordList keywords;
    keywords.addLines("Man\r\nŠkoda\r\n", KeywordClass::ClassName);
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
    settings.CommentItalic = true;
    return settings;
}

} // namespace kitwright::testing
