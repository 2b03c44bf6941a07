// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/meaning.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>

namespace kitwright {

namespace {

struct FileTypes {
    PropertyKind kind;
    std::string_view extensions; ///< Apart by blanks.
};

constexpr std::array<FileTypes, 4> fileTypes = {{
    {PropertyKind::Model, ".p3d"},
    {PropertyKind::Picture, ".paa .pac .jpg"},
    {PropertyKind::Sound, ".wss .ogg .wav"},
    {PropertyKind::Animation, ".rtm"},
}};

/// Extensions that tell what a file is. What follows a point in a text may be anything else.
constexpr std::string_view knownExtensions =
    ".p3d .paa .pac .jpg .wss .ogg .wav .rtm .jpeg .png .bmp .gif .tga .dds .mp3 .wma .3ds .obj .sqs .sqf .html ";

bool isListed(std::string_view extensions, std::string_view extension)
{
    while (!extensions.empty()) {
        const std::size_t end = std::min(extensions.find(' '), extensions.size());
        if (sameName(extensions.substr(0, end), extension))
            return true;
        extensions.remove_prefix(std::min(end + 1, extensions.size()));
    }
    return false;
}

/// The extension at the end of a path, with its point; empty when it has none of a usual length.
std::string_view extensionOf(std::string_view path)
{
    constexpr std::size_t longest = 6;
    for (std::size_t length = 1; length <= longest && length <= path.size(); ++length) {
        const char character = path[path.size() - length];
        if (character == '.')
            return path.substr(path.size() - length);
        if (!isNameCharacter(character))
            break;
    }
    return {};
}

} // namespace

void MeaningCheck::judgeNamesAndValues()
{
    if (m_surroundings.folder != nullptr && !m_surroundings.folder->name().empty())
        m_addonNames.push_back(m_surroundings.folder->name());
    for (const ClassIndex patch : m_patches)
        m_addonNames.emplace_back(classAt(patch).name);

    const Tokens& tokens = tree().tokens();
    const TokenIndex count = tokens.count();
    for (TokenIndex i = 0; i < count; ++i) {
        if (tokens.kind(i) == TokenKind::String)
            judgeString(i);
        else if (!tokens.isPlain(i))
            judgeOddWord(i);
    }
    if (m_sources.macros().takeArguments())
        judgeMacroUses();
}

void MeaningCheck::judgeString(TokenIndex token)
{
    const Tokens& tokens = tree().tokens();
    const TextRange range = {tokens.start(token) + 1, tokens.end(token) - 1};
    const std::string_view text = tokens.slice(range);
    if (text.empty())
        return;
    if (text.front() <= '9' && isNumber(text)) {
        const NodeIndex property = tree().nodeAt(token);
        const bool isAlone = tree()[property].kind == NodeKind::Property && tree().valueOf(property).first == token
                          && tree().valueOf(property).end == token + 1;
        if (isAlone && kindOf(property) == PropertyKind::Number)
            tell(Message::QuotedNumber, tokens.range(token), {tree().nameOf(property)},
                 {{tokens.range(token), std::string(text)}});
    }
    judgeText(token, range);
}

/// Judges a word with characters that no name has: a name all the same, or a path without quotes.
void MeaningCheck::judgeOddWord(TokenIndex token)
{
    const TextRange range = tree().tokens().range(token);
    const std::string_view word = tree().tokens().slice(range);
    const NodeIndex node = tree().nodeAt(token);
    const bool isName = node != 0 && tree().nameToken(node) == token;
    if (!isName) {
        if (word.find('\\') != std::string_view::npos)
            judgeText(token, range);
        return;
    }
    if (std::any_of(word.begin(), word.end(), isBeyondAscii))
        tell(Message::ForeignLetter, range, {word});
    else
        tell(Message::UnexpectedCharacter, range,
             {std::string_view(&*std::find_if_not(word.begin(), word.end(), isNameCharacter), 1)});
}

PropertyKind MeaningCheck::kindOf(NodeIndex property) const
{
    return m_surroundings.properties == nullptr ? PropertyKind::Unknown
                                                : m_surroundings.properties->kindOf(tree().nameOf(property));
}

/// Judges a text in a value; the range is without its quotes.
void MeaningCheck::judgeText(TokenIndex token, TextRange range)
{
    const std::string_view text = tree().tokens().slice(range);
    if (text.starts_with('$'))
        return judgeTextKey(range);
    const std::string_view extension = extensionOf(text);
    if (extension.size() > 1 && isListed(knownExtensions, extension)) {
        NodeIndex property = tree().nodeAt(token);
        while (tree()[property].kind == NodeKind::Array)
            property = tree()[property].parent;
        const PropertyKind kind = kindOf(property);
        const auto types = std::find_if(fileTypes.begin(), fileTypes.end(),
                                        [&](const FileTypes& one) { return one.kind == kind; });
        if (types != fileTypes.end() && !isListed(types->extensions, extension))
            return tell(Message::FileType, range, {tree().nameOf(property), types->extensions});
    }
    judgePaths(range);
}

/// Judges a text that is a path into this add-on, or the paths in quotes that a script in it has.
void MeaningCheck::judgePaths(TextRange range)
{
    const std::string_view text = tree().tokens().slice(range);
    if (m_surroundings.folder == nullptr || text.find('\\') == std::string_view::npos)
        return;
    if (ownPathLength(text) > 0)
        return judgePath(range);
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '\'' && text[i] != '"')
            continue;
        const std::size_t end = text.find(text[i], i + 1);
        if (end == std::string_view::npos)
            return;
        if (ownPathLength(text.substr(i + 1, end - i - 1)) > 0)
            judgePath(
                {range.start + static_cast<std::uint32_t>(i + 1), range.start + static_cast<std::uint32_t>(end)});
        // A doubled quote: its second half begins the path.
        i = end == i + 1 ? i : end;
    }
}

