// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/finding.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// A place as people count: lines from 1, columns in characters from 1.
struct LinePlace {
    std::size_t line = 1;
    std::size_t column = 1;

    friend bool operator==(const LinePlace&, const LinePlace&) = default;
};

/// Turns places of a text, which must outlive it, into lines and columns. CR LF, LF and CR end lines. Quick where
/// each place asked for lies near the one before.
class LinePlaces {
public:
    explicit LinePlaces(std::string_view text);

    LinePlace at(std::uint32_t offset);

private:
    std::string_view m_text;
    std::vector<std::uint32_t> m_starts; ///< Of the lines.
    std::uint32_t m_offset = 0;          ///< Asked for last.
    LinePlace m_place;                   ///< Of that.
};

/// Gives the text of a message in the language of the output.
using MessageTexts = std::function<std::string(Message)>;

/// One line for each finding: "FILE:LINE:COLUMN: error: TEXT [id]".
std::string findingLines(std::string_view file, std::string_view text, const FindingList& findings,
                         const MessageTexts& texts);

/// One JSON object for each finding, apart by commas and without brackets around them: file, line, column, endLine,
/// endColumn, severity, id, text, and mend, a list of the texts that replace ranges.
std::string findingObjects(std::string_view file, std::string_view text, const FindingList& findings,
                           const MessageTexts& texts);

} // namespace kitwright
