// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/lexer.h"
#include "config/parser_state.h"

namespace kitwright {

namespace {

/// Strings and comments that are cut off.
void tellOpenTokens(const Tokens& tokens, FindingList& findings)
{
    for (TokenIndex i = 0; tokens.areCutOff() && i < tokens.count(); ++i) {
        if (tokens.kind(i) == TokenKind::OpenComment) {
            const std::uint32_t start = tokens.start(i);
            findings.add(Message::UnclosedComment, {start, start + 2});
        } else if (tokens.kind(i) == TokenKind::OpenString) {
            // What ends the statement was hardly meant to be part of the text.
            const std::string_view text = tokens.textOf(i);
            const std::size_t last = text.find_last_not_of(" \t,;}");
            const auto end = tokens.start(i) + static_cast<std::uint32_t>(last + 1);
            const TokenKind next = tokens.kind(i + 1);
            const bool endsStatement =
                end == tokens.end(i) && (next == TokenKind::Word || next == TokenKind::Class);
            std::vector<TextEdit> mend;
            if (last > 0)
                mend = {{{end, end}, endsStatement ? "\";" : "\""}};
            findings.add(Message::UnclosedString, tokens.range(i), {}, std::move(mend));
        }
    }
}

bool isAboutBlocks(const Finding& finding)
{
    return finding.message == Message::MissingBrace || finding.message == Message::ExtraBrace;
}

} // namespace

ParsedConfig parse(Tokens tokens, const Macros& macros)
{
    Parser parser(tokens, macros, BraceRule::AsWritten);
    parser.run();
    std::vector<Node> nodes = parser.takeNodes();
    FindingList findings = parser.takeFindings();
    if (parser.hidesBraces()) {
        findings.removeIf(isAboutBlocks);
    } else if (parser.braceFaults() > 0) {
        for (const BraceRule rule : {BraceRule::ByIndentation, BraceRule::ByHeadings}) {
            Parser closer(tokens, macros, rule);
            closer.run();
            FindingList closerFindings = closer.takeFindings();
            if (closer.braceFaults() > parser.braceFaults() || closerFindings.count() > findings.count())
                continue;
            nodes = closer.takeNodes();
            findings = std::move(closerFindings);
            break;
        }
    }
    if (nodes.capacity() > nodes.size() + nodes.size() / 2)
        nodes.shrink_to_fit();
    tellOpenTokens(tokens, findings);
    findings.sort();
    return {Tree(std::move(tokens), std::move(nodes)), std::move(findings)};
}

ParsedConfig parse(std::string_view text)
{
    Tokens tokens = readTokens(text);
    const Macros macros = macrosOf(tokens);
    return parse(std::move(tokens), macros);
}

} // namespace kitwright
