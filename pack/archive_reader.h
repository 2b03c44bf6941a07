// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "pack/archive_format.h"
#include "pack/decompression.h"
#include "pack/progress.h"
#include "platform/file_streams.h"
#include "platform/sha1.h"
#include "text/code_page.h"

namespace kitwright {

/// What an archive holds. Nothing in it is believed: the listing is one whose names are sound and do not stand in each
/// other's way, and whose sizes add up to those of the archive; anything else is a failure that names the entry.
Outcome<ArchiveListing> readListing(ByteSource& archive, const CodePage& codePage);

/// Hands over the content of a file, a piece at a time. What was taken before a failure is not to be used.
Failure readEntry(ByteSource& archive, const ArchiveEntry& entry, const TakeBytes& take);

/// Reads all of an archive: failure when a compressed file, or the SHA-1 at the end, is not as it should be.
Failure verifyArchive(ByteSource& archive, const ArchiveListing& listing, Sha1& sha1, const Progress& progress);

/// Writes the files of an archive into a folder and puts that in its place. A failure, of the archive as `verifyArchive`
/// finds them or of the disk, leaves nothing.
Failure unpackArchive(ByteSource& archive, const ArchiveListing& listing, Sha1& sha1, NewFolder& folder,
                      const Progress& progress);

} // namespace kitwright
