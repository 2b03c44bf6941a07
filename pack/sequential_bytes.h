// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_streams.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace kitwright {

/// The bytes of a part of a source, one after another, read in blocks.
class SequentialBytes {
public:
    /// From `offset` to `end`, which must be inside the source.
    SequentialBytes(ByteSource& source, std::uint64_t offset, std::uint64_t end)
        : m_source(source),
          m_next(offset),
          m_end(end)
    {
    }

    /// Where the next byte is in the source.
    std::uint64_t position() const { return m_next - (m_buffer.size() - m_used); }

    bool areLeft() const { return m_used < m_buffer.size() || m_next < m_end; }

    /// The next byte, 0 to 255; nothing at the end, or once the source has failed.
    std::optional<unsigned char> next()
    {
        if (m_used == m_buffer.size() && !refill())
            return std::nullopt;
        return static_cast<unsigned char>(m_buffer[m_used++]);
    }

    /// The next four bytes as a number, the least one first; nothing when they are not all there.
    std::optional<std::uint32_t> word()
    {
        std::uint32_t value = 0;
        for (int shift = 0; shift < 32; shift += 8) {
            const auto byte = next();
            if (!byte)
                return std::nullopt;
            value |= std::uint32_t{*byte} << shift;
        }
        return value;
    }

    /// Why the source has failed, if it has.
    const Failure& failure() const { return m_failure; }

private:
    bool refill()
    {
        constexpr std::uint64_t block = 65'536;
        m_buffer.resize(static_cast<std::size_t>(std::min(block, m_end - m_next)));
        m_used = 0;
        if (m_buffer.empty())
            return false;
        m_failure = m_source.read(m_next, m_buffer);
        if (m_failure) {
            m_buffer.clear();
            m_end = m_next;
            return false;
        }
        m_next += m_buffer.size();
        return true;
    }

    ByteSource& m_source;
    std::uint64_t m_next; ///< Behind what the buffer holds.
    std::uint64_t m_end;
    std::string m_buffer;
    std::size_t m_used = 0;
    Failure m_failure;
};

} // namespace kitwright
