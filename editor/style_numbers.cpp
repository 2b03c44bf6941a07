// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "editor/style_numbers.h"

#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <cmath>

namespace kitwright {

namespace {

using Sci = QsciScintillaBase;

constexpr std::size_t numberCount = 256;

/// The numbers that the control itself draws with: margin, braces, call tips and the like.
constexpr bool isReserved(std::size_t number)
{
    return number >= Sci::STYLE_DEFAULT && number <= Sci::STYLE_LASTPREDEFINED;
}

} // namespace

StyleNumbers::StyleNumbers(QsciScintilla& control) : m_control(control), m_styles(numberCount)
{
    m_styles[0] = TextStyle{};
}

void StyleNumbers::define()
{
    for (std::size_t number = 0; number < numberCount; ++number) {
        if (m_styles[number])
            defineNumber(number);
    }
}

std::vector<unsigned char> StyleNumbers::numbersOf(std::span<const TextStyle> styles)
{
    Held held;
    std::vector<unsigned char> numbers;
    for (const TextStyle& style : styles) {
        numbers.push_back(give(style, held));
        held.set(numbers.back());
    }
    return numbers;
}

unsigned char StyleNumbers::give(const TextStyle& style, const Held& held)
{
    const auto known = std::find(m_styles.begin(), m_styles.end(), style);
    if (known != m_styles.end())
        return static_cast<unsigned char>(known - m_styles.begin());

    const auto firstFree = [&] {
        for (std::size_t number = 1; number < numberCount; ++number) {
            if (!m_styles[number] && !isReserved(number))
                return number;
        }
        return std::size_t{0};
    };
    std::size_t number = firstFree();
    if (number == 0) {
        freeUnused(held);
        number = firstFree();
    }
    if (number != 0) {
        m_styles[number] = style;
        defineNumber(number);
    }
    return static_cast<unsigned char>(number);
}

TextStyle StyleNumbers::styleOf(unsigned char number) const
{
    return m_styles[number].value_or(TextStyle{});
}

void StyleNumbers::defineNumber(std::size_t number)
{
    const TextStyle& style = *m_styles[number];
    const QFont font = m_control.font();
    const QByteArray family = font.family().toUtf8();
    m_control.SendScintilla(Sci::SCI_STYLESETFONT, number, family.constData());
    m_control.SendScintilla(Sci::SCI_STYLESETSIZEFRACTIONAL, number,
                            std::lround(font.pointSizeF() * int{Sci::SC_FONT_SIZE_MULTIPLIER}));
    m_control.SendScintilla(Sci::SCI_STYLESETFORE, number, static_cast<long>(style.colour & 0xFFFFFF));
    m_control.SendScintilla(Sci::SCI_STYLESETBOLD, number, long{style.bold});
    m_control.SendScintilla(Sci::SCI_STYLESETITALIC, number, long{style.italic});
}

void StyleNumbers::freeUnused(const Held& held)
{
    Held used = held;
    used.set(0);
    const long length = m_control.SendScintilla(Sci::SCI_GETLENGTH);
    for (long position = 0; position < length; ++position) {
        const long number = m_control.SendScintilla(Sci::SCI_GETSTYLEAT, static_cast<unsigned long>(position));
        used.set(static_cast<std::size_t>(number) & 0xFF);
    }
    for (std::size_t number = 0; number < numberCount; ++number) {
        if (!used[number])
            m_styles[number].reset();
    }
}

} // namespace kitwright
