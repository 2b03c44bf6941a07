// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/sources.h"

#include "config/lexer.h"
#include "config/parser.h"

#include <algorithm>
#include <unordered_map>

namespace kitwright {

/// Reads the directives of a config and of what it includes, in the order in which the game would.
class DirectiveReader {
public:
    DirectiveReader(Sources& sources, const Surroundings& surroundings)
        : m_sources(sources),
          m_surroundings(surroundings)
    {
    }

    /// Reads the files; gives the tokens of each source.
    std::vector<Tokens> run(std::string_view text)
    {
        begin(text);
        while (!m_open.empty()) {
            const std::vector<TokenIndex>& directives = tokens().directives();
            std::size_t& next = m_open.back().next;
            if (next < directives.size())
                directive(directives[next++]);
            else
                end();
        }
        return std::vector<Tokens>(std::make_move_iterator(m_tokens.begin()),
                                   std::make_move_iterator(m_tokens.end()));
    }

private:
    static constexpr std::size_t mostFiles = 500;

    struct Condition {
        TokenIndex directive = 0;
        bool isDivided = false;
    };
    struct OpenFile {
        std::size_t source = 0;
        std::size_t next = 0; ///< Of the file's directives.
        std::vector<Condition> conditions{};
    };

    void begin(std::string_view text)
    {
        m_open.push_back({m_tokens.size()});
        m_tokens.push_back(readTokens(text));
    }

    void end()
    {
        for (const Condition& condition : m_open.back().conditions) {
            const std::string_view word = readDirective(tokens().textOf(condition.directive)).word;
            tell(Message::DirectiveWithoutEnd, condition.directive, {word});
        }
        if (!m_open.back().conditions.empty())
            addCondition(tokens().range(m_open.back().conditions.front().directive).start, 0xFFFFFFFF);
        m_open.pop_back();
    }

    const Tokens& tokens() const { return m_tokens[m_open.back().source]; }
    Source& source() { return m_sources.m_sources[m_open.back().source]; }
    bool isConditional() const { return !m_open.back().conditions.empty(); }

    void directive(TokenIndex token)
    {
        const Directive directive = readDirective(tokens().textOf(token));
        const bool needsName = directive.kind <= DirectiveKind::Ifndef;
        if (needsName && directive.name.empty())
            tell(Message::DirectiveWithoutName, token, {directive.word});
        switch (directive.kind) {
        case DirectiveKind::Define:
            return define(directive, token);
        case DirectiveKind::Undef:
            m_defined.erase(directive.name);
            return;
        case DirectiveKind::Include:
            return include(directive, token);
        case DirectiveKind::LaterIf:
        case DirectiveKind::LaterElse:
            tell(Message::LaterDirective, token, {directive.word});
            break;
        case DirectiveKind::Other:
            tell(Message::UnknownDirective, token, {directive.word});
            return;
        default:
            break;
        }
        condition(directive, token);
    }

    void condition(const Directive& directive, TokenIndex token)
    {
        std::vector<Condition>& conditions = m_open.back().conditions;
        if (directive.opensCondition())
            return conditions.push_back({token});
        const bool isElse = directive.kind == DirectiveKind::Else;
        if (conditions.empty() || (isElse && conditions.back().isDivided)) {
            tell(Message::DirectiveWithoutStart, token, {directive.word});
        } else if (isElse) {
            conditions.back().isDivided = true;
        } else if (directive.kind == DirectiveKind::Endif) {
            if (conditions.size() == 1)
                addCondition(tokens().start(conditions.back().directive), tokens().end(token));
            conditions.pop_back();
        }
    }

    void addCondition(std::uint32_t start, std::uint32_t end) { source().conditions.push_back({start, end}); }

    void define(const Directive& directive, TokenIndex token)
    {
        if (directive.name.empty())
            return;
        m_sources.m_macros.define(directive);
        if (isConditional())
            return;
        const auto [place, isNew] = m_defined.try_emplace(directive.name, directive.rest);
        if (!isNew && place->second != directive.rest)
            tell(Message::MacroRedefined, token, {directive.name}, {}, directive.name);
        place->second = directive.rest;
    }

    void include(const Directive& directive, TokenIndex token)
    {
        if (directive.name.empty())
            return m_sources.m_macros.setIncomplete();
        const std::optional<std::string> path = fileOf(directive.name);
        if (!path) {
            m_sources.m_macros.setIncomplete();
            if (m_surroundings.folder != nullptr && !isAbsolute(directive.name) && !directive.name.starts_with("..")
                && !isConditional())
                tell(Message::MissingInclude, token, {directive.name}, {}, directive.name);
            return;
        }
        tellSpelling(directive, token, *path);
        const auto [known, isNew] = m_files.try_emplace(*path, m_tokens.size());
        if (isNew && !readFile(*path))
            m_files.erase(known);
        else
            includeSource(token, known->second, isNew);
    }

