// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/reasons.h"
#include "platform/outcome.h"

#include <cstdint>
#include <functional>

namespace kitwright {

/// Bytes of files that are read and written at a time.
inline constexpr std::size_t blockSize = 262'144;

/// Is told of every step: how many bytes are done, and how many there are in all. False stops the work.
using Progress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

/// Counts the bytes of a task.
class ProgressCount {
public:
    /// An empty `progress` is told nothing, and stops nothing.
    ProgressCount(const Progress& progress, std::uint64_t total) : m_progress(progress), m_total(total) {}

    /// Failure when the work is to stop.
    Failure add(std::uint64_t bytes)
    {
        m_done += bytes;
        if (m_progress && !m_progress(m_done, m_total))
            return Failure(why::wasStopped);
        return {};
    }

private:
    const Progress& m_progress;
    std::uint64_t m_total;
    std::uint64_t m_done = 0;
};

} // namespace kitwright
