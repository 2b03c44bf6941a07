// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <thread>

namespace kitwright::walking {

/// What happened in a walk. When something does not hold, when the program crashes, and when an event takes longer
/// than a minute, the seed and the last events are printed and the process ends. One record at a time.
class Record {
public:
    Record(std::uint64_t seed, bool tracing);
    ~Record();
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    /// The next event begins: its kind, which is counted, and what it does to what.
    void begin(const std::string& kind, const std::string& what);

    /// Adds to a count that is not one of events.
    void count(const std::string& what) { ++m_counts[what]; }

    /// Goes into the number that tells two walks apart.
    void mix(std::string_view bytes);

    [[noreturn]] void fail(const std::string& reason);

    std::size_t events() const { return m_number; }
    std::uint64_t fingerprint() const { return m_fingerprint; }
    const std::map<std::string, std::size_t>& kinds() const { return m_kinds; }
    const std::map<std::string, std::size_t>& counts() const { return m_counts; }

    /// The most memory that the process ever held, in megabytes.
    static long peakMegabytes();

    /// Prints seed and last events with the system's own call only, so that a crash may do it, too.
    void printLast() const;

private:
    static constexpr std::size_t kept = 50;
    static constexpr std::size_t lineLength = 200;

    void watch(const std::stop_token& stop);

    const std::uint64_t m_seed;
    const bool m_tracing;
    std::array<std::array<char, lineLength>, kept> m_last{};
    std::atomic<std::size_t> m_number = 0;
    std::uint64_t m_fingerprint = 14695981039346656037ULL;
    std::map<std::string, std::size_t> m_kinds;
    std::map<std::string, std::size_t> m_counts;
    std::jthread m_watchdog;
};

} // namespace kitwright::walking
