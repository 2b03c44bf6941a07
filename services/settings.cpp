// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "services/settings.h"

#include <optional>

namespace kitwright {

namespace {

class RecordWriter {
public:
    explicit RecordWriter(const CodePage& codePage) : m_codePage(codePage) {}

    void field(std::uint32_t value) { number(value, 4); }
    void field(bool value) { number(value ? 0xFFFF : 0, 2); }

    void field(const std::string& value)
    {
        const std::string bytes = m_codePage.encode(value).substr(0, 0xFFFF);
        number(static_cast<std::uint32_t>(bytes.size()), 2);
        m_bytes += bytes;
    }

    const std::string& bytes() const { return m_bytes; }

private:
    void number(std::uint32_t value, int width)
    {
        for (int byte = 0; byte < width; ++byte)
            m_bytes += static_cast<char>((value >> (8 * byte)) & 0xFF);
    }

    const CodePage& m_codePage;
    std::string m_bytes;
};

class RecordReader {
public:
    RecordReader(std::string_view bytes, const CodePage& codePage) : m_bytes(bytes), m_codePage(codePage) {}

    void field(std::uint32_t& value)
    {
        if (const auto read = number(4))
            value = *read;
    }

    void field(bool& value)
    {
        if (const auto read = number(2))
            value = *read != 0;
    }

    void field(std::string& value)
    {
        const auto size = number(2);
        if (!size || m_bytes.size() < *size) {
            m_bytes = {};
            return;
        }
        value = m_codePage.decode(m_bytes.substr(0, *size));
        m_bytes.remove_prefix(*size);
    }

private:
    /// The next `width` bytes as a number; once they are not all there, nothing more is read.
    std::optional<std::uint32_t> number(std::size_t width)
    {
        if (m_bytes.size() < width) {
            m_bytes = {};
            return std::nullopt;
        }
        std::uint32_t value = 0;
        for (std::size_t byte = 0; byte < width; ++byte)
            value |= std::uint32_t{static_cast<unsigned char>(m_bytes[byte])} << (8 * byte);
        m_bytes.remove_prefix(width);
        return value;
    }

    std::string_view m_bytes;
    const CodePage& m_codePage;
};

/// The one place that knows the order of the fields on the disk.
template <class Record, class Settings>
void eachField(Record& record, Settings& settings)
{
    record.field(settings.ConfigKeywordColor);
    record.field(settings.ConfigKeywordBold);
    record.field(settings.ConfigKeywordItalic);
    record.field(settings.CKeywordColor);
    record.field(settings.CKeywordBold);
    record.field(settings.CKeywordItalic);
    record.field(settings.ClassNameColor);
    record.field(settings.ClassNameBold);
    record.field(settings.ClassNameItalic);
    record.field(settings.InsertBaseText);
    record.field(settings.DeclareFromRoot);
    record.field(settings.KeywordColouringOff);
    record.field(settings.CommentBold);
    record.field(settings.CommentItalic);
    record.field(settings.CommentColor);
    record.field(settings.PboFolder);
    record.field(settings.LanguageFile);
}

} // namespace

std::string encodeSettings(const EditorSettings& settings, const CodePage& codePage)
{
    RecordWriter record(codePage);
    eachField(record, settings);
    return record.bytes();
}

void decodeSettings(std::string_view bytes, const CodePage& codePage, EditorSettings& settings)
{
    settings.PboFolder.clear();
    settings.LanguageFile.clear();
    RecordReader record(bytes, codePage);
    eachField(record, settings);
}

Failure SaveSettings(FileSystem& files, const CodePage& codePage, const std::string& path,
                     const EditorSettings& settings)
{
    std::string bytes = encodeSettings(settings, codePage);
    if (files.fileExists(path)) {
        const Outcome<std::string> before = files.readBytes(path);
        if (!before)
            return before.reason();
        if (before->size() > bytes.size())
            bytes += before->substr(bytes.size());
    }
    return files.writeBytes(path, bytes);
}

Failure LoadSettings(const FileSystem& files, const CodePage& codePage, const std::string& path,
                     EditorSettings& settings)
{
    const Outcome<std::string> bytes = files.readBytes(path);
    decodeSettings(bytes ? *bytes : std::string(), codePage, settings);
    return bytes ? Failure() : Failure(bytes.reason());
}

} // namespace kitwright
