// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "config/scopes.h"

#include <utility>

namespace kitwright {

namespace {

std::uint32_t hashOf(ScopeIndex scope, std::string_view name)
{
    std::uint32_t hash = (nameHash(name) ^ scope * 0x9E3779B9U) * 0x85EBCA6BU;
    hash = (hash ^ hash >> 13) * 0xC2B2AE35U;
    return hash ^ hash >> 16;
}

} // namespace

Scopes::Scopes() : m_scopes(1), m_slots(1024) {}

std::size_t Scopes::slotOf(std::uint32_t hash, ScopeIndex scope, std::string_view name) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    for (; m_slots[slot].place != 0; slot = (slot + 1) & mask) {
        const ScopeClass& known = m_classes[m_slots[slot].place - 1];
        if (m_slots[slot].hash == hash && known.scope == scope && sameName(known.name, name))
            break;
    }
    return slot;
}

ClassIndex Scopes::find(ScopeIndex scope, std::string_view name) const
{
    const std::uint32_t place = m_slots[slotOf(hashOf(scope, name), scope, name)].place;
    return place == 0 ? noClass : place - 1;
}

ClassIndex Scopes::add(const ScopeClass& added)
{
    const std::uint32_t hash = hashOf(added.scope, added.name);
    if ((m_classes.size() + 1) * 2 > m_slots.size())
        grow();
    const std::size_t slot = slotOf(hash, added.scope, added.name);
    m_classes.push_back(added);
    m_slots[slot] = {hash, static_cast<std::uint32_t>(m_classes.size())};
    return static_cast<ClassIndex>(m_classes.size() - 1);
}

void Scopes::grow()
{
    const std::vector<Slot> former = std::exchange(m_slots, std::vector<Slot>(m_slots.size() * 4));
    const std::size_t mask = m_slots.size() - 1;
    for (const Slot& taken : former) {
        std::size_t slot = taken.hash & mask;
        while (taken.place != 0 && m_slots[slot].place != 0)
            slot = (slot + 1) & mask;
        if (taken.place != 0)
            m_slots[slot] = taken;
    }
}

ScopeIndex Scopes::addScope(ScopeIndex parent, ClassIndex ownClass)
{
    m_scopes.push_back({parent, ownClass, false});
    return static_cast<ScopeIndex>(m_scopes.size() - 1);
}

const OpenNames::Name* OpenNames::addOrFind(const Name& name)
{
    const auto chain = static_cast<std::uint32_t>(hashOf(name.scope, name.name) % chainCount);
    for (std::uint32_t i = m_chains[chain]; i != 0; i = m_names[i - 1].former) {
        const Name& known = m_names[i - 1].name;
        if (known.scope == name.scope && sameName(known.name, name.name))
            return &known;
    }
    m_names.push_back({name, chain, m_chains[chain]});
    m_chains[chain] = static_cast<std::uint32_t>(m_names.size());
    return nullptr;
}

void OpenNames::dropTo(std::size_t count)
{
    for (; m_names.size() > count; m_names.pop_back())
        m_chains[m_names.back().chain] = m_names.back().former;
}

} // namespace kitwright
