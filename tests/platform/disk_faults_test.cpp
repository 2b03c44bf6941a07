// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pack/archive_reader.h"
#include "pack/archive_writer.h"
#include "platform/qt_file_streams.h"
#include "platform/qt_file_system.h"
#include "platform/qt_sha1.h"
#include "platform/qt_text.h"
#include "platform/write_in_place.h"
#include "text/windows_1250.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstdarg>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <unistd.h>

namespace {

/// What happens at the one call that goes wrong: `Kill` ends the program in front of it.
enum class Fault { None, Error, Short, Kill };

Fault fault = Fault::None;
int callsUntilFault = 0;

constexpr int killed = 42; ///< How a program ends that is killed.

bool strikes(Fault kind)
{
    if (fault == Fault::Kill && kind == Fault::Error && --callsUntilFault == 0)
        ::_exit(killed);
    if (fault != kind || --callsUntilFault != 0)
        return false;
    fault = Fault::None;
    errno = EIO;
    return true;
}

} // namespace

/// Stands in front of a call to the system, and goes wrong when its turn comes.
#define FAULTY(Result, name, parameters, arguments, failure)                                                       \
    extern "C" Result name parameters                                                                              \
    {                                                                                                              \
        static const auto real = reinterpret_cast<decltype(&name)>(::dlsym(RTLD_NEXT, #name));                     \
        return strikes(Fault::Error) ? failure : real arguments;                                                   \
    }

/// The mode is there for the flags that create a file only; the system looks at it then only.
extern "C" int open64(const char* path, int flags, ...)
{
    static const auto real = reinterpret_cast<decltype(&open64)>(::dlsym(RTLD_NEXT, "open64"));
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    return strikes(Fault::Error) ? -1 : real(path, flags, mode);
}

FAULTY(int, linkat, (int at, const char* from, int in, const char* to, int flags), (at, from, in, to, flags), -1)
FAULTY(int, mkdir, (const char* path, mode_t mode), (path, mode), -1)
FAULTY(int, futimens, (int file, const timespec times[2]), (file, times), -1)
FAULTY(int, unlink, (const char* path), (path), -1)
FAULTY(int, fchown, (int file, uid_t owner, gid_t group), (file, owner, group), -1)
FAULTY(int, fchmod, (int file, mode_t mode), (file, mode), -1)
FAULTY(int, fallocate, (int file, int mode, off_t start, off_t size), (file, mode, start, size), -1)
FAULTY(int, rename, (const char* from, const char* to), (from, to), -1)
FAULTY(int, fsync, (int file), (file), -1)
FAULTY(int, fdatasync, (int file), (file), -1)
FAULTY(int, ftruncate64, (int file, off64_t size), (file, size), -1)
FAULTY(dirent*, readdir, (DIR * folder), (folder), nullptr)

/// A short read finds the end of the file too early, a short write takes one byte.
#define FAULTY_TRANSFER(name, Bytes, shortSize)                                                                    \
    extern "C" ssize_t name(int file, Bytes bytes, size_t size)                                                    \
    {                                                                                                              \
        static const auto real = reinterpret_cast<decltype(&name)>(::dlsym(RTLD_NEXT, #name));                     \
        if (strikes(Fault::Error))                                                                                 \
            return -1;                                                                                             \
        return real(file, bytes, strikes(Fault::Short) ? shortSize : size);                                        \
    }

FAULTY_TRANSFER(read, void*, 0)
FAULTY_TRANSFER(write, const void*, 1)

namespace kitwright {
namespace {

namespace fs = std::filesystem;

const std::string oldBytes(20'000, 'o');
const std::string newBytes(50'000, 'n');

/// How something ended in which a call to the system went wrong.
enum class Ending { Done, Failed, Killed };

struct DiskFaults : ::testing::Test {
    std::string at(const std::string& name) const { return fromQt(dir.path()) + '/' + name; }

    std::string content(const std::string& name) const
    {
        std::ifstream file(at(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    auto entries() const { return std::distance(fs::directory_iterator(at("")), {}); }

    using Act = std::function<Failure()>;

    /// Does something again and again, each time with another call to the system going wrong, until none is left.
    static void underFaults(const std::function<void()>& prepare, const Act& act,
                            const std::function<void(Ending)>& judge)
    {
        for (const Fault kind : {Fault::Error, Fault::Short, Fault::Kill}) {
            for (int call = 1;; ++call) {
                prepare();
                callsUntilFault = call;
                fault = kind;
                Failure failure;
                const Ending ending = kind == Fault::Kill ? endOfProcess(act) : endOf(act, failure);
                const bool struck = std::exchange(fault, Fault::None) == Fault::None || ending == Ending::Killed;
                SCOPED_TRACE("call " + std::to_string(call) + ": " + failure.value_or("no failure"));
                judge(ending);
                if (!struck) {
                    EXPECT_EQ(ending, Ending::Done);
                    EXPECT_TRUE(call > 1 || kind == Fault::Short);
                    break;
                }
            }
        }
    }

    static Ending endOf(const Act& act, Failure& failure)
    {
        failure = act();
        return failure ? Ending::Failed : Ending::Done;
    }

    static Ending endOfProcess(const Act& act)
    {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(act() ? 1 : 0);
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) == killed ? Ending::Killed
             : WEXITSTATUS(status) == 0      ? Ending::Done
                                             : Ending::Failed;
    }

    QTemporaryDir dir;
    QtFileSystem files;
};

struct FileFaults : DiskFaults, ::testing::WithParamInterface<const char*> {
    /// Does what the parameter names; a failure where it says so.
    Failure act()
    {
        const std::string what = GetParam();
        if (what == "Replace" || what == "Create")
            return files.writeBytes(at(what), newBytes);
        if (what == "CopyOver" || what == "CopyNew")
            return files.copyFile(at("source"), at(what));
        if (what == "InPlace") {
            const QString error = writeInPlace(toQt(at(what)), newBytes);
            return error.isEmpty() ? Failure() : fromQt(error);
        }
        if (what == "Read") {
            const auto bytes = files.readBytes(at("source"));
            EXPECT_TRUE(!bytes || *bytes == newBytes);
            return bytes ? Failure() : bytes.reason();
        }
        const auto names = files.listFiles(at(""));
        EXPECT_TRUE(!names || names->size() == 4);
        return names ? Failure() : names.reason();
    }
};

INSTANTIATE_TEST_SUITE_P(On, FileFaults,
                         ::testing::Values("Replace", "Create", "CopyOver", "CopyNew", "InPlace", "Read", "List"),
                         [](const auto& operation) { return std::string(operation.param); });

} // namespace

/// A program that is killed may leave a temporary file, and the old or the new one.
TEST_P(FileFaults, AreToldOfAndLeaveTheOldOrTheNewFileAndNoOther)
{
    const auto prepare = [&] {
        for (const auto& entry : fs::directory_iterator(at("")))
            fs::remove(entry);
        for (const char* name : {"Replace", "CopyOver", "InPlace"})
            std::ofstream(at(name)) << oldBytes;
        std::ofstream(at("source")) << newBytes;
    };
    underFaults(
        prepare, [&] { return act(); },
        [&](Ending ending) {
            int found = 0;
            for (const std::string name : {"Replace", "CopyOver", "InPlace", "Create", "CopyNew", "source"}) {
                const bool isActedOn = name == GetParam();
                const bool hadNone = name == "Create" || name == "CopyNew";
                const bool isNew = fs::exists(at(name)) && content(name) == newBytes;
                const bool isOld = hadNone ? !fs::exists(at(name)) : content(name) == oldBytes;
                found += fs::exists(at(name)) ? 1 : 0;
                if (isActedOn && ending == Ending::Killed)
                    EXPECT_TRUE(isNew || isOld) << name << ": " << content(name).size();
                else
                    EXPECT_TRUE(name == "source" || (isActedOn && ending == Ending::Done) ? isNew : isOld) << name;
            }
            EXPECT_TRUE(ending == Ending::Killed || entries() == found);
        });
}

TEST_F(DiskFaults, LeaveTheOldOrTheNewArchiveAndAllOrNothingUnpacked)
{
    QtFileStreams streams;
    QtSha1 sha1;
    fs::create_directories(at("a/data"));
    std::ofstream(at("a/config.cpp")) << newBytes;
    std::ofstream(at("a/data/old.txt")) << oldBytes;
    const auto pack = [&] {
        const PackOrder order{at("a"), at("a.pbo"), "p", true, {}};
        const auto packed = packFolder({files, streams, windows1250(), sha1}, order, {});
        return packed ? Failure() : packed.reason();
    };
    ASSERT_EQ(pack(), Failure());
    const std::string sound = content("a.pbo");
    const auto prepare = [&](const std::string& archive) {
        for (const auto& entry : fs::directory_iterator(at(""))) {
            if (entry.path().filename() != "a")
                fs::remove_all(entry);
        }
        std::ofstream(at("a.pbo")) << archive;
    };
    underFaults([&] { prepare(oldBytes); }, pack,
                [&](Ending ending) {
                    EXPECT_TRUE((ending != Ending::Failed && content("a.pbo") == sound)
                                || (ending != Ending::Done && content("a.pbo") == oldBytes));
                    EXPECT_TRUE(ending == Ending::Killed || entries() == 2);
                });

    const auto unpack = [&]() -> Failure {
        const auto archive = streams.open(at("a.pbo"));
        if (!archive)
            return archive.reason();
        const auto listing = readListing(**archive, windows1250());
        if (!listing)
            return listing.reason();
        const auto folder = streams.createFolder(at("out"));
        return folder ? unpackArchive(**archive, *listing, sha1, **folder, {}) : folder.reason();
    };
    underFaults([&] { prepare(sound); }, unpack,
                [&](Ending ending) {
                    const bool isThere = fs::exists(at("out"));
                    const std::string unpacked = content("out/config.cpp") + content("out/data/old.txt");
                    EXPECT_TRUE(ending == Ending::Killed || isThere == (ending == Ending::Done));
                    EXPECT_TRUE(unpacked == (isThere ? newBytes + oldBytes : ""));
                    EXPECT_TRUE(ending == Ending::Killed || entries() == (isThere ? 3 : 2));
                });
}

} // namespace kitwright
