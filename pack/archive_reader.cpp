// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/archive_reader.h"

#include "pack/archive_names.h"
#include "pack/reasons.h"

#include <algorithm>

namespace kitwright {

namespace {

/// Reads the list at the start of an archive.
class ListReader {
public:
    ListReader(ByteSource& archive, const CodePage& codePage)
        : m_size(archive.size()),
          m_bytes(archive, 0, archive.size()),
          m_codePage(codePage)
    {
    }

    Failure read(ArchiveListing& listing)
    {
        for (bool isFirst = true;; isFirst = false) {
            const auto name = text(longestName, why::isTooLong);
            Fields fields{};
            for (std::uint32_t& field : fields) {
                const auto word = m_bytes.word();
                field = word.value_or(0);
                m_isCut = m_isCut || !word;
            }
            if (const Failure failure = lastFailure())
                return failure;
            if (name->empty() && fields == Fields{})
                return placeData(listing);
            if (const Failure failure =
                    name->empty() ? addProperties(fields, isFirst, listing) : addEntry(*name, fields, listing))
                return failure;
        }
    }

private:
    /// Method, original size, 0, time, data size.
    using Fields = std::array<std::uint32_t, 5>;

    Failure lastFailure() const
    {
        if (m_bytes.failure())
            return m_bytes.failure();
        if (m_tooLong)
            return Failure(m_tooLong);
        return m_isCut ? Failure(why::hasCutList) : Failure();
    }

    /// The next text up to its NUL; nothing when it is cut or longer than `most`.
    std::optional<std::string> text(std::size_t most, const char* tooLong)
    {
        std::string bytes;
        while (const auto byte = m_bytes.next()) {
            if (*byte == 0)
                return m_codePage.decode(bytes);
            if (bytes.size() == most) {
                m_tooLong = tooLong;
                return std::nullopt;
            }
            bytes += static_cast<char>(*byte);
        }
        m_isCut = true;
        return std::nullopt;
    }

    Failure addProperties(const Fields& fields, bool isFirst, ArchiveListing& listing)
    {
        if (fields[0] != method::properties)
            return Failure(why::hasBadEnd);
        if (!isFirst || fields[4] != 0)
            return Failure(why::hasBadProperties);
        while (true) {
            const auto name = text(longestProperty, why::hasBadProperties);
            if (name && name->empty())
                return {};
            const auto value = name ? text(longestProperty, why::hasBadProperties) : std::nullopt;
            if (!value)
                return lastFailure();
            if (listing.properties.size() == mostProperties)
                return Failure(why::hasBadProperties);
            listing.properties.push_back({*name, *value});
        }
    }

    Failure addEntry(const std::string& name, const Fields& fields, ArchiveListing& listing)
    {
        if (const char* fault = nameFault(name))
            return because(name, fault);
        if (const char* fault = m_names.add(name))
            return because(name, fault);
        if (listing.entries.size() == mostEntries)
            return Failure(why::hasTooMany);
        const auto [how, originalSize, reserved, time, dataSize] = fields;
        if (how != method::stored && how != method::compressed)
            return because(name, why::hasUnknownMethod);
        const bool isCompressed = how == method::compressed;
        if (isCompressed ? !couldHold(dataSize, originalSize) : originalSize != 0 && originalSize != dataSize)
            return because(name, why::hasBadSize);
        listing.entries.push_back({name, isCompressed, time, dataSize, isCompressed ? originalSize : dataSize, 0});
        return {};
    }

    /// True when compressed data of that size can give `size` bytes: 17 bytes give 8 times 18 at most, and 4 are a sum.
    static bool couldHold(std::uint64_t dataSize, std::uint64_t size)
    {
        constexpr std::uint64_t groupSize = 17;
        constexpr std::uint64_t mostOfGroup = 144;
        return dataSize >= 4 && size <= (dataSize - 4 + groupSize - 1) / groupSize * mostOfGroup;
    }

    /// Says where the data of each entry lie, and looks at what follows them.
    Failure placeData(ArchiveListing& listing)
    {
        std::uint64_t offset = m_bytes.position();
        for (ArchiveEntry& entry : listing.entries) {
            if (entry.dataSize > m_size - offset)
                return because(entry.name, why::isBeyondEnd);
            entry.offset = offset;
            offset += entry.dataSize;
        }
        listing.dataEnd = offset;
        listing.hasHash = m_size - offset == trailerSize;
        return m_size == offset || listing.hasHash ? Failure() : Failure(why::hasRest);
    }

