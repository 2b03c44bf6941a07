// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/file_system.h"
#include "platform/outcome.h"
#include "text/code_page.h"

#include <string>
#include <string_view>
#include <vector>

namespace kitwright {

/// Text files in the 8-bit code page: on the disk one byte a character, inside the program UTF-8.
class TextFiles {
public:
    TextFiles(FileSystem& files, const CodePage& codePage) : m_files(files), m_codePage(codePage) {}

    /// The whole text of a file, line ends as they stand in it.
    Outcome<std::string> read(const std::string& path) const;

    /// As `read`, but a file in UTF-16 is a failure: its bytes would not survive the change of line ends.
    Outcome<std::string> readDocument(const std::string& path) const;

    /// As `read`, but a file that starts with a UTF-8 byte order mark is taken as UTF-8, without the mark.
    Outcome<std::string> readMarked(const std::string& path) const;

    /// Creates or replaces the file with the text as it stands, whole or not at all.
    Failure write(const std::string& path, std::string_view text);

    const CodePage& codePage() const { return m_codePage; }

private:
    FileSystem& m_files;
    const CodePage& m_codePage;
};

/// As many lines of a data file as are taken: many times what an author could look through in a list or a tree.
inline constexpr std::size_t mostDataLines = 100'000;

/// As many bytes of one of them: a click puts a line into the document, where a much longer one could not be edited.
inline constexpr std::size_t longestDataLine = 10'000;

/// The lines of a data file, up to the first `most`: a line ends at CR or at CR LF; a bare LF is part of the line. A
/// last line without an end counts; an empty text has no line. A line is cut to `longestDataLine` bytes. The views
/// point into `text`.
std::vector<std::string_view> dataLines(std::string_view text, std::size_t most = mostDataLines);

/// Says in one line that a data file has more lines than `most`, which are left out; nothing when it has not.
Failure linesLeftOut(const std::string& path, std::string_view text, std::size_t most = mostDataLines);

/// True when a line of the text, whatever it ends with, is longer than `most` bytes.
bool hasLineLongerThan(std::size_t most, std::string_view text);

/// True for the bytes of a UTF-16 file: a byte order mark, or a start in which most characters have one NUL byte, all
/// on the same side.
bool isUtf16(std::string_view bytes);

/// True when every CR is followed by LF and every LF preceded by CR.
bool hasOnlyCrLf(std::string_view text);

/// The text with every line end, bare LF and bare CR included, as CR LF.
std::string withCrLf(std::string text);

} // namespace kitwright
