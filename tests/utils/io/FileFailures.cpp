// What files do when the system refuses; the ways to bring that about are those of Linux.
#include "utils/io/TemporaryFolder.hpp"
#include <corvane/utils/io/FileInputStream.hpp>
#include <corvane/utils/io/FileOutputStream.hpp>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <thread>

namespace {

using corvane::tests::TemporaryFolder;
using corvane::utils::io::FileInputStream;
using corvane::utils::io::FileOutputStream;

/// The library's calls of the functions below, which stand before the system's.
std::string calls;
bool failsToFlush = false;

} // namespace

extern "C" int fsync(int descriptor) {
    struct stat status{};
    fstat(descriptor, &status);
    calls += S_ISDIR(status.st_mode) ? "flush folder, " : "flush file, ";
    if (failsToFlush) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char* from, const char* to) noexcept {
    calls += "rename, ";
    return static_cast<int>(syscall(SYS_rename, from, to));
}

namespace {

/// Lets files grow up to a size, as a full disk would.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t size) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        rlimit limit = previous_;
        limit.rlim_cur = size;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit previous_{};
    void (*handler_)(int);
};

TEST(FileOutputStream, LeavesTheTargetAloneWhenWritingFails) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    FileOutputStream stream(path);
    {
        const FileSizeLimit limit(100000);
        try {
            stream.write(std::string(300000, 'x'));
            stream.close();
            ADD_FAILURE() << "written";
        } catch (const std::system_error& error) {
            EXPECT_EQ(error.code(), std::errc::file_too_large);
            EXPECT_EQ(error.what(), "cannot write " + path.string() + ": File too large");
        }
    }
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, LeavesTheTargetAloneWhenTheLastFlushFails) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    FileOutputStream stream(path);
    stream.write(std::string(1000, 'x'));
    {
        const FileSizeLimit limit(10);
        EXPECT_THROW(stream.close(), std::system_error);
    }
    EXPECT_NO_THROW(stream.close());
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, FollowsASymbolicLink) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "real");
    const auto target = folder.write("real/file.json", "old");
    const auto link = folder.path() / "link.json";
    std::filesystem::create_symlink("real/file.json", link);
    FileOutputStream stream(link);
    stream.write("new");
    stream.close();
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(TemporaryFolder::read(target), "new");
}

TEST(FileOutputStream, FollowsSymbolicLinksThatLeadToNothing) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "real");
    const auto first = folder.path() / "first.json";
    std::filesystem::create_symlink("real/second.json", first);
    std::filesystem::create_symlink(folder.path() / "new.json", folder.path() / "real/second.json");
    FileOutputStream stream(first);
    stream.write("new");
    stream.close();
    EXPECT_TRUE(std::filesystem::is_symlink(first));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() / "real/second.json"));
    EXPECT_TRUE(std::filesystem::is_regular_file(
        std::filesystem::symlink_status(folder.path() / "new.json")));
    EXPECT_EQ(TemporaryFolder::read(first), "new");
}

TEST(FileOutputStream, RefusesSymbolicLinksThatLeadToEachOther) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.path() / "a");
    std::filesystem::create_symlink("a", folder.path() / "b");
    try {
        const FileOutputStream stream(folder.path() / "a");
        ADD_FAILURE() << "opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::too_many_symbolic_link_levels);
    }
    EXPECT_EQ(folder.count(), 2U);
}

TEST(FileOutputStream, WritesIntoANamedPipe) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "pipe";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = TemporaryFolder::read(path); });
    FileOutputStream stream(path);
    stream.write(std::string(200000, 'x'));
    stream.close();
    reader.join();
    EXPECT_EQ(read, std::string(200000, 'x'));
    EXPECT_TRUE(std::filesystem::is_fifo(path));
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, WritesIntoADevice) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(unlockpt(terminal), 0);
    const std::filesystem::path path = ptsname(terminal);
    FileOutputStream stream(path);
    stream.write("text");
    stream.flush();
    std::string read(4, ' ');
    EXPECT_EQ(::read(terminal, read.data(), read.size()), 4);
    EXPECT_EQ(read, "text");
    stream.close();
    EXPECT_TRUE(std::filesystem::is_character_file(path));
    close(terminal);
}

