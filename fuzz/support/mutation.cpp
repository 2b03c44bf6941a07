// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/mutation.h"

#include <algorithm>
#include <charconv>

namespace kitwright::fuzzing {

namespace {

/// What stands between the quotes of a dictionary line.
std::string unescaped(std::string_view text)
{
    std::string word;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned char byte = 0;
        const char* const digits = text.data() + std::min(at + 2, text.size());
        const char* const end = text.data() + std::min(at + 4, text.size());
        if (text.substr(at, 2) == "\\x" && std::from_chars(digits, end, byte, 16).ptr == digits + 2) {
            word += static_cast<char>(byte);
            at += 3;
        } else {
            at += text[at] == '\\' && at + 1 < text.size() ? 1 : 0;
            word += text[at];
        }
    }
    return word;
}

} // namespace

std::vector<std::string> dictionaryWords(std::string_view dictionary)
{
    std::vector<std::string> words;
    while (!dictionary.empty()) {
        const std::string_view line = dictionary.substr(0, dictionary.find('\n'));
        dictionary.remove_prefix(std::min(line.size() + 1, dictionary.size()));
        const std::size_t first = line.find('"');
        const std::size_t last = line.rfind('"');
        if (!line.starts_with('#') && first < last && last != line.npos)
            words.push_back(unescaped(line.substr(first + 1, last - first - 1)));
    }
    return words;
}

Mutator::Mutator(std::vector<std::string> inputs, std::vector<std::string> words, unsigned seed)
    : m_inputs(std::move(inputs)),
      m_words(std::move(words)),
      m_random(seed)
{
}

std::string Mutator::next()
{
    if (!m_words.empty() && below(4) == 0)
        return fromWords();
    std::string input = anyOf(m_inputs);
    for (std::size_t changes = 1 + below(8); changes > 0; --changes)
        change(input);
    input.resize(std::min(input.size(), longest));
    return input;
}

/// A part of a text, short ones more often than long ones.
Mutator::Range Mutator::partOf(const std::string& text)
{
    const std::size_t start = below(text.size() + 1);
    const std::size_t most = 1 + below(text.size() - start + 1);
    return {start, std::min(below(most) + 1, text.size() - start)};
}

/// The words alone, in any order: what no known input leads to.
std::string Mutator::fromWords()
{
    std::string input;
    for (std::size_t words = 1 + below(12); words > 0; --words) {
        input += anyOf(m_words);
        if (below(6) == 0)
            input += static_cast<char>(' ' + below(95));
    }
    return input;
}

void Mutator::insertWord(std::string& input)
{
    const std::string word = m_words.empty() ? std::string(1, static_cast<char>(below(256))) : anyOf(m_words);
    const std::size_t place = below(input.size() + 1);
    // In front of what stands there, or over it.
    input.replace(place, below(2) == 0 ? 0 : std::min(word.size(), input.size() - place), word);
}

void Mutator::change(std::string& input)
{
    const Range part = partOf(input);
    const std::string& other = anyOf(m_inputs);
    const Range otherPart = partOf(other);
    const std::string piece = input.substr(part.start, part.length);
    switch (below(8)) {
    case 0:
        input.erase(part.start, part.length);
        break;
    case 1:
        input.insert(part.start, piece);
        break;
    case 2:
        input.insert(below(input.size() + 1), other, otherPart.start, otherPart.length);
        break;
    case 3:
        input.replace(part.start, std::string::npos, other, otherPart.start);
        break;
    case 4:
        if (part.length > 0)
            input[part.start] = static_cast<char>(input[part.start] ^ (1 << below(8)));
        break;
    case 5:
        if (part.length > 0)
            input[part.start] = static_cast<char>(below(256));
        break;
    default:
        insertWord(input);
    }
}

} // namespace kitwright::fuzzing
