// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/macros.h"

#include "config/characters.h"

#include <algorithm>
#include <utility>

namespace kitwright {

namespace {

constexpr std::array<std::pair<std::string_view, DirectiveKind>, 10> directiveWords = {{
    {"define", DirectiveKind::Define},
    {"undef", DirectiveKind::Undef},
    {"include", DirectiveKind::Include},
    {"ifdef", DirectiveKind::Ifdef},
    {"ifndef", DirectiveKind::Ifndef},
    {"else", DirectiveKind::Else},
    {"endif", DirectiveKind::Endif},
    {"if", DirectiveKind::LaterIf},
    {"elif", DirectiveKind::LaterElse},
}};

/// Blanks, and the backslashes that continue a line.
std::size_t passBlanks(std::string_view text, std::size_t at)
{
    while (at < text.size()
           && (isBlank(text[at]) || (text[at] == '\\' && at + 1 < text.size() && isLineBreak(text[at + 1]))))
        ++at;
    return at;
}

std::string_view takeName(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size() && (isNameCharacter(text[end]) || isBeyondAscii(text[end])))
        ++end;
    return text.substr(0, end);
}

std::string_view fileNameIn(std::string_view text)
{
    if (text.empty())
        return {};
    const bool isMarked = text.front() == '"' || text.front() == '<';
    const std::size_t end = isMarked ? text.find(text.front() == '"' ? '"' : '>', 1) : text.find_first_of(" \t");
    if (!isMarked)
        return text.substr(0, end);
    return text.substr(1, end == std::string_view::npos ? end : end - 1);
}

int countParameters(std::string_view list)
{
    if (trimmedBlanks(list).empty())
        return 0;
    return static_cast<int>(std::count(list.begin(), list.end(), ',')) + 1;
}

} // namespace

Directive readDirective(std::string_view text)
{
    Directive directive;
    const std::size_t start = passBlanks(text, 1);
    const std::string_view word = takeName(text.substr(std::min(start, text.size())));
    directive.word = text.substr(0, start + word.size());
    const auto known = std::find_if(directiveWords.begin(), directiveWords.end(),
                                    [&](const auto& entry) { return entry.first == word; });
    if (known != directiveWords.end() && !word.empty())
        directive.kind = known->second;

    const std::string_view rest = text.substr(passBlanks(text, directive.word.size()));
    directive.name = directive.kind == DirectiveKind::Include ? fileNameIn(rest) : takeName(rest);
    directive.rest = rest;
    if (!directive.name.empty())
        directive.rest.remove_prefix(static_cast<std::size_t>(directive.name.data() - rest.data())
                                     + directive.name.size());
    return directive;
}

void Macros::define(const Directive& directive)
{
    if (directive.name.empty())
        return;
    Macro macro;
    macro.text = directive.rest;
    if (macro.text.starts_with('(')) {
        const std::size_t close = std::min(macro.text.find(')'), macro.text.size());
        m_takeArguments = true;
        macro.parameters = countParameters(macro.text.substr(1, close - 1));
        macro.text.remove_prefix(std::min(close + 1, macro.text.size()));
    }
    macro.text = trimmedBlanks(macro.text);
    macro.isUneven = std::count(macro.text.begin(), macro.text.end(), '{')
                  != std::count(macro.text.begin(), macro.text.end(), '}');
    m_macros[directive.name] = macro;
    m_marks[markOf(directive.name) / 64] |= std::uint64_t{1} << markOf(directive.name) % 64;
}

Macros macrosOf(const Tokens& tokens)
{
    Macros macros;
    for (const TokenIndex token : tokens.directives()) {
        const Directive directive = readDirective(tokens.textOf(token));
        if (directive.kind == DirectiveKind::Define)
            macros.define(directive);
        else if (directive.kind == DirectiveKind::Include)
            macros.setIncomplete();
    }
    return macros;
}

} // namespace kitwright
