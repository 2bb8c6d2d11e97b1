// What files do when the system refuses; the ways to bring that about are those of Linux.
#include "utils/io/TemporaryFolder.hpp"
#include <corvane/utils/io/FileInputStream.hpp>
#include <corvane/utils/io/FileOutputStream.hpp>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

using corvane::tests::TemporaryFolder;
using corvane::utils::io::FileInputStream;
using corvane::utils::io::FileOutputStream;

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
