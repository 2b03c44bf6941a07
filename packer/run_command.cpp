// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "packer/run_command.h"

#include "pack/archive_reader.h"

#include <chrono>
#include <iomanip>
#include <ostream>

namespace kitwright {

namespace {

constexpr int success = 0;
constexpr int fault = 1;
constexpr int misuse = 2;

/// "2001-06-22 12:00:00" in universal time; a dash for a time that is not told.
void writeTime(std::ostream& out, std::uint32_t unixSeconds)
{
    if (unixSeconds == 0) {
        out << std::setw(19) << '-';
        return;
    }
    const std::chrono::sys_seconds time{std::chrono::seconds(unixSeconds)};
    const auto midnight = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day date(midnight);
    const std::chrono::hh_mm_ss clock(time - midnight);
    out << std::setfill('0') << std::setw(4) << static_cast<int>(date.year()) << '-' << std::setw(2)
        << static_cast<unsigned>(date.month()) << '-' << std::setw(2) << static_cast<unsigned>(date.day()) << ' '
        << std::setw(2) << clock.hours().count() << ':' << std::setw(2) << clock.minutes().count() << ':'
        << std::setw(2) << clock.seconds().count() << std::setfill(' ');
}

Failure pack(const PackOrder& order, const PackTools& tools, std::ostream& out, const Progress& progress)
{
    const Outcome<PackResult> result = packFolder(tools, order, progress);
    if (!result)
        return result.reason();
    for (const LeftOut& file : result->leftOut)
        out << "left out: " << printable(file.name) << " (" << textOf(file.why) << ")\n";
    out << order.archive << ": " << result->fileCount << " files, " << result->archiveSize << " bytes\n";
    return {};
}

void list(const ArchiveListing& listing, bool withDetails, std::ostream& out)
{
    if (withDetails) {
        for (const ArchiveProperty& property : listing.properties)
            out << "property " << printable(property.name) << '=' << printable(property.value) << '\n';
        if (listing.hasHash)
            out << "SHA-1 at the end\n";
    }
    for (const ArchiveEntry& entry : listing.entries) {
        if (withDetails) {
            constexpr int width = 10; // As wide as the largest size.
            out << std::setw(width) << entry.dataSize << ' ' << std::setw(width) << entry.unpackedSize << "  ";
            writeTime(out, entry.time);
            out << "  ";
        }
        out << entry.name << '\n';
    }
}

/// The commands that read an archive.
Failure read(const CommandLine& line, const PackTools& tools, std::ostream& out, const Progress& progress)
{
    const Outcome<std::unique_ptr<ByteSource>> archive = tools.streams.open(line.archive);
    if (!archive)
        return archive.reason();
    const Outcome<ArchiveListing> listing = readListing(**archive, tools.codePage);
    if (!listing)
        return line.archive + ": " + listing.reason();
    if (line.command == PackCommand::List) {
        list(*listing, line.withDetails, out);
        return {};
    }
    Failure failure;
    if (line.command == PackCommand::Verify) {
        failure = verifyArchive(**archive, *listing, tools.sha1, progress);
    } else {
        const Outcome<std::unique_ptr<NewFolder>> folder = tools.streams.createFolder(line.folder);
        if (!folder)
            return folder.reason();
        failure = unpackArchive(**archive, *listing, tools.sha1, **folder, progress);
    }
    if (failure)
        return line.archive + ": " + *failure;
    out << line.archive << ": " << listing->entries.size() << " files, " << (*archive)->size() << " bytes\n";
    return {};
}

} // namespace

int runCommand(const std::vector<std::string>& words, const PackTools& tools, std::ostream& out,
               std::ostream& error, const Progress& progress)
{
    const Outcome<CommandLine> line = parseCommandLine(words);
    if (!line) {
        error << "kitwright-pack: " << printable(line.reason()) << "\nTry: kitwright-pack --help\n";
        return misuse;
    }
    Failure failure;
    if (line->command == PackCommand::Help)
        out << commandLineHelp;
    else if (line->command == PackCommand::Version)
        out << "kitwright-pack " << KITWRIGHT_VERSION << '\n';
    else if (line->command == PackCommand::Pack)
        failure = pack(line->order, tools, out, progress);
    else
        failure = read(*line, tools, out, progress);
    out.flush();
    if (!failure && !out)
        failure = "standard output: cannot be written";
    if (failure)
        error << "kitwright-pack: " << printable(*failure) << '\n';
    return failure ? fault : success;
}

} // namespace kitwright
