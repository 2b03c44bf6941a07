// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kitwright::testing::told {

/// One line of a story: "type txtname MyGun" is a verb, its target and a text.
struct Step {
    int line = 0;
    std::string verb;
    std::string target;
    std::string text;
};

/// A test that is told line by line in a file of tests/data. "== Name" begins a story, "-- Name" steps that stories
/// share, '#' a comment. Lines that begin with '|' are the step's text, CR LF between them; ␍, ␊ and ␀ stand for these
/// characters.
struct Story {
    std::string file;
    std::string name;
    std::vector<Step> steps;

    friend void PrintTo(const Story& story, std::ostream* out) { *out << story.name; }
};

/// What the verbs of a file's stories do with a step's target and text.
using Verbs = std::map<std::string, std::function<void(const std::string& target, const std::string& text)>>;

inline void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

/// Cuts off what stands in front of the first blank.
inline std::string takeWord(std::string& line)
{
    const std::string word = line.substr(0, line.find(' '));
    line.erase(0, word.size() + 1);
    return word;
}

/// The stories of a file, or what they share, by the mark in front of the names.
inline std::vector<Story> readStories(const std::string& file, const std::string& mark = "== ")
{
    std::vector<Story> stories;
    std::ifstream lines(KITWRIGHT_TOP "/tests/data/" + file);
    bool continued = false;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        replaceAll(line, "␍", "\r");
        replaceAll(line, "␊", "\n");
        replaceAll(line, "␀", std::string(1, '\0'));
        if (line.starts_with("== ") || line.starts_with("-- ")) {
            stories.push_back({file, line, {}});
        } else if (line.starts_with('|')) {
            stories.back().steps.back().text += (continued ? "\r\n" : "") + line.substr(1);
            continued = true;
        } else if (!line.empty() && !line.starts_with('#')) {
            const std::string verb = takeWord(line);
            const std::string target = takeWord(line);
            stories.back().steps.push_back({number, verb, target, line});
            continued = false;
        }
    }
    std::erase_if(stories, [&](const Story& story) { return !story.name.starts_with(mark); });
    for (Story& story : stories)
        story.name.erase(0, mark.size());
    return stories;
}

/// Does what a story tells; "after Name" does what stories of the file share.
inline void play(const Story& story, const Verbs& verbs)
{
    for (const Step& step : story.steps) {
        SCOPED_TRACE(story.file + ':' + std::to_string(step.line) + ": " + step.verb + ' ' + step.target);
        if (step.verb == "after") {
            for (const Story& shared : readStories(story.file, "-- ")) {
                if (shared.name == step.target)
                    play(shared, verbs);
            }
        } else {
            ASSERT_TRUE(verbs.contains(step.verb));
            verbs.at(step.verb)(step.target, step.text);
        }
    }
}

/// Makes a test of every story of a file.
#define PLAY_STORIES(Suite, file)                                                                                  \
    TEST_P(Suite, Story)                                                                                           \
    {                                                                                                              \
        play(GetParam(), verbs);                                                                                   \
    }                                                                                                              \
    INSTANTIATE_TEST_SUITE_P(Told, Suite, ::testing::ValuesIn(readStories(file)),                                  \
                             [](const auto& told) { return told.param.name; })

} // namespace kitwright::testing::told
