// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/scenario.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace kitwright::testing {

namespace {

/// The character of the escape whose backslash is at `at`, which moves to the escape's end.
char escaped(const std::string& line, std::size_t& at)
{
    const char letter = line.at(++at);
    if (letter == 'x') {
        at += 2;
        return static_cast<char>(std::stoi(line.substr(at - 1, 2), nullptr, 16));
    }
    const std::string letters = "rnt0";
    const std::size_t known = letters.find(letter);
    return known == std::string::npos ? letter : "\r\n\t\0"[known];
}

Cells cellsOf(const std::string& line)
{
    Cells cells;
    std::size_t at = line.find_first_not_of(' ');
    while (at < line.size() && line[at] != '#') {
        const char end = line[at] == '"' ? '"' : ' ';
        std::string cell;
        for (at += end == '"' ? 1 : 0; at < line.size() && line[at] != end; ++at)
            cell += line[at] == '\\' ? escaped(line, at) : line[at];
        cells.push_back(cell);
        at = line.find_first_not_of(' ', at + 1);
    }
    return cells;
}

} // namespace

std::vector<Cells> scenarioLines(const std::string& file)
{
    std::istringstream text(scenarioText(file));
    std::vector<Cells> lines;
    for (std::string line; std::getline(text, line);) {
        if (Cells cells = cellsOf(line); !cells.empty())
            lines.push_back(std::move(cells));
    }
    return lines;
}

std::string scenarioText(const std::string& file)
{
    std::ifstream stream(KITWRIGHT_TOP "/tests/data/" + file, std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (text.empty())
        throw std::runtime_error(file + ": missing or empty");
    return text;
}

} // namespace kitwright::testing
