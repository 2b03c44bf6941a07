// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/parser_state.h"

namespace kitwright {

void Parser::passDirectives()
{
    while (kind() == TokenKind::Directive)
        enterDirective(true);
}

/// Passes over directives that stand in front of the semicolon of a statement, or end a condition that it holds.
void Parser::passDirectivesOfStatement()
{
    while (kind() == TokenKind::Directive
           && (kind(behind(m_at)) == TokenKind::Semicolon
               || (!m_conditions.empty() && m_conditions.back().isInStatement)))
        enterDirective(true);
}

void Parser::enterDirective(bool isInStatement)
{
    const Directive directive = readDirective(textOf(m_at));
    if (directive.opensCondition()) {
        m_conditions.push_back({m_blocks.size(), isInStatement});
    } else if (!m_conditions.empty() && directive.kind == DirectiveKind::Endif) {
        m_conditions.pop_back();
    } else if (!m_conditions.empty() && directive.dividesCondition()) {
        // A branch that ends elsewhere than it began is one of several to choose from: the first one is read.
        const Condition& condition = m_conditions.back();
        if (isInStatement || condition.isInStatement || condition.blocks != m_blocks.size())
            return passOtherBranch();
    }
    advance();
}

void Parser::passOtherBranch()
{
    for (std::size_t depth = 0; kind() != TokenKind::End; m_at = behind(m_at)) {
        if (kind() != TokenKind::Directive)
            continue;
        const Directive directive = readDirective(textOf(m_at));
        if (directive.opensCondition())
            ++depth;
        else if (directive.kind == DirectiveKind::Endif && depth-- == 0)
            break;
    }
    if (kind() == TokenKind::End)
        return;
    m_conditions.pop_back();
    advance();
}

} // namespace kitwright
