// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace kitwright::fuzzing {

/// The words of a dictionary in libFuzzer's form: a line each, "word" or name="word", with \xHH, \\ and \" in it.
std::vector<std::string> dictionaryWords(std::string_view dictionary);

/// Makes new inputs out of known ones: the same ones for the same seed, whatever compiler and library.
class Mutator {
public:
    /// There must be at least one known input; there may be no words.
    Mutator(std::vector<std::string> inputs, std::vector<std::string> words, unsigned seed);

    std::string next();

private:
    /// Inputs do not become longer than this: long ones find little that short ones do not, and take their time.
    static constexpr std::size_t longest = 2048;

    struct Range {
        std::size_t start = 0;
        std::size_t length = 0;
    };

    std::size_t below(std::size_t end) { return m_random() % end; }
    const std::string& anyOf(const std::vector<std::string>& texts) { return texts[below(texts.size())]; }
    Range partOf(const std::string& text);
    std::string fromWords();
    void change(std::string& input);
    void insertWord(std::string& input);

    std::vector<std::string> m_inputs;
    std::vector<std::string> m_words;
    std::mt19937 m_random;
};

} // namespace kitwright::fuzzing
