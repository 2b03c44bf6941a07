// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/scenario.h"

#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace kitwright::testing {

namespace {

/// At these a list of steps ends.
const std::set<std::string> ends{"==", "--", "end"};

/// The character of the escape whose backslash is at `at`, which moves to the escape's end.
char escaped(const std::string& line, std::size_t& at)
{
    const char letter = line.at(++at);
    if (letter == 'x')
        return static_cast<char>(std::stoi(line.substr((at += 2) - 1, 2), nullptr, 16));
    const std::size_t known = std::string_view("rnt0").find(letter);
    return known == std::string_view::npos ? letter : "\r\n\t\0"[known];
}

/// A cell from `at` up to one of the characters, where `at` is put.
std::string cellUpTo(std::string_view end, const std::string& line, std::size_t& at)
{
    std::string cell;
    for (; at < line.size() && end.find(line[at]) == std::string::npos; ++at)
        cell += line[at] == '\\' ? escaped(line, at) : line[at];
    return cell;
}

/// The cells of a line, in groups that are apart by ";".
std::vector<Cells> groupsOf(std::string line)
{
    constexpr std::string_view lineBreak = "¶";
    for (std::size_t at = 0; (at = line.find(lineBreak, at)) != std::string::npos;)
        line.replace(at, lineBreak.size(), "\\r\\n");
    std::vector<Cells> groups(1);
    for (std::size_t at = 0; (at = line.find_first_not_of(' ', at)) < line.size();) {
        if (line[at] == '#' || line.compare(at, 2, "//") == 0)
            break;
        if (line[at] == ';') {
            groups.emplace_back();
            ++at;
        } else if (line[at] == '"') {
            groups.back().push_back(cellUpTo("\"", line, ++at));
            ++at;
        } else {
            groups.back().push_back(cellUpTo(" ;", line, at));
        }
    }
    std::erase(groups, Cells());
    return groups;
}

/// The steps of a text as they stand there, headings among them.
Steps linesOf(const std::string& text, const std::string& place)
{
    std::istringstream lines(text);
    Steps steps;
    int number = 0;
    bool inText = false;
    for (std::string line; std::getline(lines, line); inText = line.starts_with('|')) {
        ++number;
        if (line.starts_with('|')) {
            const std::string more = line.starts_with("|@") ? scenarioText(line.substr(2)) : line.substr(1);
            Cells& cells = steps.back().cells;
            cells.resize(cells.size() + (inText ? 0 : 1));
            cells.back() += (inText ? "\r\n" : "") + more;
        } else {
            for (Cells& cells : groupsOf(line))
                steps.push_back({place + ':' + std::to_string(number), std::move(cells), {}});
        }
    }
    return steps;
}

/// What a verb stands for, with the cells behind it in place of "$1", "$2" and so on.
Steps filledIn(Steps steps, const Cells& cells)
{
    for (Step& step : steps) {
        for (std::string& cell : step.cells) {
            for (std::size_t i = 1; i < cells.size(); ++i) {
                if (const std::size_t at = cell.find('$' + std::to_string(i)); at != std::string::npos)
                    cell.replace(at, 2, cells[i]);
            }
        }
        step.inner = filledIn(std::move(step.inner), cells);
    }
    return steps;
}

Steps stepsFrom(Steps::const_iterator& at, Steps::const_iterator end, const Stories& verbs)
{
    Steps steps;
    for (; at != end && !ends.contains(at->cells[0]); ++at) {
        if (const auto verb = verbs.find(at->cells[0]); verb != verbs.end()) {
            std::ranges::move(filledIn(verb->second, at->cells), std::back_inserter(steps));
            continue;
        }
        steps.push_back(*at);
        if (at->cells[0] == "open")
            steps.back().inner = stepsFrom(++at, end, verbs);
    }
    return steps;
}

} // namespace

std::vector<Cells> scenarioLines(const std::string& file)
{
    std::vector<Cells> lines;
    for (Step& step : linesOf(scenarioText(file), file))
        lines.push_back(std::move(step.cells));
    return lines;
}

Stories storiesIn(const std::string& text, const std::string& place)
{
    const std::string shared = "verbs.txt";
    Stories verbs;
    Stories stories;
    for (const Steps& lines : {linesOf(scenarioText(shared), shared), linesOf(text, place)}) {
        for (auto at = lines.begin(); at != lines.end();) {
            const Cells heading = ends.contains(at->cells[0]) ? (at++)->cells : Cells{"==", ""};
            Stories& kind = heading[0] == "--" ? verbs : stories;
            if (!kind.try_emplace(heading.at(1), stepsFrom(at, lines.end(), verbs)).second)
                throw std::runtime_error(place + ": told twice: " + heading[1]);
        }
    }
    return stories;
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
