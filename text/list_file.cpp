// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/list_file.h"

#include "text/letter_case.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace kitwright {

namespace {

constexpr std::string_view blanks = " \t\n";

std::string_view withoutLeading(std::string_view text, std::string_view characters)
{
    return text.substr(std::min(text.find_first_not_of(characters), text.size()));
}

std::size_t digitsAt(std::string_view text, std::size_t position)
{
    const std::size_t end = text.find_first_not_of("0123456789", position);
    return std::min(end, text.size()) - position;
}

/// Length of the decimal number that the text starts with, sign included; 0 when it starts with none.
std::size_t numberLength(std::string_view text)
{
    std::size_t length = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::size_t digits = digitsAt(text, length);
    length += digits;
    if (length < text.size() && text[length] == '.') {
        const std::size_t decimals = digitsAt(text, length + 1);
        digits += decimals;
        length += 1 + decimals;
    }
    return digits == 0 ? 0 : length;
}

/// The value of what `numberLength` found.
double numberValue(std::string_view number)
{
    const bool negative = number[0] == '-';
    if (negative || number[0] == '+')
        number.remove_prefix(1);
    double value = 0;
    const auto read =
        std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed);
    // Out of range is too large or too close to 0; only the former has a digit other than 0 before its point.
    if (read.ec == std::errc::result_out_of_range) {
        const bool large = number.substr(0, number.find('.')).find_first_not_of('0') != std::string_view::npos;
        value = large ? std::numeric_limits<double>::max() : 0;
    }
    return negative ? -value : value;
}

std::int16_t kindOf(double number)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double rounded = std::round(number);
    return rounded >= Limits::min() && rounded <= Limits::max() ? static_cast<std::int16_t>(rounded)
                                                                : std::int16_t{0};
}

/// The free text behind a kind number: one run of a separator is dropped with the blanks around it, so that
/// "2; -1 = none" keeps its minus sign.
std::string_view helpIn(std::string_view text)
{
    text = withoutLeading(text, blanks);
    if (!text.empty() && std::string_view(";:,-").find(text[0]) != std::string_view::npos)
        text = withoutLeading(text, text.substr(0, 1));
    return trimmedSpaces(withoutLeading(text, blanks));
}

ListEntry entryOf(std::string_view line)
{
    const std::size_t comma = line.find(',');
    ListEntry entry;
    entry.text = trimmedSpaces(line.substr(0, comma));
    if (comma == std::string_view::npos)
        return entry;
    const std::string_view field = withoutLeading(line.substr(comma + 1), blanks);
    entry.kind = kindOf(leadingNumber(field));
    entry.help = helpIn(field.substr(numberLength(field)));
    return entry;
}

} // namespace

double leadingNumber(std::string_view text)
{
    const std::string_view field = withoutLeading(text, blanks);
    const std::size_t length = numberLength(field);
    return length == 0 ? 0 : numberValue(field.substr(0, length));
}

std::vector<ListEntry> listEntries(std::string_view text, std::size_t most)
{
    std::vector<ListEntry> entries;
    for (const std::string_view line : dataLines(text, most))
        entries.push_back(entryOf(line));
    return entries;
}

} // namespace kitwright