/// Bytes of the part of a path that leads into this add-on: "\Name\"; 0 when it leads elsewhere.
std::size_t MeaningCheck::ownPathLength(std::string_view text) const
{
    const std::size_t start = text.starts_with('\\') ? 1 : 0;
    const std::size_t end = text.find('\\', start);
    if (end == std::string_view::npos)
        return 0;
    const std::string_view name = text.substr(start, end - start);
    const bool isOwn = std::any_of(m_addonNames.begin(), m_addonNames.end(),
                                   [&](const std::string& own) { return sameName(own, name); });
    return isOwn ? end + 1 : 0;
}

void MeaningCheck::judgePath(TextRange range)
{
    const std::string_view text = tree().tokens().slice(range);
    const std::string_view path = text.substr(ownPathLength(text));
    if (path.empty() || path.ends_with('\\') || path.find_first_of("%*?#\"") != std::string_view::npos)
        return;
    const std::optional<std::string> real = m_surroundings.folder->find(path);
    if (!real)
        return tell(Message::MissingFile, range, {path});
    std::string spelled(path);
    for (std::size_t i = 0; i < std::min(spelled.size(), real->size()); ++i) {
        if (spelled[i] != '\\' && spelled[i] != '/')
            spelled[i] = (*real)[i];
    }
    if (spelled == path || !sameName(spelled, path))
        return;
    const auto length = static_cast<std::uint32_t>(path.size());
    tell(Message::FileCase, range, {*real}, {{{range.end - length, range.end}, spelled}});
}

void MeaningCheck::judgeTextKey(TextRange range)
{
    const std::string_view key = tree().tokens().slice(range);
    if (m_surroundings.folder == nullptr || !sameName(key.substr(0, 4), "$STR")
        || m_surroundings.folder->hasKey(key))
        return;
    // Keys of this kind are made by the string table editor; others may be the game's own.
    const bool isOwn = sameName(key.substr(0, 6), "$STRM_");
    tell(isOwn ? Message::MissingText : Message::PerhapsMissingText, range, {key});
}

/// Tells of macros that are used with another number of arguments than they are defined with.
void MeaningCheck::judgeMacroUses()
{
    const Tokens& tokens = tree().tokens();
    for (TokenIndex i = 0; i < tokens.count(); ++i) {
        if (tokens.kind(i) != TokenKind::Word)
            continue;
        const Macro* macro = m_sources.macros().find(tokens.textOf(i));
        if (macro == nullptr || macro->parameters == Macro::none)
            continue;
        TokenIndex at = tokens.behind(i);
        if (tokens.kind(at) != TokenKind::OpenParenthesis)
            continue;
        int depth = 0;
        int count = tokens.kind(tokens.behind(at)) == TokenKind::CloseParenthesis ? 0 : 1;
        for (;; at = tokens.behind(at)) {
            const TokenKind kind = tokens.kind(at);
            if (kind == TokenKind::End || kind == TokenKind::Semicolon || kind == TokenKind::OpenBrace
                || (kind == TokenKind::CloseParenthesis && --depth == 0))
                break;
            if (kind == TokenKind::OpenParenthesis)
                ++depth;
            else if (kind == TokenKind::Comma && depth == 1)
                ++count;
        }
        const std::string_view name = tokens.textOf(i);
        if (tokens.kind(at) != TokenKind::CloseParenthesis)
            tell(Message::MacroUnclosed, tokens.range(i), {name});
        else if (count != macro->parameters && !(count == 0 && macro->parameters == 1))
            tell(Message::MacroArguments, tokens.range(i), {name, std::to_string(macro->parameters)});
    }
}

} // namespace kitwright
