// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/messages.h"

#include <array>

// The mark by which the translators' tool finds the texts; it leaves them as they are.
#define QT_TRANSLATE_NOOP(context, text) text

namespace kitwright {

namespace {

constexpr std::array<std::string_view, 33> ids = {
    "missing-semicolon",
    "extra-semicolon",
    "missing-brace",
    "extra-brace",
    "class-without-body",
    "unclosed-string",
    "unclosed-comment",
    "array-without-brackets",
    "brackets-without-array",
    "missing-value",
    "bad-value",
    "unexpected-text",
    "unbalanced-directive",
    "macro-redefined",
    "macro-arguments",
    "missing-include",
    "include-case",
    "duplicate-class",
    "duplicate-property",
    "unknown-base",
    "undeclared-base",
    "base-case",
    "own-base",
    "no-patches",
    "unlisted-class",
    "listed-unknown",
    "unused-declaration",
    "missing-file",
    "file-case",
    "file-type",
    "missing-text",
    "foreign-letter",
    "quoted-number",
};
static_assert(ids.size() == static_cast<std::size_t>(FindingKind::QuotedNumber) + 1);

struct MessageEntry {
    Message message;
    FindingKind kind;
    Severity severity;
    const char* text;
};

constexpr std::array messages = {
    MessageEntry{Message::MissingSemicolon, FindingKind::MissingSemicolon, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A semicolon is missing here")},
    MessageEntry{Message::ExtraSemicolon, FindingKind::ExtraSemicolon, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "This semicolon ends nothing")},
    MessageEntry{Message::MissingBrace, FindingKind::MissingBrace, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "Class %1 is never closed: a } is missing")},
    MessageEntry{Message::MissingArrayBrace, FindingKind::MissingBrace, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "This array is never closed: a } is missing")},
    MessageEntry{Message::ExtraBrace, FindingKind::ExtraBrace, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "This } closes nothing")},
    MessageEntry{Message::ClassWithoutBody, FindingKind::ClassWithoutBody, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "Class %1 has no body in braces")},
    MessageEntry{Message::ForwardDeclaration, FindingKind::ClassWithoutBody, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "Only later versions of the game know a class without a body")},
    MessageEntry{Message::UnclosedString, FindingKind::UnclosedString, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The closing quote of this text is missing")},
    MessageEntry{Message::UnclosedComment, FindingKind::UnclosedComment, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "This comment is never closed: */ is missing")},
    MessageEntry{Message::ArrayWithoutBrackets, FindingKind::ArrayWithoutBrackets, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 has an array for its value, but no [] behind its name")},
    MessageEntry{Message::BracketsWithoutArray, FindingKind::BracketsWithoutArray, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1[] needs an array in braces for its value")},
    MessageEntry{Message::MissingValue, FindingKind::MissingValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 has no value")},
    MessageEntry{Message::MissingName, FindingKind::MissingValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The name of a class is missing here")},
    MessageEntry{Message::MissingElement, FindingKind::MissingValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A value is missing in front of this comma")},
    MessageEntry{Message::TrailingComma, FindingKind::MissingValue, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "No value follows this comma")},
    MessageEntry{Message::BadValue, FindingKind::BadValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 is no value")},
    MessageEntry{Message::BadNumber, FindingKind::BadValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 is no number")},
    MessageEntry{Message::DecimalComma, FindingKind::BadValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The decimals of a number stand behind a point")},
    MessageEntry{
        Message::TextBehindString, FindingKind::BadValue, Severity::Error,
        QT_TRANSLATE_NOOP("Findings", "The text ends in front of %1; a quote inside a text is written twice")},
    MessageEntry{Message::MissingComma, FindingKind::BadValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A comma is missing in front of %1")},
    MessageEntry{Message::TypographicQuotes, FindingKind::BadValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A text stands between straight quotes")},
    MessageEntry{Message::UnexpectedText, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 has no meaning here")},
    MessageEntry{Message::UnexpectedCharacter, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A name is made of letters, digits and _, without %1")},
    MessageEntry{Message::MissingAssign, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A = is missing between %1 and its value")},
    MessageEntry{Message::MissingClassWord, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The word class is missing in front of %1")},
    MessageEntry{Message::MisspelledClassWord, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 stands where the word class is needed")},
    MessageEntry{Message::SemicolonInArray, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The values of an array stand apart by commas")},
    MessageEntry{Message::ArraySize, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "Nothing stands between the [] of an array")},
    MessageEntry{Message::MissingBracket, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "A ] is missing here")},
    MessageEntry{Message::LaterDelete, FindingKind::UnexpectedText, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "Only later versions of the game know delete")},
    MessageEntry{Message::LaterAppend, FindingKind::UnexpectedText, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "Only later versions of the game know +=")},
    MessageEntry{Message::LaterEnum, FindingKind::UnexpectedText, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "Only later versions of the game know enum")},
    MessageEntry{Message::UnknownDirective, FindingKind::UnexpectedText, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "There is no directive %1")},
    MessageEntry{Message::LaterDirective, FindingKind::UnexpectedText, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "Only later versions of the game know %1")},
    MessageEntry{Message::DirectiveWithoutName, FindingKind::MissingValue, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 needs a name behind it")},
    MessageEntry{Message::DirectiveWithoutStart, FindingKind::UnbalancedDirective, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "No #ifdef or #ifndef stands in front of this %1")},
    MessageEntry{Message::DirectiveWithoutEnd, FindingKind::UnbalancedDirective, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The #endif of this %1 is missing")},
    MessageEntry{Message::MacroRedefined, FindingKind::MacroRedefined, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "%1 is defined before, and as something else")},
    MessageEntry{Message::MacroArguments, FindingKind::MacroArguments, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "%1 is defined for another number of arguments: %2")},
    MessageEntry{Message::MacroUnclosed, FindingKind::MacroArguments, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "The arguments of %1 are never closed: a ) is missing")},
    MessageEntry{Message::MissingInclude, FindingKind::MissingInclude, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "There is no file %1")},
    MessageEntry{Message::IncludeCase, FindingKind::IncludeCase, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "The file is spelled %1")},
    MessageEntry{Message::DuplicateClass, FindingKind::DuplicateClass, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "There is a class %1 here already")},
    MessageEntry{Message::DuplicateProperty, FindingKind::DuplicateProperty, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "There is a %1 in this class already")},
    MessageEntry{
        Message::UnknownBase, FindingKind::UnknownBase, Severity::Warning,
        QT_TRANSLATE_NOOP("Findings", "Neither this config nor the game has a class %1 to derive from here")},
    MessageEntry{
        Message::UndeclaredBase, FindingKind::UndeclaredBase, Severity::Error,
        QT_TRANSLATE_NOOP("Findings", "The game's class %1 has to be declared before a class derives from it")},
    MessageEntry{Message::BaseDeclaredLater, FindingKind::UndeclaredBase, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "Class %1 comes only further down; a base stands in front")},
    MessageEntry{Message::BaseCase, FindingKind::BaseCase, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "The class is spelled %1")},
    MessageEntry{Message::OwnBase, FindingKind::OwnBase, Severity::Error,
                 QT_TRANSLATE_NOOP("Findings", "Class %1 derives from itself")},
    MessageEntry{Message::NoPatches, FindingKind::NoPatches, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "The config has no class CfgPatches that names the add-on")},
    MessageEntry{Message::UnlistedVehicle, FindingKind::UnlistedClass, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "%1 is public, but the units[] of CfgPatches do not list it")},
    MessageEntry{Message::UnlistedWeapon, FindingKind::UnlistedClass, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "%1 is public, but the weapons[] of CfgPatches do not list it")},
    MessageEntry{Message::ListedUnknown, FindingKind::ListedUnknown, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "%2 has no class %1")},
    MessageEntry{Message::UnusedDeclaration, FindingKind::UnusedDeclaration, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "No class derives from %1, which is only declared here")},
    MessageEntry{Message::MissingFile, FindingKind::MissingFile, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "The add-on has no file %1")},
    MessageEntry{Message::FileCase, FindingKind::FileCase, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "The file is spelled %1")},
    MessageEntry{Message::FileType, FindingKind::FileType, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "%1 takes a file of another kind: %2")},
    MessageEntry{Message::MissingText, FindingKind::MissingText, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "No string table of the add-on has the key %1")},
    MessageEntry{
        Message::PerhapsMissingText, FindingKind::MissingText, Severity::Hint,
        QT_TRANSLATE_NOOP("Findings", "No string table of the add-on has the key %1; does the game have it?")},
    MessageEntry{Message::ForeignLetter, FindingKind::ForeignLetter, Severity::Warning,
                 QT_TRANSLATE_NOOP("Findings", "The name %1 has a letter that is not one of a to z")},
    MessageEntry{Message::QuotedNumber, FindingKind::QuotedNumber, Severity::Hint,
                 QT_TRANSLATE_NOOP("Findings", "%1 is a number and needs no quotes")},
};

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < messages.size(); ++i) {
        if (static_cast<std::size_t>(messages[i].message) != i)
            return false;
    }
    return messages.size() == static_cast<std::size_t>(Message::QuotedNumber) + 1;
}
static_assert(isInOrder());

const MessageEntry& entryOf(Message message)
{
    return messages[static_cast<std::size_t>(message)];
}

} // namespace

std::span<const std::string_view> findingIds()
{
    return ids;
}

std::string_view idOf(FindingKind kind)
{
    return ids[static_cast<std::size_t>(kind)];
}

FindingKind kindOf(Message message)
{
    return entryOf(message).kind;
}

Severity severityOf(Message message)
{
    return entryOf(message).severity;
}

std::string_view nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Hint:
        break;
    }
    return "hint";
}

const char* textOf(Message message)
{
    return entryOf(message).text;
}

std::string withArguments(std::string_view text, std::span<const std::string> arguments)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t number =
            i + 1 < text.size() ? static_cast<std::size_t>(text[i + 1] - '1') : arguments.size();
        if (text[i] == '%' && number < arguments.size()) {
            result += arguments[number];
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

} // namespace kitwright
