// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <array>
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

/// The bytes of tests/data/<file>.
std::string scenarioText(const std::string& file);

} // namespace kitwright::testing
