// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <utility>

namespace kitwright {

/// Why a step failed, in one line without a line end; empty optional: it succeeded.
using Failure = std::optional<std::string>;

/// What a step gave: its value, or one line that says why there is none.
template <class Value>
class Outcome {
public:
    /// A value is an outcome.
    Outcome(Value value) : m_value(std::move(value)) {} // NOLINT(google-explicit-constructor)

    static Outcome failed(const std::string& reason)
    {
        Outcome outcome;
        outcome.m_reason = reason;
        return outcome;
    }

    explicit operator bool() const { return m_value.has_value(); }
    const Value& operator*() const { return *m_value; }
    Value& operator*() { return *m_value; }
    const Value* operator->() const { return &*m_value; }

    /// Empty when there is a value.
    const std::string& reason() const { return m_reason; }

private:
    Outcome() = default;

    std::optional<Value> m_value;
    std::string m_reason;
};

} // namespace kitwright
