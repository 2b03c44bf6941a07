// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/finding.h"
#include "config/macros.h"
#include "config/surroundings.h"
#include "config/tree.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// A config's own text, or a file that it includes.
struct Source {
    /// Where a file is included.
    struct Inclusion {
        TokenIndex directive = 0;
        std::size_t source = 0;
    };

    std::string text;   ///< Of an included file; the config's own is not copied.
    std::string folder; ///< Of the file, below the config's: empty, or with a '/' at its end.
    Tree tree;
    std::vector<Inclusion> inclusions; ///< In order; those of files that could be read.
    std::vector<TextRange> conditions; ///< What stands between #ifdef and #endif, the outermost ones.

    /// Whether a place may be left out by a condition.
    bool isConditional(std::uint32_t offset) const;

    /// The source that a directive includes, if it could be read.
    std::optional<std::size_t> includedAt(TokenIndex directive) const;
};

/// A config with all that it includes, read. Its text must outlive it.
class Sources {
public:
    Sources(std::string_view text, const Surroundings& surroundings);
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    /// The config's own text.
    const Source& main() const { return m_sources.front(); }
    const Source& operator[](std::size_t index) const { return m_sources[index]; }
    std::size_t count() const { return m_sources.size(); }

    const Macros& macros() const { return m_macros; }

    /// False when an include could not be read: what it holds is not known.
    bool isComplete() const { return m_macros.isComplete(); }

    /// Faults of the syntax, directives included, in the config's own text.
    FindingList& findings() { return m_findings; }

    /// Takes the config's own tree away.
    Tree takeTree() { return std::move(m_sources.front().tree); }

private:
    friend class DirectiveReader;

    std::deque<Source> m_sources; ///< Their addresses stay, since macros point into their texts.
    Macros m_macros;
    FindingList m_findings;
};

} // namespace kitwright
