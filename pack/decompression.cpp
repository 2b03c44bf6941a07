// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/decompression.h"

#include "pack/progress.h"
#include "pack/reasons.h"

#include <array>
#include <string>

namespace kitwright {

namespace {

/// What comes out: the window that repetitions look back into, and the bytes on their way to whoever takes them.
class Output {
public:
    Output(std::uint32_t size, const TakeBytes& take) : m_take(take), m_left(size) { m_window.fill(' '); }

    bool isFull() const { return m_left == 0; }
    Failure flush() { return m_pending.empty() ? Failure() : m_take(m_pending); }

    /// Failure when there is no room for the byte.
    Failure add(char byte)
    {
        if (m_left == 0)
            return Failure(why::hasLongData);
        --m_left;
        m_window[m_written++ % m_window.size()] = byte;
        m_unsignedSum += static_cast<unsigned char>(byte);
        m_signedSum += static_cast<std::uint32_t>(static_cast<signed char>(byte));
        m_pending += byte;
        if (m_pending.size() < blockSize)
            return {};
        const Failure failure = m_take(m_pending);
        m_pending.clear();
        return failure;
    }

    Failure repeat(std::size_t distance, std::size_t length)
    {
        if (distance == 0)
            return Failure(why::copiesNothing);
        for (; length > 0; --length) {
            // Places of the window that nothing was written to are blank, as is what lies before the start.
            if (const Failure failure = add(m_window[(m_written - distance) % m_window.size()]))
                return failure;
        }
        return {};
    }

    bool hasSum(std::uint32_t sum) const { return sum == m_unsignedSum || sum == m_signedSum; }

private:
    const TakeBytes& m_take;
    std::uint32_t m_left;
    std::array<char, 4096> m_window{};
    std::size_t m_written = 0;
    std::uint32_t m_unsignedSum = 0;
    std::uint32_t m_signedSum = 0;
    std::string m_pending;
};

/// One item of a group; nothing to say when all went well.
Failure addItem(SequentialBytes& data, bool isLiteral, Output& output)
{
    const auto first = data.next();
    if (!first)
        return Failure(why::hasCutData);
    if (isLiteral)
        return output.add(static_cast<char>(*first));
    const auto second = data.next();
    if (!second)
        return Failure(why::hasCutData);
    const std::size_t distance = *first + ((*second & 0xF0U) << 4);
    return output.repeat(distance, (*second & 0x0FU) + 3);
}

} // namespace

Failure decompress(SequentialBytes& data, std::uint32_t size, const TakeBytes& take)
{
    Output output(size, take);
    while (!output.isFull()) {
        const auto flags = data.next();
        if (!flags)
            return Failure(why::hasCutData);
        for (unsigned bit = 1; bit <= 0x80 && !output.isFull(); bit <<= 1) {
            if (const Failure failure = addItem(data, (*flags & bit) != 0, output))
                return failure;
        }
    }
    const auto sum = data.word();
    if (!sum)
        return Failure(why::hasCutData);
    if (data.areLeft())
        return Failure(why::hasLongData);
    if (!output.hasSum(*sum))
        return Failure(why::hasWrongSum);
    return output.flush();
}

} // namespace kitwright
