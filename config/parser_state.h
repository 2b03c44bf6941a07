// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/parser.h"

#include <initializer_list>

namespace kitwright {

/// How the parser finds out which block a brace is missing from, or which brace is one too many.
enum class BraceRule : std::uint8_t {
    AsWritten,     ///< Every brace closes the innermost block; what stays open is told at the end.
    ByIndentation, ///< A brace or class at the column of an outer block shows that the inner ones should have ended.
    ByHeadings,    ///< A heading of the game ("class CfgWeapons") inside a block shows that all should have ended.
};

/// One pass of the parser over the tokens of a text.
class Parser {
public:
    Parser(const Tokens& tokens, const Macros& macros, BraceRule rule);

    void run();

    /// Braces of blocks that were missing or one too many.
    std::size_t braceFaults() const { return m_braceFaults; }

    /// True when the braces of a macro or of an unclosed comment keep one from telling which are missing.
    bool hidesBraces() const { return m_hidesBraces; }

    std::vector<Node> takeNodes() { return std::move(m_nodes); }
    FindingList takeFindings() { return std::move(m_findings); }

private:
    // Tokens. The cursor stands on a token that is no comment.
    TokenKind kind() const { return m_tokens.kind(m_at); }
    TokenKind kind(TokenIndex token) const { return m_tokens.kind(token); }
    TokenIndex behind(TokenIndex token) const { return m_tokens.behind(token); }
    bool isFirstOnLine() const { return m_tokens.isFirstOnLine(m_at); }
    std::string_view textOf(TokenIndex token) const { return m_tokens.textOf(token); }
    bool isMacro(TokenIndex token) const { return m_macros.find(textOf(token)) != nullptr; }
    bool mayBeMacro(TokenIndex token) const;
    bool isName(TokenIndex token) const;
    bool startsProperty(TokenIndex token) const;
    bool startsStatement(TokenIndex token) const;

    /// Takes a token.
    void advance()
    {
        const TokenKind taken = kind();
        if (taken == TokenKind::OpenString)
            silenceStatement();
        if (taken != TokenKind::Directive)
            m_last = m_at;
        m_at = m_tokens.behind(m_at);
    }

    void silenceStatement();
    void step();     ///< The same inside a statement: directives that follow are passed over.
    void passWord(); ///< Takes a token, and what stands in parentheses behind a word.
    void passParentheses();
    void passDirectives();
    void passDirectivesOfStatement();
    void enterDirective(bool isInStatement);
    void passOtherBranch();

    // Nodes.
    NodeIndex open(NodeKind kind, TokenIndex first);
    void close(NodeIndex index);

    // Statements.
    void statement();
    void wordStatement();
    void macroStatement();
    void classStatement();
    bool misspelledClass();
    void classHead(NodeIndex node);
    void className(NodeIndex index, std::uint8_t Node::*place);
    void behindClassHead(NodeIndex node);
    void withoutBody(NodeIndex node);
    bool hasBodyWithoutBrace(NodeIndex node) const;
    void deletion();
    void extraSemicolons();
    void property();
    void brackets(NodeIndex node);
    void assignment(NodeIndex node);
    void unexpected();
    void recover();
    void passBraces();
    void expectSemicolon();

    // Values (parse_value.cpp).
    void value(NodeIndex node);
    void scalar(NodeIndex node);
    TokenIndex scalarTokens();
    void judgeScalar(TokenIndex first, TokenIndex end);
    void judgeWord(TokenIndex word);
    void wrapInBraces(NodeIndex node, TokenIndex first);
    bool array();
    void openList();
    bool closeList();
    void beginElement();
    void element();
    bool openStringInList();
    bool isWrongSeparator() const;
    void wrongSeparator();
    bool unclosedList();
    void closeLists();
    void tellOfList(Message message, TextRange range, std::initializer_list<std::string_view> arguments = {},
                    std::vector<TextEdit> mend = {});
    void behindOpenString(std::size_t openLists);

    // Blocks (parse_blocks.cpp).
    struct Block {
        NodeIndex node = 0;
        TokenIndex brace = 0;
    };
    void openBlock(NodeIndex node);
    void closeBrace();
    void closeBlock();
    void closeSwallowed();
    void closeUnclosed();
    void extraBrace();
    bool closesNothing() const;
    void openBlocksAtEnd();
    bool endsOuterBlock(TokenIndex token);
    bool isExtraByIndentation() const;
    void endBlocksBefore(TokenIndex token);
    static constexpr int noColumn = -1;
    int columnOf(TokenIndex token) const;
    bool standsAtColumnOf(const Block& block, int column) const;

    // Findings.
    void tell(Message message, TextRange range, std::initializer_list<std::string_view> arguments = {},
              std::vector<TextEdit> mend = {});
    void tellMissingSemicolon(TokenIndex last);
    TextRange spanOf(TokenIndex first, TokenIndex last) const;
    TextRange headOf(NodeIndex index) const;

    const Tokens& m_tokens;
    const Macros& m_macros;
    BraceRule m_rule;
    TokenIndex m_at = 0;
    TokenIndex m_last = 0; ///< The token taken last.
    std::vector<Node> m_nodes;
    NodeIndex m_parent = 0;      ///< Of the next node.
    std::vector<Block> m_blocks; ///< The open ones.

    enum class ListPart : std::uint8_t { Nothing, Comma, Value };
    struct List {
        TokenIndex outer = 0;  ///< The brace of the outermost list.
        std::size_t depth = 0; ///< Open lists.
        ListPart former = ListPart::Nothing;
        bool isTold = false;
    };
    List m_list; ///< Being read.

    struct Condition {
        std::size_t blocks = 0; ///< Open ones where it began.
        bool isInStatement = false;
    };
    std::vector<Condition> m_conditions; ///< The open #ifdef and their like.

    FindingList m_findings;
    std::size_t m_statementFindings = 0; ///< How many there were when the statement began.
    bool m_isSilent = false;             ///< A string without an end makes the rest of the statement unclear.
    std::size_t m_swallowedBraces = 0;   ///< Closing braces of blocks that a string without an end took.
    std::size_t m_braceFaults = 0;
    bool m_hidesBraces = false;
};

} // namespace kitwright
