// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kitwright {

enum class Severity : std::uint8_t {
    Error,   ///< The game refuses the config, or reads something else than what was meant.
    Warning, ///< It works, but not as meant.
    Hint,
};

/// What is wrong, as it is filtered and counted by.
enum class FindingKind : std::uint8_t {
    MissingSemicolon,
    ExtraSemicolon,
    MissingBrace,
    ExtraBrace,
    ClassWithoutBody,
    UnclosedString,
    UnclosedComment,
    ArrayWithoutBrackets,
    BracketsWithoutArray,
    MissingValue,
    BadValue,
    UnexpectedText,
    UnbalancedDirective,
    MacroRedefined,
    MacroArguments,
    MissingInclude,
    IncludeCase,
    DuplicateClass,
    DuplicateProperty,
    UnknownBase,
    UndeclaredBase,
    BaseCase,
    OwnBase,
    NoPatches,
    UnlistedClass,
    ListedUnknown,
    UnusedDeclaration,
    MissingFile,
    FileCase,
    FileType,
    MissingText,
    ForeignLetter,
    QuotedNumber,
};

/// What is said of a fault; several belong to one kind. The texts stand in messages.cpp.
enum class Message : std::uint8_t {
    MissingSemicolon,
    ExtraSemicolon,
    MissingBrace,
    MissingArrayBrace,
    ExtraBrace,
    ClassWithoutBody,
    ForwardDeclaration,
    UnclosedString,
    UnclosedComment,
    ArrayWithoutBrackets,
    BracketsWithoutArray,
    MissingValue,
    MissingName,
    MissingElement,
    TrailingComma,
    BadValue,
    BadNumber,
    DecimalComma,
    TextBehindString,
    MissingComma,
    TypographicQuotes,
    UnexpectedText,
    UnexpectedCharacter,
    MissingAssign,
    MissingClassWord,
    MisspelledClassWord,
    SemicolonInArray,
    ArraySize,
    MissingBracket,
    LaterDelete,
    LaterAppend,
    LaterEnum,
    UnknownDirective,
    LaterDirective,
    DirectiveWithoutName,
    DirectiveWithoutStart,
    DirectiveWithoutEnd,
    MacroRedefined,
    MacroArguments,
    MacroUnclosed,
    MissingInclude,
    IncludeCase,
    DuplicateClass,
    DuplicateProperty,
    UnknownBase,
    UndeclaredBase,
    BaseDeclaredLater,
    BaseCase,
    OwnBase,
    NoPatches,
    UnlistedVehicle,
    UnlistedWeapon,
    ListedUnknown,
    UnusedDeclaration,
    MissingFile,
    FileCase,
    FileType,
    MissingText,
    PerhapsMissingText,
    ForeignLetter,
    QuotedNumber,
};

/// All kinds, in the order of their declaration.
std::span<const std::string_view> findingIds();

/// The name of a kind that never changes: "missing-semicolon".
std::string_view idOf(FindingKind kind);

FindingKind kindOf(Message message);
Severity severityOf(Message message);

/// "error", "warning" or "hint".
std::string_view nameOf(Severity severity);

/// What is translated of the texts: their context, "Findings".
inline constexpr const char* messageContext = "Findings";

/// The English text, with %1 and %2 where its arguments go; it is the key of its translations.
const char* textOf(Message message);

/// A text with its arguments in the place of %1, %2 ...
std::string withArguments(std::string_view text, std::span<const std::string> arguments);

} // namespace kitwright
