// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/archive_writer.h"

#include "pack/archive_format.h"
#include "pack/archive_reader.h"
#include "pack/reasons.h"
#include "text/letter_case.h"
#include "text/utf8.h"

#include <algorithm>

namespace kitwright {

namespace {

constexpr const char* prefixProperty = "prefix";

/// The time as an archive holds it: 0 where it cannot.
std::uint32_t archiveTime(const SourceFile& file)
{
    const bool fits = file.state.modified > 0 && file.state.modified <= static_cast<std::int64_t>(largestSize);
    return fits ? static_cast<std::uint32_t>(file.state.modified) : 0;
}

/// A text file of an author: UTF-8, or else text in the code page.
std::string decoded(const CodePage& codePage, const std::string& bytes)
{
    for (std::size_t i = 0; i < bytes.size();) {
        const Utf8Character character = utf8At(bytes, i);
        if (!character.valid)
            return codePage.decode(bytes);
        i += character.length;
    }
    return bytes;
}

/// The patterns of the folder's ignore file and of the order.
Outcome<IgnorePatterns> patternsOf(const PackTools& tools, const PackOrder& order)
{
    using Patterns = Outcome<IgnorePatterns>;
    constexpr std::size_t mostBytes = 100'000;
    IgnorePatterns patterns;
    const std::string path = order.folder + '/' + std::string(ignoreFile);
    if (tools.files.fileExists(path)) {
        const Outcome<std::string> bytes = tools.files.readBytes(path);
        if (!bytes)
            return Patterns::failed(bytes.reason());
        if (bytes->size() > mostBytes)
            return Patterns::failed(because(path, why::hasTooManyPatterns));
        patterns.addLines(decoded(tools.codePage, *bytes));
    }
    for (const std::string& exclusion : order.exclusions)
        patterns.addLine(exclusion);
    return patterns;
}

/// The prefix in the code page; empty when none is asked for.
Outcome<std::string> prefixOf(const PackTools& tools, const PackOrder& order)
{
    using Prefix = Outcome<std::string>;
    if (!order.prefix)
        return std::string();
    std::string prefix = *order.prefix;
    std::string source = prefix;
    if (prefix.empty()) {
        source = order.folder + '/' + std::string(prefixFile);
        if (!tools.files.fileExists(source))
            return Prefix::failed(because(order.folder, why::hasNoPrefix));
        const Outcome<std::string> bytes = tools.files.readBytes(source);
        if (!bytes)
            return Prefix::failed(bytes.reason());
        const std::string text = decoded(tools.codePage, *bytes);
        prefix = trimmedSpaces(std::string_view(text).substr(0, text.find_first_of("\r\n")));
    }
    const bool isSound = !prefix.empty() && tools.codePage.holds(prefix) && prefix.size() <= longestProperty
                      && printable(prefix) == prefix;
    return isSound ? tools.codePage.encode(prefix) : Prefix::failed(because(source, why::isBadPrefix));
}

/// Makes one archive.
class Packing {
public:
    Packing(const PackTools& tools, const PackOrder& order, const FolderContents& contents,
            const Progress& progress)
        : m_tools(tools),
          m_order(order),
          m_files(contents.files),
          m_count(progress, 2 * dataSize())
    {
    }

    /// The size of the archive.
    Outcome<std::uint64_t> make(const std::string& prefix)
    {
        using Size = Outcome<std::uint64_t>;
        const std::string list = listBytes(prefix);
        const std::uint64_t size = list.size() + dataSize() + (m_order.withHash ? trailerSize : 0);
        if (size > largestSize)
            return Size::failed(because(m_order.archive, why::isTooLarge));
        const Outcome<std::unique_ptr<NewFile>> file = m_tools.streams.createFile(m_order.archive);
        if (!file)
            return Size::failed(file.reason());
        m_archive = file->get();
        Failure failure = writeAll(list);
        if (!failure)
            failure = verify(list);
        if (!failure)
            failure = m_archive->commit();
        return failure ? Size::failed(*failure) : size;
    }

private:
    std::uint64_t dataSize() const
    {
        std::uint64_t size = 0;
        for (const SourceFile& file : m_files)
            size += file.state.size;
        return size;
    }

    std::string listBytes(const std::string& prefix) const
    {
        std::string bytes;
        if (!prefix.empty()) {
            bytes = encodedEntry({}, method::properties, 0, 0);
            for (const std::string& text : {std::string(prefixProperty), prefix, std::string()})
                bytes += text + '\0';
        }
        for (const SourceFile& file : m_files) {
            const auto size = static_cast<std::uint32_t>(file.state.size);
            bytes += encodedEntry(file.encoded, method::stored, archiveTime(file), size);
        }
        return bytes + encodedEntry({}, method::stored, 0, 0);
    }

    Failure writeAll(const std::string& list)
    {
        m_tools.sha1.start();
        if (const Failure failure = write(list))
            return failure;
        for (const SourceFile& file : m_files) {
            if (const Failure failure = eachBlock(file, [&](std::string_view bytes) { return write(bytes); }))
                return failure;
        }
        if (m_order.withHash)
            m_trailer = '\0' + m_tools.sha1.result();
        return m_archive->write(m_trailer);
    }

