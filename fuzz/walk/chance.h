// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <random>

namespace kitwright::walking {

/// The walk's only source of choices: the same seed gives the same choices on every platform.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : m_numbers(seed) {}

    /// From 0 to `count` - 1; 0 for a count of 0.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : static_cast<std::size_t>(m_numbers() % count); }

    int between(int first, int last)
    {
        return first + static_cast<int>(below(static_cast<std::size_t>(last - first) + 1));
    }

    bool percent(std::size_t share) { return below(100) < share; }

    /// An element; the container must not be empty.
    template <class Container>
    const auto& of(const Container& container)
    {
        const auto size = static_cast<std::size_t>(std::size(container));
        return *std::next(std::begin(container), static_cast<std::ptrdiff_t>(below(size)));
    }

private:
    std::mt19937_64 m_numbers;
};

} // namespace kitwright::walking
