// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/token.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace kitwright {

enum class DirectiveKind : std::uint8_t {
    Define,
    Undef,
    Include,
    Ifdef,
    Ifndef,
    Else,
    Endif,
    LaterIf,
    LaterElse,
    Other
};

/// A directive taken apart; the parts point into its text.
struct Directive {
    DirectiveKind kind = DirectiveKind::Other;
    std::string_view word; ///< With its "#".
    std::string_view name; ///< Of a macro; of a file, without its quotes. Empty when it is missing.
    std::string_view rest; ///< What follows the name, without blanks around it: of a macro its parameters and text.

    bool opensCondition() const
    {
        return kind == DirectiveKind::Ifdef || kind == DirectiveKind::Ifndef || kind == DirectiveKind::LaterIf;
    }
    bool dividesCondition() const { return kind == DirectiveKind::Else || kind == DirectiveKind::LaterElse; }
};

/// Takes the text of a token of the kind Directive apart.
Directive readDirective(std::string_view text);

/// What a #define stands for.
struct Macro {
    static constexpr int none = -1;

    std::string_view text; ///< Without its parameters.
    int parameters = none; ///< How many; `none` when it takes no parentheses.
    bool isUneven = false; ///< It opens or closes a brace that it does not close or open.
};

/// The macros of a config and of what it includes. Their names and texts point into the texts that define them.
class Macros {
public:
    /// The macro of a name, in just this spelling; nullptr when there is none.
    const Macro* find(std::string_view name) const
    {
        if ((m_marks[markOf(name) / 64] >> markOf(name) % 64 & 1) == 0)
            return nullptr;
        const auto found = m_macros.find(name);
        return found == m_macros.end() ? nullptr : &found->second;
    }

    /// True when a word is a macro, or may be one of an include that could not be read.
    bool mayBe(std::string_view word) const { return !m_isComplete || find(word) != nullptr; }

    /// False once an include could not be read: any word may then be a macro.
    bool isComplete() const { return m_isComplete; }
    /// Whether one of them takes arguments.
    bool takeArguments() const { return m_takeArguments; }

    void setIncomplete() { m_isComplete = false; }

    /// Adds what a #define defines, or replaces an older one.
    void define(const Directive& directive);

private:
    static std::size_t markOf(std::string_view name)
    {
        return name.empty() ? 0 : (static_cast<unsigned char>(name.front()) + 7 * name.size()) % 256;
    }

    std::unordered_map<std::string_view, Macro> m_macros;
    std::array<std::uint64_t, 4> m_marks{}; ///< Passes over most words that are no macro at once.
    bool m_isComplete = true;
    bool m_takeArguments = false;
};

/// The macros that the directives of a text itself define.
Macros macrosOf(const Tokens& tokens);

} // namespace kitwright
