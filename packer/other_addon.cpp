// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/other_addon.h"

#include "pack/archive_reader.h"
#include "services/config_scanner.h"
#include "text/letter_case.h"

#include <algorithm>

namespace kitwright {

namespace {

std::string patchClassIn(const CodePage& codePage, const std::string& bytes)
{
    std::string name;
    ReadPatchClassName(codePage.decode(bytes), name);
    return name;
}

/// The bytes of the `config.cpp` in an archive; empty when there is none that can be read.
std::string configIn(const PackTools& tools, const std::string& archive)
{
    const Outcome<std::unique_ptr<ByteSource>> source = tools.streams.open(archive);
    if (!source)
        return {};
    const Outcome<ArchiveListing> listing = readListing(**source, tools.codePage);
    if (!listing)
        return {};
    const auto entry = std::find_if(listing->entries.begin(), listing->entries.end(), [](const ArchiveEntry& one) {
        return equalIgnoringCase(one.name, "config.cpp");
    });
    if (entry == listing->entries.end() || entry->unpackedSize > largestFile)
        return {};
    std::string bytes;
    const Failure failure = readEntry(**source, *entry, [&](std::string_view more) {
        bytes += more;
        return Failure();
    });
    return failure ? std::string() : bytes;
}

} // namespace

std::optional<OtherAddon> otherAddonIn(const PackTools& tools, const std::string& archive,
                                       const std::string& document)
{
    const Outcome<std::string> config = tools.files.readBytes(document);
    if (!config)
        return std::nullopt;
    OtherAddon found{patchClassIn(tools.codePage, *config), patchClassIn(tools.codePage, configIn(tools, archive))};
    if (found.ownClass.empty() || found.otherClass.empty() || equalIgnoringCase(found.ownClass, found.otherClass))
        return std::nullopt;
    return found;
}

} // namespace kitwright
