// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kitwright::testing {

/// The cells of a line, apart by blanks. One that has blanks or is empty stands in double quotes; the escapes of C
/// \r \n \t \0 \xHH are known.
using Cells = std::vector<std::string>;

/// The lines of tests/data/<file>, without empty ones and "#" comments; throws when there are none.
std::vector<Cells> scenarioLines(const std::string& file);

/// A table of cases; throws when a line has another number of cells.
template <std::size_t columns>
std::vector<std::array<std::string, columns>> scenarioTable(const std::string& file)
{
    std::vector<std::array<std::string, columns>> table;
    for (Cells& cells : scenarioLines(file)) {
        if (cells.size() != columns)
            throw std::runtime_error(file + ": not a line of the table: " + cells.front());
        std::move(cells.begin(), cells.end(), table.emplace_back().begin());
    }
    return table;
}

/// A step of a story: a verb and what it is told. What stands between "open" and "end" belongs to the former.
struct Step {
    std::string place; ///< The file and the line that it was read from.
    Cells cells;
    std::vector<Step> inner;

    friend void PrintTo(const Step& step, std::ostream* out) { *out << step.place; }
};

using Steps = std::vector<Step>;

/// Stories by their names.
using Stories = std::map<std::string, Steps>;

/// The stories of a text, whose place is told as `place`. A step is a line of cells; lines behind it that begin with
/// "|" are one more cell, with CR LF between them and without escapes. "== Name" begins a story, "-- Name" steps that
/// the stories below it do with "after Name". A text without stories is one, without a name.
Stories storiesIn(const std::string& text, const std::string& place);

/// The stories of tests/data/<file>.
Stories readStories(const std::string& file);

/// The bytes of tests/data/<file>.
std::string scenarioText(const std::string& file);

} // namespace kitwright::testing
