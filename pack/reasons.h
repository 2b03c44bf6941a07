// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>

// What marks a text for the translators' tools, as the desktop library has it. Logic does without that library, and a
// window looks the text up in the context "pack".
#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(scope, x) x
#endif

namespace kitwright {

/// "subject: why". What a terminal or a list would take for more than a letter becomes a question mark, and a long
/// subject is cut. `why` is one of the texts below, so that a window can translate it.
std::string because(std::string_view subject, const char* why);

/// The text without control characters, each a question mark instead.
std::string printable(std::string_view text);

/// Why something cannot be packed, listed, verified or unpacked.
namespace why {

// Names.
inline constexpr const char* isAbsolute = QT_TRANSLATE_NOOP("pack", "the name is absolute");
inline constexpr const char* namesADrive = QT_TRANSLATE_NOOP("pack", "the name has a drive letter or a colon");
inline constexpr const char* leadsUp = QT_TRANSLATE_NOOP("pack", "the name leads out of its folder");
inline constexpr const char* hasEmptyPart = QT_TRANSLATE_NOOP("pack", "the name has an empty part");
inline constexpr const char* hasSeparator = QT_TRANSLATE_NOOP("pack", "the name has a foreign separator");
inline constexpr const char* hasControl = QT_TRANSLATE_NOOP("pack", "the name has a control character");
inline constexpr const char* hasForbidden =
    QT_TRANSLATE_NOOP("pack", "the name has a character that not every file system takes");
inline constexpr const char* endsBadly = QT_TRANSLATE_NOOP("pack", "the name ends with a dot or a blank");
inline constexpr const char* namesADevice = QT_TRANSLATE_NOOP("pack", "the name is that of a device");
inline constexpr const char* isTooLong = QT_TRANSLATE_NOOP("pack", "the name is too long");
inline constexpr const char* lacksCharacters =
    QT_TRANSLATE_NOOP("pack", "the name has a character that the code page lacks");
inline constexpr const char* isTwin =
    QT_TRANSLATE_NOOP("pack", "another name differs from this one by letter case at most");
inline constexpr const char* isFileAndFolder =
    QT_TRANSLATE_NOOP("pack", "the name is that of a file and of a folder");

// Files and folders to pack.
inline constexpr const char* isTooLarge = QT_TRANSLATE_NOOP("pack", "more than 4 GiB");
inline constexpr const char* hasTooMany = QT_TRANSLATE_NOOP("pack", "too many files");
inline constexpr const char* hasChanged = QT_TRANSLATE_NOOP("pack", "changed while it was packed");
inline constexpr const char* isNoArchive =
    QT_TRANSLATE_NOOP("pack", "is there already, is no archive and is not replaced");
inline constexpr const char* isWrittenWrong = QT_TRANSLATE_NOOP("pack", "was not written as it should be");
inline constexpr const char* hasNoPrefix =
    QT_TRANSLATE_NOOP("pack", "there is no $PBOPREFIX$ to take the prefix from");
inline constexpr const char* isBadPrefix = QT_TRANSLATE_NOOP("pack", "cannot be a prefix");
inline constexpr const char* hasTooManyPatterns = QT_TRANSLATE_NOOP("pack", "too long a list of patterns");
inline constexpr const char* wasStopped = QT_TRANSLATE_NOOP("pack", "stopped");

// Archives.
inline constexpr const char* hasCutList = QT_TRANSLATE_NOOP("pack", "the list of files is cut");
inline constexpr const char* hasUnknownMethod = QT_TRANSLATE_NOOP("pack", "stored in an unknown way");
inline constexpr const char* hasBadEnd = QT_TRANSLATE_NOOP("pack", "the list of files does not end as it should");
inline constexpr const char* hasBadProperties =
    QT_TRANSLATE_NOOP("pack", "properties that are out of place or damaged");
inline constexpr const char* hasBadSize = QT_TRANSLATE_NOOP("pack", "the sizes contradict each other");
inline constexpr const char* isBeyondEnd = QT_TRANSLATE_NOOP("pack", "the data go beyond the end of the archive");
inline constexpr const char* hasRest = QT_TRANSLATE_NOOP("pack", "something else follows the data");
inline constexpr const char* hasCutData = QT_TRANSLATE_NOOP("pack", "the compressed data are cut");
inline constexpr const char* hasLongData =
    QT_TRANSLATE_NOOP("pack", "the compressed data hold more than they should");
inline constexpr const char* copiesNothing =
    QT_TRANSLATE_NOOP("pack", "the compressed data repeat what has not been there");
inline constexpr const char* hasWrongSum = QT_TRANSLATE_NOOP("pack", "the sum of the bytes is wrong");
inline constexpr const char* hasWrongHash = QT_TRANSLATE_NOOP("pack", "the SHA-1 at the end is wrong");

} // namespace why

} // namespace kitwright
