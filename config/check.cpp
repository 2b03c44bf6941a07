// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/check.h"

#include "config/meaning.h"

namespace kitwright {

void MeaningCheck::run()
{
    collectNames();
    judgeMissingBases();
    judgePatches();
    judgeUnusedDeclarations();
    judgeNamesAndValues();
}

bool MeaningCheck::isOpaque(ScopeIndex scope) const
{
    for (; scope != 0; scope = m_scopes[scope].parent) {
        if (m_scopes[scope].isOpaque)
            return true;
    }
    return m_scopes[0].isOpaque;
}

std::string_view MeaningCheck::headingOf(ScopeIndex scope) const
{
    while (scope != 0 && m_scopes[scope].parent != 0)
        scope = m_scopes[scope].parent;
    const ClassIndex own = m_scopes[scope].ownClass;
    return own == noClass ? std::string_view() : classAt(own).name;
}

std::size_t MeaningCheck::depthOf(ScopeIndex scope) const
{
    std::size_t depth = 0;
    for (; scope != 0; scope = m_scopes[scope].parent)
        ++depth;
    return depth;
}

TextRange MeaningCheck::nameRange(NodeIndex node) const
{
    return tree().tokens().range(tree().nameToken(node).value_or(tree()[node].first));
}

void MeaningCheck::tell(Message message, TextRange range, std::initializer_list<std::string_view> arguments,
                        std::vector<TextEdit> mend)
{
    m_findings.add(message, range, arguments, std::move(mend));
}

CheckedConfig check(std::string_view text, const Surroundings& surroundings)
{
    Sources sources(text, surroundings);
    FindingList findings = std::move(sources.findings());
    MeaningCheck(sources, surroundings, findings).run();
    findings.sort();
    return {sources.takeTree(), std::move(findings)};
}

} // namespace kitwright