    /// The file in the config's folder that an include names.
    std::optional<std::string> fileOf(std::string_view name)
    {
        if (m_surroundings.folder == nullptr)
            return std::nullopt;
        if (!isAbsolute(name))
            return m_surroundings.folder->find(source().folder + std::string(name));
        // From the root of all add-ons: its first part names one, and perhaps this one.
        const std::size_t separator = name.find_first_of("/\\", 1);
        return separator == std::string_view::npos ? std::nullopt
                                                   : m_surroundings.folder->find(name.substr(separator));
    }

    static bool isAbsolute(std::string_view name)
    {
        return name.starts_with('\\') || name.starts_with('/') || name.find(':') != std::string_view::npos;
    }

    void tellSpelling(const Directive& directive, TokenIndex token, const std::string& path)
    {
        std::string written(directive.name);
        std::replace(written.begin(), written.end(), '\\', '/');
        const std::size_t length = std::min(path.size(), written.size());
        const std::string real = path.substr(path.size() - length);
        if (!sameName(written.substr(written.size() - length), real) || written.ends_with(real))
            return;
        std::string mended(directive.name);
        for (std::size_t i = 0; i < length; ++i) {
            if (real[i] != '/')
                mended[mended.size() - length + i] = real[i];
        }
        const TextRange range = rangeIn(token, directive.name);
        tell(Message::IncludeCase, token, {mended}, {{range, mended}}, directive.name);
    }

    bool readFile(const std::string& path)
    {
        std::optional<std::string> text;
        if (m_surroundings.readFile && m_tokens.size() < mostFiles)
            text = m_surroundings.readFile(path);
        if (!text) {
            m_sources.m_macros.setIncomplete();
            return false;
        }
        Source& file = m_sources.m_sources.emplace_back();
        file.text = std::move(*text);
        file.folder = path.substr(0, path.rfind('/') + 1);
        return true;
    }

    void includeSource(TokenIndex token, std::size_t index, bool isNew)
    {
        source().inclusions.push_back({token, index});
        if (isNew)
            begin(m_sources.m_sources.back().text);
    }

    TextRange rangeIn(TokenIndex token, std::string_view part) const
    {
        const std::string_view text = tokens().textOf(token);
        const auto start = tokens().start(token) + static_cast<std::uint32_t>(part.data() - text.data());
        return {start, start + static_cast<std::uint32_t>(part.size())};
    }

    /// Tells of a part of a directive, or of its first word.
    void tell(Message message, TokenIndex token, std::initializer_list<std::string_view> arguments,
              std::vector<TextEdit> mend = {}, std::string_view part = {})
    {
        if (m_open.back().source != 0)
            return;
        const std::string_view place = part.empty() ? readDirective(tokens().textOf(token)).word : part;
        m_sources.m_findings.add(message, rangeIn(token, place), arguments, std::move(mend));
    }

    Sources& m_sources;
    const Surroundings& m_surroundings;
    std::deque<Tokens> m_tokens;
    std::vector<OpenFile> m_open;
    std::unordered_map<std::string, std::size_t> m_files;
    std::unordered_map<std::string_view, std::string_view> m_defined; ///< What each macro stands for, for now.
};

bool Source::isConditional(std::uint32_t offset) const
{
    const auto behind = std::upper_bound(conditions.begin(), conditions.end(), offset,
                                         [](std::uint32_t place, TextRange range) { return place < range.start; });
    return behind != conditions.begin() && offset < std::prev(behind)->end;
}

std::optional<std::size_t> Source::includedAt(TokenIndex directive) const
{
    const auto found =
        std::lower_bound(inclusions.begin(), inclusions.end(), directive,
                         [](const Inclusion& inclusion, TokenIndex token) { return inclusion.directive < token; });
    if (found == inclusions.end() || found->directive != directive)
        return std::nullopt;
    return found->source;
}

Sources::Sources(std::string_view text, const Surroundings& surroundings)
{
    m_sources.emplace_back();
    std::vector<Tokens> tokens = DirectiveReader(*this, surroundings).run(text);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        ParsedConfig parsed = parse(std::move(tokens[i]), m_macros);
        m_sources[i].tree = std::move(parsed.tree);
        if (i == 0)
            m_findings.append(std::move(parsed.findings));
    }
}

} // namespace kitwright
