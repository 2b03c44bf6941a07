// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "config/sources.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace kitwright {

/// A node of a source.
struct SourceNode {
    std::uint32_t source = 0; ///< 0 is the config itself.
    NodeIndex node = 0;
};

/// The index of a scope: what stands in a class. 0 is that of the whole config.
using ScopeIndex = std::uint32_t;

/// The index of a class among those of a config and of what it includes.
using ClassIndex = std::uint32_t;
inline constexpr ClassIndex noClass = 0xFFFFFFFF;

struct ScopeClass {
    SourceNode place;
    std::string_view name;          ///< As it is written.
    std::string_view base;          ///< The same; empty when it has none.
    ScopeIndex scope = 0;           ///< That it stands in.
    ScopeIndex body = 0;            ///< Of what stands in it.
    ClassIndex baseClass = noClass; ///< That it derives from, when it is found.
    bool isEmpty = false;           ///< It only declares that there is such a class.
    bool isUsed = false;            ///< Another one derives from it.
    bool isBaseMissing = false;     ///< Nothing in front of it has the name of its base.
};

struct Scope {
    ScopeIndex parent = 0;
    ClassIndex ownClass = noClass;
    bool isOpaque = false; ///< A macro stands in it: there may be more names.
};

/// The classes of a config, scope by scope. Their names point into its texts.
class Scopes {
public:
    Scopes();

    /// The class that a scope has of a name, in any letter case, or `noClass`.
    ClassIndex find(ScopeIndex scope, std::string_view name) const;

    /// Adds a class, found by its name from now on even if its scope has one of that name already.
    ClassIndex add(const ScopeClass& added);

    ScopeIndex addScope(ScopeIndex parent, ClassIndex ownClass);

    Scope& operator[](ScopeIndex index) { return m_scopes[index]; }
    const Scope& operator[](ScopeIndex index) const { return m_scopes[index]; }

    std::vector<ScopeClass>& classes() { return m_classes; }
    const std::vector<ScopeClass>& classes() const { return m_classes; }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t place = 0; ///< The class's index from 1; 0: the slot is free.
    };

    std::size_t slotOf(std::uint32_t hash, ScopeIndex scope, std::string_view name) const;
    void grow();

    std::vector<Scope> m_scopes;
    std::vector<ScopeClass> m_classes;
    std::vector<Slot> m_slots; ///< A power of two, at most half of them taken.
};

/// The names of the scopes that are open while a config is read from its start to its end.
class OpenNames {
public:
    struct Name {
        ScopeIndex scope = 0;
        std::string_view name;
        SourceNode place;
        ClassIndex ownClass = noClass; ///< `noClass`: it is a property.
    };

    OpenNames() : m_chains(chainCount, 0) {}

    /// Adds a name, or gives the one that its scope has already.
    const Name* addOrFind(const Name& name);

    std::size_t count() const { return m_names.size(); }

    /// Drops the names added last, up to a former count.
    void dropTo(std::size_t count);

private:
    static constexpr std::size_t chainCount = 4096;

    struct Entry {
        Name name;
        std::uint32_t chain = 0;
        std::uint32_t former = 0; ///< In the same chain, from 1; 0: none.
    };

    std::vector<Entry> m_names;
    std::vector<std::uint32_t> m_chains; ///< The last name of each chain, from 1.
};

} // namespace kitwright
