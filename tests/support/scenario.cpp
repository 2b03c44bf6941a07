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

/// Reads stories line by line.
class StoryReader {
public:
    explicit StoryReader(std::string place) : m_place(std::move(place)) {}

    Stories stories; ///< What stands in front of the first heading has no name, shared steps have their mark.

    void take(const std::string& line)
    {
        ++m_number;
        const bool isText = line.starts_with('|');
        if (isText)
            takeText(line.substr(1));
        else if (line.starts_with("== ") || line.starts_with(sharedMark))
            begin(line.substr(line.starts_with("== ") ? 3 : 0));
        else if (Cells cells = cellsOf(line); !cells.empty())
            takeStep(std::move(cells));
        m_inText = isText;
    }

    static constexpr std::string_view sharedMark = "-- ";

private:
    void begin(const std::string& name)
    {
        if (stories.contains(name))
            throw std::runtime_error(m_place + ": a second " + name);
        m_levels = {&stories[name]};
    }

    void takeText(const std::string& line)
    {
        Cells& cells = m_levels.back()->back().cells;
        if (m_inText)
            cells.back() += "\r\n" + line;
        else
            cells.push_back(line);
    }

    void takeStep(Cells cells)
    {
        if (m_levels.empty())
            begin({});
        Steps& steps = *m_levels.back();
        if (cells[0] == "end") {
            m_levels.pop_back();
        } else if (cells[0] == "after") {
            const Steps& shared = stories.at(std::string(sharedMark) + cells.at(1));
            steps.insert(steps.end(), shared.begin(), shared.end());
        } else {
            steps.push_back({m_place + ':' + std::to_string(m_number), std::move(cells), {}});
            if (steps.back().cells[0] == "open")
                m_levels.push_back(&steps.back().inner);
        }
    }

    std::string m_place;
    std::vector<Steps*> m_levels; ///< What the next step is added to is the last of them.
    int m_number = 0;
    bool m_inText = false;
};

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

Stories storiesIn(const std::string& text, const std::string& place)
{
    StoryReader reader(place);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);)
        reader.take(line);
    std::erase_if(reader.stories,
                  [](const auto& story) { return story.first.starts_with(StoryReader::sharedMark); });
    return reader.stories;
}

Stories readStories(const std::string& file)
{
    return storiesIn(scenarioText(file), file);
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