    std::uint64_t m_size;
    SequentialBytes m_bytes;
    const CodePage& m_codePage;
    NameSet m_names;
    bool m_isCut = false;
    const char* m_tooLong = nullptr;
};

/// Hands over the bytes of an archive from `offset` to `end`.
Failure readPart(ByteSource& archive, std::uint64_t offset, std::uint64_t end, const TakeBytes& take)
{
    std::string block;
    while (offset < end) {
        block.resize(static_cast<std::size_t>(std::min<std::uint64_t>(blockSize, end - offset)));
        if (const Failure failure = archive.read(offset, block))
            return failure;
        if (const Failure failure = take(block))
            return failure;
        offset += block.size();
    }
    return {};
}

std::uint64_t unpackedSize(const ArchiveListing& listing)
{
    std::uint64_t size = 0;
    for (const ArchiveEntry& entry : listing.entries)
        size += entry.unpackedSize;
    return size;
}

/// How much `verifyHash` reads.
std::uint64_t hashedSize(const ArchiveListing& listing)
{
    return listing.hasHash ? listing.dataEnd : 0;
}

/// Failure when there is a SHA-1 at the end, and it is wrong.
Failure verifyHash(ByteSource& archive, const ArchiveListing& listing, Sha1& sha1, ProgressCount& count)
{
    if (!listing.hasHash)
        return {};
    sha1.start();
    const Failure failure = readPart(archive, 0, listing.dataEnd, [&](std::string_view bytes) {
        sha1.add(bytes);
        return count.add(bytes.size());
    });
    if (failure)
        return failure;
    std::string told(sha1Size, '\0');
    if (const Failure unread = archive.read(listing.dataEnd + 1, told))
        return unread;
    return told == sha1.result() ? Failure() : Failure(why::hasWrongHash);
}

} // namespace

Outcome<ArchiveListing> readListing(ByteSource& archive, const CodePage& codePage)
{
    ArchiveListing listing;
    Failure failure = ListReader(archive, codePage).read(listing);
    if (!failure && listing.hasHash) {
        char mark = 0;
        failure = archive.read(listing.dataEnd, {&mark, 1});
        if (!failure && mark != 0)
            failure = why::hasRest;
    }
    return failure ? Outcome<ArchiveListing>::failed(*failure) : listing;
}

Failure readEntry(ByteSource& archive, const ArchiveEntry& entry, const TakeBytes& take)
{
    const std::uint64_t end = entry.offset + entry.dataSize;
    if (!entry.isCompressed)
        return readPart(archive, entry.offset, end, take);
    SequentialBytes data(archive, entry.offset, end);
    Failure taking;
    const Failure failure = decompress(data, entry.unpackedSize, [&](std::string_view bytes) {
        taking = take(bytes);
        return taking;
    });
    if (data.failure())
        return data.failure();
    return failure && !taking ? because(entry.name, failure->c_str()) : failure;
}

Failure verifyArchive(ByteSource& archive, const ArchiveListing& listing, Sha1& sha1, const Progress& progress)
{
    ProgressCount count(progress, unpackedSize(listing) + hashedSize(listing));
    for (const ArchiveEntry& entry : listing.entries) {
        const TakeBytes take = [&](std::string_view bytes) { return count.add(bytes.size()); };
        if (const Failure failure = readEntry(archive, entry, take))
            return failure;
    }
    return verifyHash(archive, listing, sha1, count);
}

Failure unpackArchive(ByteSource& archive, const ArchiveListing& listing, Sha1& sha1, NewFolder& folder,
                      const Progress& progress)
{
    ProgressCount count(progress, unpackedSize(listing) + hashedSize(listing));
    if (const Failure failure = verifyHash(archive, listing, sha1, count))
        return failure;
    for (const ArchiveEntry& entry : listing.entries) {
        std::string name = entry.name;
        std::replace(name.begin(), name.end(), '\\', '/');
        const Failure failure = folder.addFile(name, entry.time, [&](ByteSink& file) {
            return readEntry(archive, entry, [&](std::string_view bytes) {
                const Failure unwritten = file.write(bytes);
                return unwritten ? unwritten : count.add(bytes.size());
            });
        });
        if (failure)
            return failure;
    }
    return folder.commit();
}

} // namespace kitwright
