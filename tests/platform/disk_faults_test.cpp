// SPDX-FileCopyrightText: The Kitwright developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/qt_file_system.h"
#include "platform/qt_text.h"
#include "platform/write_in_place.h"

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

struct DiskFaults : ::testing::TestWithParam<const char*> {
    std::string at(const std::string& name) const { return fromQt(dir.path()) + '/' + name; }

    std::string content(const std::string& name) const
    {
        std::ifstream file(at(name));
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void prepare() const
    {
        for (const auto& entry : fs::directory_iterator(at("")))
            fs::remove(entry);
        for (const char* name : {"Replace", "CopyOver", "InPlace"})
            std::ofstream(at(name)) << oldBytes;
        std::ofstream(at("source")) << newBytes;
    }

    /// Does what the parameter names, once the call that is told goes wrong; a failure where it says so.
    Failure act(Fault kind, int call)
    {
        callsUntilFault = call;
        fault = kind;
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

    QTemporaryDir dir;
    QtFileSystem files;
};

INSTANTIATE_TEST_SUITE_P(On, DiskFaults,
                         ::testing::Values("Replace", "Create", "CopyOver", "CopyNew", "InPlace", "Read", "List"),
                         [](const auto& operation) { return std::string(operation.param); });

} // namespace

TEST_P(DiskFaults, AreToldOfAndLeaveTheOldOrTheNewFileAndNoOther)
{
    for (const Fault kind : {Fault::Error, Fault::Short}) {
        for (int call = 1;; ++call) {
            prepare();
            const Failure failure = act(kind, call);
            if (std::exchange(fault, Fault::None) != Fault::None) {
                EXPECT_EQ(failure, Failure());
                EXPECT_TRUE(call > 1 || kind == Fault::Short);
                break;
            }
            SCOPED_TRACE("call " + std::to_string(call) + ": " + failure.value_or("no failure"));
            for (const auto& entry : fs::directory_iterator(at(""))) {
                const std::string name = entry.path().filename();
                const bool isNew = name == "source" || (name == GetParam() && !failure);
                EXPECT_EQ(content(name) == newBytes, isNew) << name;
                EXPECT_EQ(content(name) == oldBytes, !isNew) << name << ": " << content(name).size();
            }
        }
    }
}

/// A temporary file may be left behind.
TEST_P(DiskFaults, LeaveOldOrNewFilesWhenTheProgramIsKilled)
{
    int status = 0;
    for (int call = 1; call == 1 || WEXITSTATUS(status) == killed; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        prepare();
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            ::_exit(act(Fault::Kill, call) ? 1 : 0);
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        for (const std::string name : {"Replace", "CopyOver", "InPlace", "Create", "CopyNew", "source"}) {
            const bool mayBeNew = name == "source" || name == GetParam();
            const bool hadNone = name == "Create" || name == "CopyNew";
            EXPECT_TRUE((mayBeNew && content(name) == newBytes)
                        || (hadNone ? !fs::exists(at(name)) : content(name) == oldBytes))
                << name << ": " << content(name).size();
        }
    }
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

} // namespace kitwright
