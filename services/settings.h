// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"
#include "text/code_page.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kitwright {

/// The persistent editor settings, initially the defaults of a first start. Colours are 0x00BBGGRR.
struct EditorSettings {
    std::uint32_t ConfigKeywordColor = 0xFF8080; ///< Keyword class 1, commands of `config.cpp`.
    bool ConfigKeywordBold = false;
    bool ConfigKeywordItalic = false;
    std::uint32_t CKeywordColor = 0xC00000; ///< Keyword class 2, words of the C language.
    bool CKeywordBold = true;
    bool CKeywordItalic = false;
    std::uint32_t ClassNameColor = 0x0040C0; ///< Keyword class 3, class names.
    bool ClassNameBold = true;
    bool ClassNameItalic = false;
    bool InsertBaseText = true;       ///< A new add-on gets the starting text.
    bool DeclareFromRoot = false;     ///< A click in the class tree declares the class with its ancestors.
    bool KeywordColouringOff = false; ///< Neither typing nor a full pass colours anything.
    bool CommentBold = false;
    bool CommentItalic = false;
    std::uint32_t CommentColor = 0;
    std::string PboFolder;    ///< The packer's destination folder.
    std::string LanguageFile; ///< Full path of the chosen language file.

    friend bool operator==(const EditorSettings&, const EditorSettings&) = default;
};

/// The record as the settings file holds it: little-endian, no padding, Booleans as 16-bit -1 and 0, strings as a
/// 16-bit length and bytes of the code page. A string that does not fit its length field is cut.
std::string encodeSettings(const EditorSettings& settings, const CodePage& codePage);

/// Reads the record's fields in order, as far as `bytes` holds them whole; the two strings are emptied first, every
/// other field that is missing keeps its value. Bytes behind the record are not looked at.
void decodeSettings(std::string_view bytes, const CodePage& codePage, EditorSettings& settings);

/// Writes the record at the start of the file; what a longer file holds behind it stays. One that cannot be read is
/// left as it is, which is a failure.
Failure SaveSettings(FileSystem& files, const CodePage& codePage, const std::string& path,
                     const EditorSettings& settings);

/// Replaces `settings` by the file's record; see `decodeSettings` for a short file.
Failure LoadSettings(const FileSystem& files, const CodePage& codePage, const std::string& path,
                     EditorSettings& settings);

} // namespace kitwright
