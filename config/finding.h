// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/messages.h"
#include "config/token.h"

#include <array>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// Replaces a range of a text.
struct TextEdit {
    TextRange range;
    std::string text;

    friend bool operator==(const TextEdit&, const TextEdit&) = default;
};

/// Something wrong in a config.
struct Finding {
    Message message = {};
    TextRange range;                    ///< Never empty, but in an empty text.
    std::vector<std::string> arguments; ///< Of the message's text.
    std::vector<TextEdit> mend;         ///< In order, none of them overlapping; empty where no mend is safe.

    FindingKind kind() const { return kindOf(message); }
    Severity severity() const { return severityOf(message); }

    friend bool operator==(const Finding&, const Finding&) = default;
};

/// The most findings that are kept; their number goes on.
inline constexpr std::size_t mostFindings = 1'000;

/// Findings; the first `mostFindings` are kept, all are counted.
class FindingList {
public:
    const std::vector<Finding>& kept() const { return m_kept; }

    /// How many there are, kept or not.
    std::size_t count() const { return m_counts[0] + m_counts[1] + m_counts[2]; }
    std::size_t count(Severity severity) const { return m_counts[static_cast<std::size_t>(severity)]; }

    /// Whether a further finding would only be counted.
    bool isFull() const { return m_kept.size() >= mostFindings; }

    /// Adds one; its arguments are pieces of a config's text, put on one line and cut to a length that can be read.
    void add(Message message, TextRange range, std::initializer_list<std::string_view> arguments = {},
             std::vector<TextEdit> mend = {});

    void append(FindingList&& others);

    /// Takes away those kept ones, from an index on, that are meant.
    void removeIf(const std::function<bool(const Finding&)>& isMeant, std::size_t from = 0);

    /// Puts them in the order of their places.
    void sort();

private:
    std::vector<Finding> m_kept;
    std::array<std::size_t, 3> m_counts{}; ///< By severity.
};

/// The text of a finding in English.
std::string textOf(const Finding& finding);

/// A text with edits made, which are in order and do not overlap.
std::string edited(std::string_view text, const std::vector<TextEdit>& edits);

} // namespace kitwright
