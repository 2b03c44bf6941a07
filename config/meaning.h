// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/scopes.h"

#include <string>
#include <vector>

namespace kitwright {

/// The check of what a config means, step by step on one set of names.
class MeaningCheck {
public:
    MeaningCheck(const Sources& sources, const Surroundings& surroundings, FindingList& findings)
        : m_sources(sources),
          m_surroundings(surroundings),
          m_findings(findings)
    {
    }

    void run();

private:
    // Names and bases (check_classes.cpp).
    void collectNames();
    ScopeIndex enterClass(SourceNode place, ScopeIndex scope);
    void enterProperty(SourceNode place, ScopeIndex scope);
    bool isConditional(SourceNode place) const;
    void judgeSecondClass(ClassIndex first, ClassIndex second);
    void judgeSecondProperty(const OpenNames::Name& known, SourceNode place);
    void findBase(ScopeClass& derived);
    struct Lookup {
        ClassIndex found = noClass;
        bool mayBeInherited = false; ///< From a class that is not in the config.
    };
    Lookup lookUp(ScopeIndex scope, std::string_view base) const;
    Lookup lookUpBehind(ScopeIndex scope, std::string_view base) const;
    Lookup lookUpInherited(ClassIndex heir, std::string_view base) const;
    void judgeMissingBases();
    std::vector<TextEdit> declarations(const ScopeClass& derived, int known) const;
    void judgeUnusedDeclarations();

    // CfgPatches (check_patches.cpp).
    struct PatchList;
    void judgePatches();
    void readList(ClassIndex patch, PatchList& list);
    void judgeListed(const PatchList& list);
    void judgePublicClasses(const PatchList& list, std::string_view scopeProperty, Message message);
    bool isPublic(const ScopeClass& declared, std::string_view scopeProperty) const;
    std::vector<TextEdit> listing(const PatchList& list, std::string_view name) const;

    std::optional<NodeIndex> propertyOf(const ScopeClass& owner, std::string_view name) const;

    /// The number that a property has; nothing when that is not plain.
    std::optional<double> numberOf(SourceNode property) const;

    // Names and values (check_values.cpp).
    void judgeNamesAndValues();
    void judgeString(TokenIndex token);
    void judgeOddWord(TokenIndex token);
    PropertyKind kindOf(NodeIndex property) const;
    void judgeText(TokenIndex token, TextRange range);
    void judgePaths(TextRange range);
    void judgePath(TextRange range);
    std::size_t ownPathLength(std::string_view text) const;
    void judgeTextKey(TextRange range);
    void judgeMacroUses();

    const Tree& treeOf(SourceNode place) const { return m_sources[place.source].tree; }
    const Tree& tree() const { return m_sources.main().tree; }
    const ScopeClass& classAt(ClassIndex index) const { return m_scopes.classes()[index]; }

    /// Whether a macro may have put more names into a scope or those around it.
    bool isOpaque(ScopeIndex scope) const;

    /// The name of the outermost class around a scope; empty for the config itself.
    std::string_view headingOf(ScopeIndex scope) const;

    /// How many classes stand around a scope's names.
    std::size_t depthOf(ScopeIndex scope) const;

    TextRange nameRange(NodeIndex node) const;

    void tell(Message message, TextRange range, std::initializer_list<std::string_view> arguments,
              std::vector<TextEdit> mend = {});

    const Sources& m_sources;
    const Surroundings& m_surroundings;
    FindingList& m_findings;
    Scopes m_scopes;
    OpenNames m_names;
    std::vector<ClassIndex>
        m_missingBases;                ///< Classes of the config itself whose base was not found when they came.
    std::vector<ClassIndex> m_patches; ///< The classes in CfgPatches.
    std::vector<std::string> m_addonNames; ///< By which paths lead into this add-on.
};

} // namespace kitwright
