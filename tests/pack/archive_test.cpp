// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/archive_reader.h"
#include "pack/archive_writer.h"
#include "pack/reasons.h"
#include "platform/qt_file_streams.h"
#include "platform/qt_file_system.h"
#include "platform/qt_sha1.h"
#include "platform/qt_text.h"
#include "text/windows_1250.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <random>

namespace kitwright {
namespace {

namespace fs = std::filesystem;
using std::string_literals::operator""s;

constexpr std::int64_t someTime = 1'000'000'000;

/// A folder on the disk, with the add-on in "a" and the archive "a.pbo" beside it.
struct Archives : ::testing::Test {
    std::string at(const std::string& name) const { return fromQt(dir.path()) + '/' + name; }

    void put(const std::string& name, const std::string& bytes, std::int64_t time = someTime) const
    {
        fs::create_directories(fs::path(at(name)).parent_path());
        std::ofstream(at(name), std::ios::binary) << bytes;
        setTime(name, time);
    }

    void setTime(const std::string& name, std::int64_t time) const
    {
        const timespec times[] = {{time, 0}, {time, 0}};
        ::utimensat(AT_FDCWD, at(name).c_str(), times, 0);
    }

    std::string content(const std::string& name) const
    {
        std::ifstream file(at(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// All files of a folder with their contents and times.
    std::map<std::string, std::string> tree(const std::string& name) const
    {
        std::map<std::string, std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(at(name))) {
            const std::string path = fs::relative(entry.path(), at(""));
            if (entry.is_regular_file())
                found[path.substr(name.size())] = std::to_string(streams.state(at(path))->modified) + content(path);
        }
        return found;
    }

    auto entries() const { return std::distance(fs::directory_iterator(at("")), {}); }

    /// Why nothing was packed; what was left out when it was.
    std::string pack(const Progress& progress = {})
    {
        order.folder = at("a");
        order.archive = at("a.pbo");
        const auto result = packFolder({files, streams, windows1250(), sha1}, order, progress);
        if (!result)
            return result.reason().substr(result.reason().starts_with(at("")) ? at("").size() : 0);
        std::string leftOut;
        for (const LeftOut& file : result->leftOut)
            leftOut += file.name + ": " + textOf(file.why) + '\n';
        return leftOut;
    }

    Outcome<ArchiveListing> list(const std::string& archive = "a.pbo")
    {
        source = std::move(*streams.open(at(archive)));
        return readListing(*source, windows1250());
    }

    /// Why it was not unpacked into "out".
    std::string unpack()
    {
        const auto listing = list();
        if (!listing)
            return listing.reason();
        auto folder = streams.createFolder(at("out"));
        if (!folder)
            return folder.reason();
        const Failure unsound = verifyArchive(*source, *listing, sha1, {});
        const Failure failure = unpackArchive(*source, *listing, sha1, **folder, {});
        EXPECT_EQ(unsound, failure);
        return failure.value_or("");
    }

    QTemporaryDir dir;
    QtFileSystem files;
    QtFileStreams streams;
    QtSha1 sha1;
    PackOrder order;
    std::unique_ptr<ByteSource> source;
};

TEST_F(Archives, AreWrittenByteForByteAsTheFormatSays)
{
    put("a/config.cpp", "class A {};\n", 0);
    put("a/data/a.txt", "hi", 0);
    const auto hash = [&] {
        sha1.start();
        sha1.add(content("a.pbo"));
        return toQt("").append(QByteArray::fromStdString(sha1.result()).toHex());
    };
    ASSERT_EQ(pack(), "");
    EXPECT_EQ(content("a.pbo").size(), 97U);
    EXPECT_EQ(list()->entries.front().offset, 83U);
    EXPECT_EQ(hash(), "cbd1d91446ceb523e9cb219567ff2f14ef2ba9fe");

    order.prefix = "my\\addon";
    ASSERT_EQ(pack(), "");
    EXPECT_EQ(content("a.pbo").size(), 135U);
    order.withHash = true;
    put("a/$PBOPREFIX$", "my\\addon \r\nmore");
    order.prefix = "";
    ASSERT_EQ(pack(), "$PBOPREFIX$: holds the prefix\n");
    EXPECT_EQ(content("a.pbo").size(), 156U);
    EXPECT_EQ(QByteArray::fromStdString(content("a.pbo").substr(136)).toHex(),
              "5adce20e23538512510b52d96611ac08f0458f71");
    EXPECT_EQ(list()->properties.front().value, "my\\addon");
}

TEST_F(Archives, GiveBackTheTreesThatTheyWereMadeOf)
{
    std::mt19937 random(1);
    const auto below = [&](std::size_t end) { return random() % end; };
    const std::vector<std::string> names = {"config.cpp", "Ä.p3d", "žluť", "b c", "B_",
                                            "$",          "x.y.z", "ß",    "-",   "~a"};
    for (int round = 0; round < 25; ++round) {
        for (const char* old : {"a", "out"})
            fs::remove_all(at(old));
        fs::create_directory(at("a"));
        for (std::size_t count = below(12); count > 0; --count) {
            std::string name = "a";
            for (std::size_t depth = below(4); depth > 0; --depth)
                name += "/folder " + std::to_string(below(3));
            std::string bytes(below(4) == 0 ? below(600'000) : below(50), '\0');
            std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
            put(name + '/' + names[below(names.size())], bytes, static_cast<std::int64_t>(1 + below(0xFFFF'FFFE)));
        }
        order.withHash = below(2) == 0;
        ASSERT_EQ(pack(), "");
        EXPECT_EQ(list()->entries.size(), tree("a").size());
        ASSERT_EQ(unpack(), "");
        EXPECT_EQ(tree("a"), tree("out"));
        const std::string first = content("a.pbo");
        fs::remove_all(at("a"));
        fs::rename(at("out"), at("a"));
        ASSERT_EQ(pack(), "");
        EXPECT_EQ(content("a.pbo"), first);
    }
}

TEST_F(Archives, LeaveOutWhatIsNoPartOfAnAddonAndTellOfIt)
{
    for (const char* name : {".hidden", ".git/config", "CVS/Root", "m.p3d~", "m.BAK", "b.tmp/m", ".#lock",
                             "other.PBO", "$PBOPREFIX$", "psd/m.psd", "psd/keep.psd", "src/deep/m.txt", "src/m.txt",
                             "x/src/m.txt", "config.cpp", "B.txt", "a_b", "ab"})
        put("a/"s + name, "x");
    put("a/.pboignore", "# drafts\n*.PSD\r\n!/psd/keep.psd\n/src/**/m.txt\nnone\n\x9E\n");
    put("a/\u017E", "x");
    put("secret", "x");
    order.exclusions = {"[q-z]/"};
    fs::create_directory(at("a/empty"));
    fs::create_symlink("../secret", at("a/out"));
    fs::create_symlink("..", at("a/src/up"));
    fs::create_symlink("missing", at("a/dead"));
    fs::create_symlink("config.cpp", at("a/inside"));
    fs::create_symlink("../a.pbo", at("a/own"));
    ::mkfifo(at("a/pipe").c_str(), 0600);
    put("a.pbo", "old");
    EXPECT_EQ(pack(),
              "$PBOPREFIX$: holds the prefix\n.#lock: a backup or temporary file\n.git\\: version control\n"
              ".hidden: hidden\n.pboignore: hidden\nCVS\\: version control\n"
              "b.tmp\\: a backup or temporary file\ndead: a link that leads nowhere\n"
              "empty\\: an empty folder\nm.BAK: a backup or temporary file\n"
              "m.p3d~: a backup or temporary file\nother.PBO: another archive\nout: a link out of the folder\n"
              "own: the archive itself\npipe: not a plain file\npsd\\m.psd: matches a pattern\n"
              "src\\deep\\m.txt: matches a pattern\nsrc\\m.txt: matches a pattern\n"
              "src\\up\\: a link to a folder around it\nx\\: matches a pattern\n\u017E: matches a pattern\n");
    std::string names;
    const auto listing = list();
    for (const ArchiveEntry& entry : listing->entries)
        names += entry.name + ' ';
    EXPECT_EQ(names, "a_b ab B.txt config.cpp inside psd\\keep.psd ");
}

TEST_F(Archives, AreNotMadeOfWhatTheyCannotHold)
{
    struct Case {
        const char* name;
        const char* reason;
    };
    for (const Case& unfit : std::vector<Case>{{"a/B", why::isTwin},
                                               {"a/\u65E5", why::lacksCharacters},
                                               {"a/x\\y", why::hasSeparator},
                                               {"a/Aux.txt", why::namesADevice},
                                               {"a/x.", why::endsBadly},
                                               {"a/x\ny", why::hasControl}}) {
        put("a/b", "new");
        put("a.pbo", "old");
        put(unfit.name, "x");
        EXPECT_EQ(pack(), printable(unfit.name) + ": " + unfit.reason);
        EXPECT_EQ(content("a.pbo"), "old");
        fs::remove(at(unfit.name));
    }
    put("a/big", "");
    fs::resize_file(at("a/big"), 0x1'0000'0000);
    EXPECT_EQ(pack(), "a/big: "s + why::isTooLarge);
    fs::remove(at("a/big"));
    order.prefix = "";
    EXPECT_EQ(pack(), "a: "s + why::hasNoPrefix);
    order.prefix.reset();

    put("b", "a text");
    order.folder = at("a");
    order.archive = at("b");
    EXPECT_FALSE(packFolder({files, streams, windows1250(), sha1}, order, {}));
    EXPECT_EQ(content("b"), "a text");
}

TEST_F(Archives, StayAsTheyWereWhenAFileChangesOrTheWorkIsStopped)
{
    put("a.pbo", "old");
    const std::uint64_t size = 1'000'000;
    const auto reset = [&] { put("a/b", std::string(size, 'x')); };
    const std::vector<std::function<bool()>> disturbances = {
        [] { return false; },
        [&] { return fs::resize_file(at("a/b"), size + 1), true; },
        [&] { return fs::resize_file(at("a/b"), 1), true; },
        [&] { return fs::remove(at("a/b")); },
        [&] { return put("a/b", std::string(size, 'y')), true; },
    };
    for (const std::uint64_t moment : {size / 4, size, 2 * size - 1}) {
        for (std::size_t i = 0; i < disturbances.size(); ++i) {
            reset();
            bool isDue = true;
            const std::string reason = pack([&](std::uint64_t done, std::uint64_t total) {
                EXPECT_EQ(total, 2 * size);
                return done < moment || !std::exchange(isDue, false) || disturbances[i]();
            });
            // Changed behind the comparison, but with the time and the size that it had: what was there is packed.
            if (i == 4 && moment > size) {
                EXPECT_EQ(reason, "");
                put("a.pbo", "old");
                continue;
            }
            EXPECT_EQ(reason.starts_with(i == 0 ? why::wasStopped : "a/b: "), true) << i << ' ' << reason;
            EXPECT_EQ(content("a.pbo"), "old");
            EXPECT_EQ(entries(), 2);
        }
    }
}

/// An entry with its five words.
std::string entry(const std::string& name, std::uint32_t method, std::uint32_t original, std::uint32_t size)
{
    std::string bytes = encodedEntry(name, method, 0, size);
    for (std::size_t i = 0; i < 4; ++i)
        bytes[name.size() + 5 + i] = static_cast<char>(original >> 8 * i);
    return bytes;
}

std::string stored(const std::string& name)
{
    return entry(name, method::stored, 0, 0);
}

const std::string listEnd(21, '\0');

/// An archive of one compressed file.
std::string compressed(std::uint32_t size, const std::string& data)
{
    return entry("c", method::compressed, size, static_cast<std::uint32_t>(data.size())) + listEnd + data;
}

TEST_F(Archives, GiveBackCompressedFiles)
{
    struct Case {
        std::string data;
        std::string content;
    };
    for (const Case& sample : std::vector<Case>{
             {"\x00\x00\x00\x00"s, ""},
             {"\x03zz\xF4\x00\x00\x00"s, "zz"},
             {"\x01z\x01\x01\x62\x02\x00\x00"s, "zzzzz"},
             {"\x01z\x04\x00\xDA\x00\x00\x00"s, "z   "},
             {"\x01\xFF\xFF\xFF\xFF\xFF"s, "\xFF"},
             {"\x01\xFF\xFF\x00\x00\x00"s, "\xFF"},
         }) {
        put("a.pbo", compressed(static_cast<std::uint32_t>(sample.content.size()), sample.data));
        fs::remove_all(at("out"));
        EXPECT_EQ(unpack(), "");
        EXPECT_EQ(content("out/c"), sample.content);
    }
}

TEST_F(Archives, OfStrangersAreRefusedWithAReason)
{
    const std::string properties = encodedEntry("", method::properties, 0, 0);
    struct Case {
        std::string archive;
        const char* reason;
    };
    const std::vector<Case> cases = {
        {"", why::hasCutList},
        {stored("a"), why::hasCutList},
        {std::string(1'001, 'n') + stored("") + listEnd, why::isTooLong},
        {stored("..\\evil") + listEnd, why::leadsUp},
        {stored("a\\..\\..\\evil") + listEnd, why::leadsUp},
        {stored("\\evil") + listEnd, why::isAbsolute},
        {stored("/evil") + listEnd, why::isAbsolute},
        {stored("C:\\evil") + listEnd, why::namesADrive},
        {stored("a:stream") + listEnd, why::namesADrive},
        {stored("a/evil") + listEnd, why::hasSeparator},
        {stored("a\x1B[2J") + listEnd, why::hasControl},
        {stored("a\x81") + listEnd, why::hasControl},
        {stored("a\\\\b") + listEnd, why::hasEmptyPart},
        {stored("a\\") + listEnd, why::hasEmptyPart},
        {stored("a. ") + listEnd, why::endsBadly},
        {stored(".") + listEnd, why::endsBadly},
        {stored("b\\nul .txt") + listEnd, why::namesADevice},
        {stored("a?") + listEnd, why::hasForbidden},
        {stored(std::string(256, 'n')) + listEnd, why::isTooLong},
        {stored("a") + stored("A") + listEnd, why::isTwin},
        {stored("\x9E") + stored("\x8E") + listEnd, why::isTwin},
        {stored("STRASSE")
             + stored("stra\xDF\xAD"
                      "e")
             + listEnd,
         why::isTwin},
        {stored("a") + stored("A\\b") + listEnd, why::isFileAndFolder},
        {stored("a\\b\\c") + stored("a\\B") + listEnd, why::isFileAndFolder},
        {entry("a", 1, 0, 0) + listEnd, why::hasUnknownMethod},
        {stored("a") + properties + "\0"s + listEnd, why::hasBadProperties},
        {properties + "prefix\0x"s, why::hasCutList},
        {properties + std::string(5'000, 'p') + '\0' + listEnd, why::hasBadProperties},
        {entry("", method::stored, 0, 1) + "x", why::hasBadEnd},
        {entry("a", method::stored, 0, 2) + listEnd + "x", why::isBeyondEnd},
        {entry("a", method::stored, 0, 0xFFFF'FFFF) + entry("b", method::stored, 0, 0xFFFF'FFFF) + listEnd + "xy",
         why::isBeyondEnd},
        {entry("a", method::stored, 2, 1) + listEnd + "x", why::hasBadSize},
        {stored("a") + listEnd + "x", why::hasRest},
        {stored("a") + listEnd + std::string(21, 'x'), why::hasRest},
        {stored("a") + listEnd + '\0' + std::string(20, 'x'), why::hasWrongHash},
        {compressed(0xFFFF'FFFF, "\x03zz\xF4\0\0\0"s), why::hasBadSize},
        {compressed(2, "\x03z"s), why::hasBadSize},
        {compressed(9, "\x07zzz\x01"s), why::hasCutData},
        {compressed(2, "\x03zz\xF4\0"s), why::hasCutData},
        {compressed(1, "\x03zz\xF4\0\0\0"s), why::hasLongData},
        {compressed(3, "\x01z\x01\0\0\0\0\0"s), why::hasLongData},
        {compressed(4, "\x01z\0\0\0\0\0\0"s), why::copiesNothing},
        {compressed(2, "\x03zz\xF5\0\0\0"s), why::hasWrongSum},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        put("a.pbo", cases[i].archive);
        const std::string reason = unpack();
        EXPECT_TRUE(reason.ends_with(cases[i].reason)) << i << ": " << reason << ", not " << cases[i].reason;
        EXPECT_EQ(entries(), 1);
    }
}

TEST_F(Archives, AreUnpackedOnlyWhereNothingIsInTheWay)
{
    put("a.pbo", stored("b\\c") + listEnd);
    put("out/mine", "x");
    EXPECT_NE(unpack(), "");
    fs::remove(at("out/mine"));
    EXPECT_EQ(unpack(), "");
    EXPECT_TRUE(fs::exists(at("out/b/c")));
    fs::remove_all(at("out"));
    put("out", "x");
    EXPECT_NE(unpack(), "");
    fs::remove(at("out"));
    fs::create_symlink("nowhere", at("out"));
    EXPECT_NE(unpack(), "");
    EXPECT_EQ(entries(), 2);
}

} // namespace
} // namespace kitwright
