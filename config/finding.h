// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/messages.h"
#include "config/token.h"

#include <string>
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
inline constexpr std::size_t mostFindings = 10'000;

/// Findings by their place.
struct FindingList {
    std::vector<Finding> findings; ///< The first `mostFindings`.
    std::size_t total = 0;

    void add(Finding finding)
    {
        if (++total <= mostFindings)
            findings.push_back(std::move(finding));
    }

    /// Puts them in the order of their places.
    void sort();
};

/// A piece of a config's text as an argument of a message: on one line, and cut to a length that can be read.
std::string shownArgument(std::string_view text);

/// The text of a finding in English.
std::string textOf(const Finding& finding);

/// A text with edits made, which are in order and do not overlap.
std::string edited(std::string_view text, const std::vector<TextEdit>& edits);

} // namespace kitwright
