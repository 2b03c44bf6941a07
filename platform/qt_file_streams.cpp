// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_file_streams.h"

#include "platform/folder_entries.h"
#include "platform/native_path.h"
#include "platform/new_folder.h"
#include "platform/qt_text.h"
#include "platform/replacement_file.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <optional>

namespace kitwright {

namespace {

FileState stateOf(const QFileInfo& file)
{
    return {static_cast<std::uint64_t>(file.size()), file.lastModified().toSecsSinceEpoch()};
}

EntryKind kindOf(const QFileInfo& entry)
{
    if (entry.isFile())
        return EntryKind::File;
    if (entry.isDir())
        return EntryKind::Folder;
    return entry.exists() ? EntryKind::Other : EntryKind::Nothing;
}

class FileSource final : public ByteSource {
public:
    explicit FileSource(const QString& path) : m_path(path), m_file(path) {}

    Failure open() { return opened(m_file.open(mode)); }

    /// Reads what another file object has open.
    Failure open(int handle) { return opened(m_file.open(handle, mode)); }

    std::uint64_t size() const override { return m_size; }

    Failure read(std::uint64_t offset, std::span<char> bytes) override
    {
        // Where it is from the block before, a move would be a call to the system for nothing.
        if (m_next != offset && !m_file.seek(static_cast<qint64>(offset)))
            return failureAt(m_path, m_file.errorString());
        m_next.reset();
        std::size_t filled = 0;
        while (filled < bytes.size()) {
            const qint64 got = m_file.read(bytes.data() + filled, static_cast<qint64>(bytes.size() - filled));
            if (got < 0)
                return failureAt(m_path, m_file.errorString());
            if (got == 0)
                return failureAt(m_path, QStringLiteral("ends before its told size"));
            filled += static_cast<std::size_t>(got);
        }
        m_next = offset + filled;
        return {};
    }

private:
    static constexpr QIODevice::OpenMode mode = QIODevice::ReadOnly | QIODevice::Unbuffered;

    Failure opened(bool isOpen)
    {
        if (!isOpen)
            return failureAt(m_path, m_file.errorString());
        m_size = static_cast<std::uint64_t>(m_file.size());
        return {};
    }

    QString m_path;
    QFile m_file;
    std::uint64_t m_size = 0;
    std::optional<std::uint64_t> m_next; ///< Where the file is known to stand.
};

class FileInWriting final : public NewFile {
public:
    explicit FileInWriting(const QString& path) : m_file(path) {}

    Failure open() { return m_file.open(); }

    Failure write(std::string_view bytes) override
    {
        const QString error = writeAll(m_file.device(), bytes);
        return error.isEmpty() ? Failure() : failureAt(m_file.device().fileName(), error);
    }

    Outcome<std::unique_ptr<ByteSource>> written() override
    {
        using Source = Outcome<std::unique_ptr<ByteSource>>;
        QSaveFile& device = m_file.device();
        if (!device.flush())
            return Source::failed(failureAt(device.fileName(), device.errorString()));
        auto source = std::make_unique<FileSource>(device.fileName());
        if (const Failure failure = source->open(device.handle()))
            return Source::failed(*failure);
        return Source(std::move(source));
    }

    Failure commit() override { return m_file.commit(); }

private:
    ReplacementFile m_file;
};

/// Opens what a path leads to; `Opened` has an `open` that tells of a failure.
template <class Interface, class Opened>
Outcome<std::unique_ptr<Interface>> opened(const QString& path)
{
    auto file = std::make_unique<Opened>(path);
    if (const Failure failure = file->open())
        return Outcome<std::unique_ptr<Interface>>::failed(*failure);
    return Outcome<std::unique_ptr<Interface>>(std::move(file));
}

} // namespace

Outcome<FolderListing> QtFileStreams::list(const std::string& folder) const
{
    const QString path = nativePath(folder);
    FolderListing listing{fromQt(QFileInfo(path).canonicalFilePath()), {}};
    const Failure failure = eachEntry(path, [&](const QFileInfo& found) {
        FolderEntry entry{
            fromQt(found.fileName()), kindOf(found), found.isHidden(), found.isSymbolicLink(), {}, {}};
        if (entry.isLink)
            entry.realPath = fromQt(found.canonicalFilePath());
        if (entry.kind == EntryKind::File)
            entry.state = stateOf(found);
        listing.entries.push_back(std::move(entry));
    });
    return failure ? Outcome<FolderListing>::failed(*failure) : listing;
}

Outcome<FileState> QtFileStreams::state(const std::string& path) const
{
    const QFileInfo info(nativePath(path));
    if (!info.isFile())
        return Outcome<FileState>::failed(failureAt(info.filePath(), QStringLiteral("not a file")));
    return stateOf(info);
}

Outcome<std::unique_ptr<ByteSource>> QtFileStreams::open(const std::string& path) const
{
    const QString name = nativePath(path);
    // Opening a pipe would wait for whoever writes to it.
    if (!QFileInfo(name).isFile())
        return Outcome<std::unique_ptr<ByteSource>>::failed(failureAt(name, QStringLiteral("not a file")));
    return opened<ByteSource, FileSource>(name);
}

Outcome<std::unique_ptr<NewFile>> QtFileStreams::createFile(const std::string& path)
{
    const Outcome<QString> target = fileBehind(nativePath(path));
    if (!target)
        return Outcome<std::unique_ptr<NewFile>>::failed(target.reason());
    return opened<NewFile, FileInWriting>(*target);
}

Outcome<std::unique_ptr<NewFolder>> QtFileStreams::createFolder(const std::string& path)
{
    return newFolderAt(nativePath(path));
}

} // namespace kitwright
