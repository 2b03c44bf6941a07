// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/meaning.h"
#include "config/mends.h"
#include "text/list_file.h"

#include <algorithm>

namespace kitwright {

namespace {

std::string_view withoutQuotes(std::string_view text)
{
    return text.size() > 1 && text.front() == '"' ? text.substr(1, text.size() - 2) : text;
}

} // namespace

/// One of the lists of the patch classes.
struct MeaningCheck::PatchList {
    std::string_view name;    ///< "units"
    std::string_view heading; ///< Whose classes it lists.
    NameSet listed;
    bool isOpaque = false; ///< A macro or an include stands in it.
};

void MeaningCheck::judgePatches()
{
    const ClassIndex patches = m_scopes.find(0, "CfgPatches");
    if (patches == noClass) {
        const auto heading =
            std::find_if(m_scopes.classes().begin(), m_scopes.classes().end(), [](const ScopeClass& one) {
                return one.scope == 0 && one.place.source == 0 && sameName(one.name.substr(0, 3), "Cfg");
            });
        if (heading != m_scopes.classes().end() && m_sources.isComplete() && !isOpaque(0))
            tell(Message::NoPatches, nameRange(heading->place.node), {});
        return;
    }
    const ScopeIndex scope = classAt(patches).body;
    for (ClassIndex i = 0; i < m_scopes.classes().size(); ++i) {
        if (classAt(i).scope == scope)
            m_patches.push_back(i);
    }
    PatchList units{"units", "CfgVehicles", {}, isOpaque(scope)};
    PatchList weapons{"weapons", "CfgWeapons", {}, isOpaque(scope)};
    for (PatchList* list : {&units, &weapons}) {
        for (const ClassIndex patch : m_patches)
            readList(patch, *list);
        judgeListed(*list);
    }
    judgePublicClasses(units, "scope", Message::UnlistedVehicle);
    judgePublicClasses(weapons, "scopeWeapon", Message::UnlistedWeapon);
}

void MeaningCheck::readList(ClassIndex patch, PatchList& list)
{
    const std::optional<NodeIndex> found = propertyOf(classAt(patch), list.name);
    list.isOpaque = list.isOpaque || isOpaque(classAt(patch).body);
    if (!found)
        return;
    const Tree& tree = treeOf(classAt(patch).place);
    const Tree::Span value = tree.valueOf(*found);
    for (TokenIndex i = value.first; i < value.end; ++i) {
        const std::string_view text = tree.tokens().textOf(i);
        switch (tree.tokens().kind(i)) {
        case TokenKind::Word:
            list.isOpaque = list.isOpaque || m_sources.macros().mayBe(text);
            list.listed.emplace(text);
            break;
        case TokenKind::String:
            list.listed.emplace(withoutQuotes(text));
            break;
        case TokenKind::Directive:
            list.isOpaque = true;
            break;
        default:
            break;
        }
    }
}

/// Tells of names in the lists of the config itself that no class bears.
void MeaningCheck::judgeListed(const PatchList& list)
{
    const ClassIndex heading = m_scopes.find(0, list.heading);
    if (!m_sources.isComplete() || isOpaque(heading == noClass ? 0 : classAt(heading).body))
        return;
    for (const ClassIndex patch : m_patches) {
        const std::optional<NodeIndex> found = propertyOf(classAt(patch), list.name);
        if (!found || classAt(patch).place.source != 0)
            continue;
        const Tree::Span value = tree().valueOf(*found);
        for (TokenIndex i = value.first; i < value.end; ++i) {
            const TokenKind kind = tree().tokens().kind(i);
            if (kind != TokenKind::Word && kind != TokenKind::String)
                continue;
            const std::string_view name = withoutQuotes(tree().tokens().textOf(i));
            const bool isDeclared = heading != noClass && m_scopes.find(classAt(heading).body, name) != noClass;
            const bool isKnown = m_surroundings.game != nullptr
                              && m_surroundings.game->find(list.heading, name) != GameClasses::none;
            if (!isDeclared && !isKnown && !m_sources.macros().mayBe(name))
                tell(Message::ListedUnknown, tree().tokens().range(i), {name, list.heading});
        }
    }
}

void MeaningCheck::judgePublicClasses(const PatchList& list, std::string_view scopeProperty, Message message)
{
    const ClassIndex heading = m_scopes.find(0, list.heading);
    const bool mayBeListedElsewhere = !m_sources.isComplete() && m_patches.empty();
    if (heading == noClass || list.isOpaque || mayBeListedElsewhere)
        return;
    for (const ScopeClass& declared : m_scopes.classes()) {
        if (declared.scope != classAt(heading).body || declared.place.source != 0 || declared.isEmpty
            || list.listed.find(declared.name) != list.listed.end() || !isPublic(declared, scopeProperty))
            continue;
        tell(message, nameRange(declared.place.node), {declared.name},
             m_findings.isFull() ? std::vector<TextEdit>() : listing(list, declared.name));
    }
}

bool MeaningCheck::isPublic(const ScopeClass& declared, std::string_view scopeProperty) const
{
    constexpr double isPublicScope = 2;
    constexpr int longestChain = 200;
    const ScopeClass* one = &declared;
    for (int i = 0; i < longestChain; ++i) {
        if (const std::optional<NodeIndex> found = propertyOf(*one, scopeProperty))
            return numberOf({one->place.source, *found}) == isPublicScope;
        if (one->baseClass == noClass)
            break;
        one = &classAt(one->baseClass);
    }
    return false;
}

/// The property that a class itself has of a name.
std::optional<NodeIndex> MeaningCheck::propertyOf(const ScopeClass& owner, std::string_view name) const
{
    const Tree& tree = treeOf(owner.place);
    const NodeIndex end = tree.endOfChildren(owner.place.node);
    for (NodeIndex i = tree.firstChild(owner.place.node); i < end; i = tree[i].next) {
        if (tree[i].kind == NodeKind::Property && sameName(tree.nameOf(i), name))
            return i;
    }
    return std::nullopt;
}

std::optional<double> MeaningCheck::numberOf(SourceNode property) const
{
    const Tree& tree = treeOf(property);
    const Tree::Span value = tree.valueOf(property.node);
    if (value.end != value.first + 1)
        return std::nullopt;
    std::string_view text = withoutQuotes(tree.tokens().textOf(value.first));
    if (const Macro* macro = m_sources.macros().find(text))
        text = macro->text;
    if (!isNumber(text))
        return std::nullopt;
    return leadingNumber(text);
}

/// Adds a name to the list of the first patch class, with the list if it has none. Only the config itself is mended.
std::vector<TextEdit> MeaningCheck::listing(const PatchList& list, std::string_view name) const
{
    if (m_patches.empty() || classAt(m_patches.front()).place.source != 0)
        return {};
    const ScopeClass& patch = classAt(m_patches.front());
    const Tokens& tokens = tree().tokens();
    const std::string quoted = std::string("\"").append(name).append("\"");
    const std::optional<NodeIndex> found = propertyOf(patch, list.name);
    if (!found) {
        const NodeIndex first = tree().firstChild(patch.place.node);
        const std::string line = std::string(list.name).append("[] = {").append(quoted).append("};");
        if (first < tree().endOfChildren(patch.place.node))
            return {linesBefore(tree().text(), tree().rangeOf(first).start, {line})};
        const std::uint32_t behindBrace = tokens.end(tree().bodyOf(patch.place.node));
        return {{{behindBrace, behindBrace}, std::string(" ").append(line)}};
    }
    const Tree::Span value = tree().valueOf(*found);
    if (value.end <= value.first || tokens.kind(value.first) != TokenKind::OpenBrace
        || tokens.kind(value.end - 1) != TokenKind::CloseBrace)
        return {};
    TokenIndex last = value.end - 2;
    while (tokens.isComment(last))
        --last;
    const std::uint32_t place = tokens.end(last);
    const bool isFirst = tokens.kind(last) == TokenKind::OpenBrace;
    const bool isBare = tokens.kind(last) == TokenKind::Word;
    const bool needsComma = !isFirst && tokens.kind(last) != TokenKind::Comma;
    std::string item = needsComma ? ", " : "";
    item += isBare ? std::string(name) : quoted;
    return {{{place, place}, std::move(item)}};
}

} // namespace kitwright