TEST(FileOutputStream, WritesIntoASocket) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "socket";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    const int server = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(server, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(server, 1), 0);
    FileOutputStream stream(path);
    stream.write("text");
    stream.close();
    const int client = accept(server, nullptr, nullptr);
    std::string read(10, ' ');
    EXPECT_EQ(::read(client, read.data(), read.size()), 4);
    EXPECT_EQ(read, "text      ");
    close(client);
    close(server);
    EXPECT_TRUE(std::filesystem::is_socket(path));
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, KeepsTheOwnerOfTheTarget) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root gives files away";
    }
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old");
    ASSERT_EQ(chown(path.c_str(), 12345, 54321), 0);
    ASSERT_EQ(chmod(path.c_str(), 04640), 0);
    FileOutputStream stream(path);
    stream.close();
    struct stat status{};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12345U);
    EXPECT_EQ(status.st_gid, 54321U);
    EXPECT_EQ(status.st_mode & 07777U, 04640U);
}

/// Writes the file as another user; returns what comes of it as a text.
std::string writeAsNobody(const std::filesystem::path& path) {
    if (setuid(65534) != 0) {
        return "cannot become another user";
    }
    try {
        FileOutputStream stream(path);
        stream.close();
        return "written";
    } catch (const std::system_error& error) {
        return error.what();
    }
}

TEST(FileOutputStream, RefusesAFileWhoseOwnerItCannotKeep) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root becomes somebody else";
    }
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old");
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    EXPECT_EXIT(
        {
            std::cerr << writeAsNobody(path) << '\n';
            std::_Exit(0);
        },
        testing::ExitedWithCode(0),
        "cannot write .*file.json, whose owner and mode cannot be kept: Operation not permitted");
    EXPECT_EQ(TemporaryFolder::read(path), "old");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, ReachesTheDiskBeforeItTakesThePlaceOfTheTarget) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old");
    FileOutputStream stream(path);
    stream.write("new");
    calls.clear();
    stream.close();
    EXPECT_EQ(calls, "flush file, rename, flush folder, ");
}

TEST(FileOutputStream, LeavesTheTargetAloneWhenTheDiskFails) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    FileOutputStream stream(path);
    stream.write("new");
    failsToFlush = true;
    try {
        stream.close();
        ADD_FAILURE() << "closed";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.what(), "cannot write " + path.string() + ": Input/output error");
    }
    failsToFlush = false;
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, KeepsThePermissionsOfTheTarget) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old");
    using std::filesystem::perms;
    std::filesystem::permissions(path, perms::owner_read | perms::owner_write | perms::others_read);
    FileOutputStream stream(path);
    stream.close();
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              perms::owner_read | perms::owner_write | perms::others_read);
}

TEST(FileInputStream, ReportsAReadingErrorWithTheFilesName) {
    // Nothing is mapped at the first address of the process.
    FileInputStream stream("/proc/self/mem");
    try {
        (void)stream.get();
        ADD_FAILURE() << "read";
    } catch (const std::system_error& error) {
        EXPECT_STREQ(error.what(), "cannot read /proc/self/mem: Input/output error");
    }
    std::string storage;
    FileInputStream whole("/proc/self/mem");
    EXPECT_THROW((void)whole.readRest(storage), std::system_error);
}

TEST(FileInputStream, ReadsAFileOfUnknownSizeWhole) {
    // The system says that its size is zero.
    FileInputStream stream("/proc/self/status");
    std::string storage;
    const auto text = stream.readRest(storage);
    EXPECT_TRUE(text.starts_with("Name:")) << text;
}

TEST(FileInputStream, ReadsOnWhenItsFileIsRemovedWhileOpen) {
    const TemporaryFolder folder;
    const auto path = folder.write("file", "content");
    FileInputStream stream(path);
    EXPECT_EQ(stream.get(), 'c');
    std::filesystem::remove(path);
    std::string storage;
    EXPECT_EQ(stream.readRest(storage), "ontent");
}

} // namespace