    Failure write(std::string_view bytes)
    {
        if (m_order.withHash)
            m_tools.sha1.add(bytes);
        return m_archive->write(bytes);
    }

    /// Reads a file from its start to its end, which must be as it was when the folder was read.
    Failure eachBlock(const SourceFile& file, const TakeBytes& take)
    {
        const Outcome<std::unique_ptr<ByteSource>> source = m_tools.streams.open(file.path);
        if (!source)
            return source.reason();
        if ((*source)->size() != file.state.size)
            return because(file.path, why::hasChanged);
        for (std::uint64_t done = 0; done < file.state.size; done += m_block.size()) {
            m_block.resize(static_cast<std::size_t>(std::min<std::uint64_t>(blockSize, file.state.size - done)));
            if (const Failure failure = (*source)->read(done, m_block))
                return failure;
            if (const Failure failure = take(m_block))
                return failure;
            if (const Failure failure = m_count.add(m_block.size()))
                return failure;
        }
        const Outcome<FileState> state = m_tools.streams.state(file.path);
        if (!state)
            return state.reason();
        return *state == file.state ? Failure() : because(file.path, why::hasChanged);
    }

    /// Reads the archive as anybody would, and compares it with the files.
    Failure verify(const std::string& list)
    {
        const Outcome<std::unique_ptr<ByteSource>> archive = m_archive->written();
        if (!archive)
            return archive.reason();
        const Outcome<ArchiveListing> listing = readListing(**archive, m_tools.codePage);
        if (!listing)
            return because(m_order.archive, listing.reason().c_str());
        if (listing->entries.size() != m_files.size() || listing->hasHash != m_order.withHash)
            return because(m_order.archive, why::isWrittenWrong);
        if (const Failure failure = expect(list, 0, **archive))
            return failure;
        for (std::size_t i = 0; i < m_files.size(); ++i) {
            if (const Failure failure = compare(m_files[i], listing->entries[i], **archive))
                return failure;
        }
        return expect(m_trailer, listing->dataEnd, **archive);
    }

    /// Failure when the archive has other bytes at `offset`.
    Failure expect(const std::string& bytes, std::uint64_t offset, ByteSource& archive)
    {
        m_written.resize(bytes.size());
        if (const Failure failure = archive.read(offset, m_written))
            return failure;
        return m_written == bytes ? Failure() : because(m_order.archive, why::isWrittenWrong);
    }

    /// Holds a file against what was written of it. A difference is a change of the file: the archive's bytes are those
    /// that were read before.
    Failure compare(const SourceFile& file, const ArchiveEntry& entry, ByteSource& archive)
    {
        std::uint64_t offset = entry.offset;
        return eachBlock(file, [&](std::string_view bytes) -> Failure {
            m_written.resize(bytes.size());
            if (const Failure failure = archive.read(offset, m_written))
                return failure;
            offset += bytes.size();
            return bytes == m_written ? Failure() : because(file.path, why::hasChanged);
        });
    }

    const PackTools& m_tools;
    const PackOrder& m_order;
    const std::vector<SourceFile>& m_files;
    ProgressCount m_count;
    NewFile* m_archive = nullptr; ///< While `make` runs.
    std::string m_trailer;
    std::string m_block;
    std::string m_written;
};

/// Failure when something lies in the archive's place that is none: a slip of the hand must not cost a file.
Failure keepOthers(const PackTools& tools, const std::string& path)
{
    if (upperCased(path).ends_with(".PBO") || !tools.files.fileExists(path))
        return {};
    const Outcome<std::unique_ptr<ByteSource>> file = tools.streams.open(path);
    if (!file)
        return file.reason();
    return readListing(**file, tools.codePage) ? Failure() : because(path, why::isNoArchive);
}

} // namespace

Outcome<PackResult> packFolder(const PackTools& tools, const PackOrder& order, const Progress& progress)
{
    using Result = Outcome<PackResult>;
    const Outcome<IgnorePatterns> patterns = patternsOf(tools, order);
    if (!patterns)
        return Result::failed(patterns.reason());
    const Outcome<std::string> prefix = prefixOf(tools, order);
    if (!prefix)
        return Result::failed(prefix.reason());
    const Outcome<std::string> archive = tools.files.realPath(order.archive);
    if (!archive)
        return Result::failed(archive.reason());
    if (const Failure failure = keepOthers(tools, *archive))
        return Result::failed(*failure);
    Outcome<FolderContents> contents = readFolder(tools.streams, tools.codePage, order.folder, *archive, *patterns);
    if (!contents)
        return Result::failed(contents.reason());
    const Outcome<std::uint64_t> size = Packing(tools, order, *contents, progress).make(*prefix);
    if (!size)
        return Result::failed(size.reason());
    return PackResult{*archive, contents->files.size(), *size, std::move((*contents).leftOut)};
}

} // namespace kitwright
