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

/// The cells of a line, apart by blanks. One that is empty or holds blanks or ";" stands in double quotes; the escapes
/// of C \r \n \t \0 \xHH are known, and "¶" is CR LF. A comment begins with "//" or "#".
using Cells = std::vector<std::string>;

/// The lines of tests/data/<file> that have cells; throws when there are none.
std::vector<Cells> scenarioLines(const std::string& file);

/// A table of cases, one or more in a line; throws when a line ends within a case.
template <std::size_t columns>
std::vector<std::array<std::string, columns>> scenarioTable(const std::string& file)
{
    std::vector<std::array<std::string, columns>> table;
    for (const Cells& cells : scenarioLines(file)) {
        if (cells.size() % columns != 0)
            throw std::runtime_error(file + ": not a line of the table: " + cells.front());
        for (auto cell = cells.begin(); cell != cells.end(); cell += columns)
            std::copy_n(cell, columns, table.emplace_back().begin());
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

/// The stories of a text, whose place is told as `place`. Steps are cells, apart by ";". Lines behind a step that begin
/// with "|" are one more cell of it, with CR LF between them and without escapes; "|@file" is the text of that file of
/// tests/data. "== Name" begins a story. "-- verb" begins the steps that this verb stands for in the stories below it,
/// with "$1" for the first cell behind it; the verbs of verbs.txt are known to all stories. A text without "==" is one
/// story, without a name.
Stories storiesIn(const std::string& text, const std::string& place);

/// The bytes of tests/data/<file>.
std::string scenarioText(const std::string& file);

/// The stories of tests/data/<file>.
inline Stories readStories(const std::string& file)
{
    return storiesIn(scenarioText(file), file);
}

} // namespace kitwright::testing
