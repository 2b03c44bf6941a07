// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/meaning.h"
#include "config/mends.h"

#include <algorithm>

namespace kitwright {

namespace {

bool isConfigHeading(std::string_view name)
{
    return sameName(name.substr(0, 3), "Cfg");
}

/// Whether a property adds to one that it inherits.
bool isAppended(const Tree& tree, const Node& node)
{
    for (TokenIndex i = node.first; i < node.end; ++i) {
        if (tree.tokens().kind(i) == TokenKind::Assign || tree.tokens().kind(i) == TokenKind::Append)
            return tree.tokens().kind(i) == TokenKind::Append;
    }
    return false;
}

/// The statement from behind its name on.
std::string_view behindName(const Tree& tree, NodeIndex node)
{
    const TextRange range = tree.rangeOf(node);
    return tree.tokens().slice({tree.tokens().end(tree[node].first), range.end});
}

} // namespace

/// Goes through the config and its includes in the order of the text, an include standing for what it holds.
void MeaningCheck::collectNames()
{
    struct File {
        std::uint32_t source = 0;
        NodeIndex node = 1;
        std::size_t bodies = 0; ///< Open ones where it is included.
    };
    struct Body {
        NodeIndex end = 0;
        ScopeIndex scope = 0;
        std::size_t names = 0; ///< Open ones where it begins.
    };
    constexpr std::size_t deepestFile = 50;
    constexpr std::size_t mostFiles = 5'000;
    std::vector<File> files = {File()};
    std::vector<Body> bodies;
    std::size_t count = 0;
    while (!files.empty()) {
        File& file = files.back();
        const Source& source = m_sources[file.source];
        for (; bodies.size() > file.bodies && file.node >= bodies.back().end; bodies.pop_back())
            m_names.dropTo(bodies.back().names);
        if (file.node >= source.tree.nodes().size()) {
            files.pop_back();
            continue;
        }
        const SourceNode place = {file.source, file.node};
        const Node& node = source.tree[file.node];
        const ScopeIndex scope = bodies.empty() ? 0 : bodies.back().scope;
        file.node = node.kind == NodeKind::Class ? file.node + 1 : node.next;
        if (node.kind == NodeKind::Class) {
            const ScopeIndex body = enterClass(place, scope);
            bodies.push_back({node.next, body, m_names.count()});
        } else if (node.kind == NodeKind::Property) {
            enterProperty(place, scope);
        } else if (node.kind == NodeKind::Macro) {
            m_scopes[scope].isOpaque = true;
        } else if (const auto included = source.includedAt(node.first);
                   included && files.size() < deepestFile && ++count < mostFiles) {
            files.push_back({static_cast<std::uint32_t>(*included), 1, bodies.size()});
        }
    }
}

/// Gives the scope of the class's body.
ScopeIndex MeaningCheck::enterClass(SourceNode place, ScopeIndex scope)
{
    const Tree& tree = treeOf(place);
    const std::string_view name = tree.nameOf(place.node);
    if (name.empty()) {
        m_scopes[scope].isOpaque = m_scopes[scope].isOpaque || tree[place.node].isOpaque;
        const ScopeIndex body = m_scopes.addScope(scope, noClass);
        m_scopes[body].isOpaque = true;
        return body;
    }
    const std::string_view base = tree.baseOf(place.node);
    const ClassIndex former = m_scopes.find(scope, name);
    // A heading of the game may come several times; wizards write one for each class.
    if (former != noClass && scope == 0 && isConfigHeading(name) && base.empty() && classAt(former).base.empty())
        return classAt(former).body;

    const auto index = static_cast<ClassIndex>(m_scopes.classes().size());
    ScopeClass added = {place, name, base, scope, m_scopes.addScope(scope, index)};
    added.isEmpty = tree.endOfChildren(place.node) == tree.firstChild(place.node);
    if (!base.empty())
        findBase(added);
    m_scopes.add(added);
    if (added.isBaseMissing)
        m_missingBases.push_back(index);
    const OpenNames::Name* known = m_names.addOrFind({scope, name, place, index});
    if (former != noClass)
        judgeSecondClass(former, index);
    else if (known != nullptr)
        judgeSecondProperty(*known, place);
    return added.body;
}

void MeaningCheck::enterProperty(SourceNode place, ScopeIndex scope)
{
    const std::string_view name = treeOf(place).nameOf(place.node);
    if (name.empty())
        return;
    if (const OpenNames::Name* known = m_names.addOrFind({scope, name, place, noClass}))
        judgeSecondProperty(*known, place);
}

bool MeaningCheck::isConditional(SourceNode place) const
{
    const Source& source = m_sources[place.source];
    return source.isConditional(source.tree.rangeOf(place.node).start);
}

/// Judges a class whose scope has one of its name.
void MeaningCheck::judgeSecondClass(ClassIndex first, ClassIndex second)
{
    const ScopeClass& former = classAt(first);
    const ScopeClass& latter = classAt(second);
    if (latter.place.source != 0 || isConditional(former.place) || isConditional(latter.place))
        return;
    const auto isForward = [&](const ScopeClass& one) { return !treeOf(one.place)[one.place.node].hasBody; };
    // A declaration may be repeated; wizards do so for each class that they write.
    const bool areDeclarations = former.isEmpty && latter.isEmpty && sameName(former.base, latter.base);
    if (!areDeclarations && !isForward(former) && !isForward(latter))
        tell(Message::DuplicateClass, nameRange(latter.place.node), {latter.name});
}

/// Judges a name that its scope has already, where one of the two is a property.
void MeaningCheck::judgeSecondProperty(const OpenNames::Name& known, SourceNode place)
{
    const Tree& tree = treeOf(place);
    const auto adds = [&](SourceNode one) { return isAppended(treeOf(one), treeOf(one)[one.node]); };
    if (place.source != 0 || isConditional(known.place) || isConditional(place) || adds(known.place) || adds(place))
        return;
    std::vector<TextEdit> mend;
    if (known.place.source == 0 && behindName(tree, known.place.node) == behindName(tree, place.node))
        mend = {removalOf(tree.text(), tree.rangeOf(place.node))};
    tell(Message::DuplicateProperty, nameRange(place.node), {tree.nameOf(place.node)}, std::move(mend));
}

// Bases

void MeaningCheck::findBase(ScopeClass& derived)
{
    const bool isOwn = sameName(derived.base, derived.name);
    // A class may derive from one of its name that the class around it inherits, or that stands further out.
    Lookup lookup = isOwn ? lookUpBehind(derived.scope, derived.base) : lookUp(derived.scope, derived.base);
    if (lookup.found == noClass && isOwn && m_scopes.find(derived.scope, derived.name) != noClass)
        lookup.mayBeInherited = true; // Told as a duplicate.
    derived.baseClass = lookup.found;
    if (lookup.found != noClass)
        m_scopes.classes()[lookup.found].isUsed = true;
    if (derived.place.source != 0)
        return;
    const TextRange range = tree().tokens().range(*tree().baseToken(derived.place.node));
    if (lookup.found != noClass) {
        const std::string_view name = classAt(lookup.found).name;
        if (name != derived.base)
            tell(Message::BaseCase, range, {name}, {{range, std::string(name)}});
    } else if (isOwn && !lookup.mayBeInherited && !isOpaque(derived.scope)) {
        tell(Message::OwnBase, range, {derived.base});
    } else {
        derived.isBaseMissing = !isOwn && !lookup.mayBeInherited;
    }
}

/// Looks for a class in a scope, in what its class inherits, and further out.
MeaningCheck::Lookup MeaningCheck::lookUp(ScopeIndex scope, std::string_view base) const
{
    const ClassIndex found = m_scopes.find(scope, base);
    return found != noClass ? Lookup{found, false} : lookUpBehind(scope, base);
}

/// The same without the names of the scope itself.
MeaningCheck::Lookup MeaningCheck::lookUpBehind(ScopeIndex scope, std::string_view base) const
{
    bool mayBeInherited = false;
    for (;;) {
        const Lookup inherited = lookUpInherited(m_scopes[scope].ownClass, base);
        if (inherited.found != noClass)
            return inherited;
        mayBeInherited = mayBeInherited || inherited.mayBeInherited;
        if (scope == 0)
            return {noClass, mayBeInherited};
        scope = m_scopes[scope].parent;
        if (const ClassIndex found = m_scopes.find(scope, base); found != noClass)
            return {found, mayBeInherited};
    }
}

MeaningCheck::Lookup MeaningCheck::lookUpInherited(ClassIndex heir, std::string_view base) const
{
    constexpr int longestChain = 200;
    for (int i = 0; heir != noClass && i < longestChain; ++i) {
        const ScopeClass& one = classAt(heir);
        if (one.base.empty())
            return {noClass, one.isEmpty};
        heir = one.baseClass;
        if (heir == noClass)
            return {noClass, true};
        const ScopeIndex body = classAt(heir).body;
        if (const ClassIndex found = m_scopes.find(body, base); found != noClass)
            return {found, false};
    }
    return {};
}

void MeaningCheck::judgeMissingBases()
{
    for (const ClassIndex index : m_missingBases) {
        const ScopeClass& derived = classAt(index);
        const TextRange range = tree().tokens().range(*tree().baseToken(derived.place.node));
        const Lookup later = lookUp(derived.scope, derived.base);
        if (later.found != noClass) {
            m_scopes.classes()[later.found].isUsed = true;
            tell(Message::BaseDeclaredLater, range, {derived.base});
            continue;
        }
        if (!m_sources.isComplete() || isOpaque(derived.scope) || m_surroundings.game == nullptr)
            continue;
        int known = m_surroundings.game->find(headingOf(derived.scope), derived.base);
        if (known == GameClasses::none && depthOf(derived.scope) > 1)
            known = m_surroundings.game->find({}, derived.base);
        if (known == GameClasses::none)
            tell(Message::UnknownBase, range, {derived.base});
        else
            tell(Message::UndeclaredBase, range, {derived.base},
                 m_findings.isFull() ? std::vector<TextEdit>() : declarations(derived, known));
    }
}

/// Declares a class of the game and those ancestors that the scope lacks, in front of the class that derives from it.
std::vector<TextEdit> MeaningCheck::declarations(const ScopeClass& derived, int known) const
{
    const GameClasses& game = *m_surroundings.game;
    std::vector<std::string> lines;
    while (known != GameClasses::none && m_scopes.find(derived.scope, game[known].name) == noClass) {
        const int base = game[known].base;
        const std::string behind = base == GameClasses::none ? std::string() : ": " + game[base].name;
        lines.insert(lines.begin(), "class " + game[known].name + behind + " {};");
        known = base;
    }
    return {linesBefore(tree().text(), tree().rangeOf(derived.place.node).start, lines)};
}

void MeaningCheck::judgeUnusedDeclarations()
{
    if (!m_sources.isComplete() || m_surroundings.game == nullptr)
        return;
    for (ClassIndex i = 0; i < m_scopes.classes().size(); ++i) {
        const ScopeClass& declared = classAt(i);
        if (!declared.isEmpty || declared.isUsed || declared.place.source != 0 || depthOf(declared.scope) != 1
            || isOpaque(declared.scope) || m_scopes.find(declared.scope, declared.name) != i)
            continue;
        const TextRange range = tree().rangeOf(declared.place.node);
        const bool isKnown =
            m_surroundings.game->find(headingOf(declared.scope), declared.name) != GameClasses::none;
        if (isKnown && !m_sources.main().isConditional(range.start))
            tell(Message::UnusedDeclaration, nameRange(declared.place.node), {declared.name},
                 {removalOf(tree().text(), range)});
    }
}

} // namespace kitwright
