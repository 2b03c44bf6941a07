// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/searches.h"

#include "text/letter_case.h"
#include "text/utf8.h"

namespace kitwright {

namespace {

/// Half of a sum of bounds, with halves going to the even neighbour.
int middle(int lower, int upper)
{
    const long sum = static_cast<long>(lower) + upper;
    const long down = sum >= 0 ? sum / 2 : (sum - 1) / 2;
    const bool halfway = sum - 2 * down == 1;
    return static_cast<int>(halfway && down % 2 != 0 ? down + 1 : down);
}

/// The search proper: `valueAt` gives what the upper-cased key is compared with.
template <class ValueAt>
int search(int lower, int upper, const std::string& key, const ValueAt& valueAt)
{
    for (;;) {
        const int mid = middle(lower, upper);
        const std::string value = valueAt(mid);
        if (value == key)
            return mid;
        if (lower >= upper)
            return -1;
        if (key < value)
            upper = mid - 1;
        else
            lower = mid + 1;
    }
}

/// The first characters of a text, as many as `count`.
std::string_view firstCharacters(std::string_view text, std::size_t count)
{
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += utf8At(text, end).length;
    return text.substr(0, end);
}

std::size_t characterCount(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); i += utf8At(text, i).length)
        ++count;
    return count;
}

} // namespace

int FindExact(int lower, int upper, std::string_view key, const TextList& list)
{
    return search(lower, upper, upperCased(key), [&](int index) { return upperCased(list.textAt(index)); });
}

int FindPrefix(int lower, int upper, std::string_view key, const TextList& list)
{
    const std::string upperKey = upperCased(key);
    const std::size_t length = characterCount(key);
    const auto head = [&](int index) {
        return upperCased(trimmedSpaces(firstCharacters(list.textAt(index), length)));
    };
    int found = search(lower, upper, upperKey, head);
    while (found > 0 && head(found - 1) == upperKey)
        --found;
    return found;
}

} // namespace kitwright
