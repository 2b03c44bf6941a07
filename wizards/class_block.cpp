// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "wizards/class_block.h"

#include "services/paths.h"
#include "wizards/catalogue.h"

#include <algorithm>
#include <unordered_map>

namespace kitwright {

namespace {

class BlockWriter {
public:
    explicit BlockWriter(const ClassBlockInput& input) : m_input(input) {}

    ClassBlock write()
    {
        text().append("\r\nclass ").append(m_input.blockName).append("\r\n{\r\n");
        for (const ClassRecord& record : m_input.classes) {
            if (record.ticked)
                writeClass(record);
        }
        text() += "};\r\n";
        m_block.copies = m_copies.copies();
        return std::move(m_block);
    }

private:
    std::string& text() { return m_block.text; }

    void writeClass(const ClassRecord& record)
    {
        if (m_input.declarations)
            text() += m_input.declarations(record.BaseClass);
        text().append("   class ").append(record.Name).append(": ").append(record.BaseClass);
        text() += "\r\n   {\r\n";
        const std::size_t count = std::min(record.Properties.size(), m_input.catalogue.size());
        for (std::size_t p = 0; p < count; ++p) {
            if (record.Properties[p].Used)
                writeProperty(m_input.catalogue[p], record.Properties[p].Value);
        }
        text() += "   };\r\n";
    }

    void writeProperty(const ListEntry& property, const std::string& value)
    {
        text().append("      ").append(property.text).append(" = ");
        if (property.kind != fileKind)
            text() += value;
        else if (exists(value))
            text().append("\"\\").append(m_input.PatchClassName).append("\\").append(FileNameOf(value)) += '"';
        else
            text().append("\"").append(value) += '"';
        text() += ";\r\n";
    }

    /// Whether there is a file at the path; one that there is will be copied.
    bool exists(const std::string& path)
    {
        const auto [known, isNew] = m_exists.try_emplace(path, false);
        if (isNew)
            known->second = !path.empty() && m_input.fileExists && m_input.fileExists(path);
        if (known->second)
            m_copies.add(path);
        return known->second;
    }

    const ClassBlockInput& m_input;
    ClassBlock m_block;
    CopyPlan m_copies;
    std::unordered_map<std::string, bool> m_exists;
};

} // namespace

ClassBlock classBlock(const ClassBlockInput& input)
{
    return BlockWriter(input).write();
}

std::vector<std::string> tickedNames(std::span<const ClassRecord> classes)
{
    std::vector<std::string> names;
    for (const ClassRecord& record : classes) {
        if (record.ticked)
            names.push_back(record.Name);
    }
    return names;
}

} // namespace kitwright
