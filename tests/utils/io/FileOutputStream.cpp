#include <corvane/utils/io/FileOutputStream.hpp>

#include "utils/io/DeepFolder.hpp"
#include "utils/io/TemporaryFolder.hpp"
#include <corvane/utils/io/temporaryFiles.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace {

using corvane::tests::DeepFolder;
using corvane::tests::TemporaryFolder;
using corvane::utils::io::FileOutputStream;

std::string failureText(const std::filesystem::path& path) {
    try {
        FileOutputStream stream(path);
        stream.write("x");
        stream.close();
    } catch (const std::system_error& error) {
        return error.what();
    }
    return "no std::system_error";
}

TEST(FileOutputStream, WritesANewFileWhenItIsClosed) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "new.json";
    FileOutputStream stream(path);
    stream.write("a\r\nb");
    stream.put('\0');
    stream.flush();
    EXPECT_FALSE(std::filesystem::exists(path));
    stream.close();
    EXPECT_EQ(TemporaryFolder::read(path), std::string("a\r\nb\0", 5));
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, ReplacesAFileOnlyWhenItIsClosed) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    FileOutputStream stream(path);
    stream.write("new");
    stream.flush();
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    stream.close();
    EXPECT_EQ(TemporaryFolder::read(path), "new");
    stream.close();
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, ChangesNothingWhenItIsDestroyedBeforeItIsClosed) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    {
        FileOutputStream stream(path);
        stream.write(std::string(200000, 'x'));
        stream.flush();
        EXPECT_EQ(folder.count(), 2U);
    }
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, WritesTextsOfEverySize) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "big";
    std::string expected;
    FileOutputStream stream(path);
    for (const std::size_t size : {1U, 65535U, 1U, 65536U, 7U, 65537U, 200000U, 0U, 3U}) {
        const std::string text(size, static_cast<char>('a' + size % 26));
        stream.write(text);
        expected += text;
        stream.put('|');
        expected += '|';
    }
    stream.close();
    EXPECT_TRUE(TemporaryFolder::read(path) == expected);
}

TEST(FileOutputStream, WritesAnEmptyFile) {
    const TemporaryFolder folder;
    const auto path = folder.write("file", "old");
    FileOutputStream stream(path);
    stream.close();
    EXPECT_EQ(TemporaryFolder::read(path), "");
}

TEST(FileOutputStream, WritesToAPathOutsideAscii) {
    const TemporaryFolder folder;
    const auto path = folder.path() / u8"Gr\u00F6\u00DFe \u6E2C\u8A66.json";
    FileOutputStream stream(path);
    stream.write("{}");
    stream.close();
    EXPECT_EQ(TemporaryFolder::read(path), "{}");
    EXPECT_EQ(stream.path(), path);
}

TEST(FileOutputStream, NamesAFolderThatIsMissing) {
    const TemporaryFolder folder;
    const std::string text = failureText(folder.path() / "missing" / "file.json");
    EXPECT_TRUE(text.starts_with("cannot write ")) << text;
    EXPECT_NE(text.find("file.json: "), std::string::npos) << text;
}

TEST(FileOutputStream, RefusesToReplaceAFolder) {
    const TemporaryFolder folder;
    const std::string text = failureText(folder.path());
    EXPECT_TRUE(text.starts_with("cannot write ")) << text;
    EXPECT_TRUE(std::filesystem::is_directory(folder.path()));
    EXPECT_EQ(folder.count(), 0U);
}

TEST(FileOutputStream, RefusesToReplaceAReadOnlyFile) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    using std::filesystem::perms;
    constexpr perms kWritable = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(path, kWritable, std::filesystem::perm_options::remove);
    const std::string text = failureText(path);
    EXPECT_TRUE(text.starts_with("cannot write ")) << text;
    EXPECT_TRUE(text.ends_with("file.json, which is read-only: Permission denied")) << text;
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    EXPECT_EQ(folder.count(), 1U);
    std::filesystem::permissions(path, perms::owner_write, std::filesystem::perm_options::add);
}

TEST(FileOutputStream, ReplacesAFileInTheCurrentFolder) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    FileOutputStream stream("file.json");
    stream.write("new");
    stream.close();
    std::filesystem::current_path(before);
    EXPECT_EQ(TemporaryFolder::read(path), "new");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, WritesIntoTheDeviceThatTakesEverything) {
    const TemporaryFolder folder;
#ifdef _WIN32
    const std::filesystem::path path = "NUL";
#else
    // By a link in a folder of its own, so that a mistake does no harm to the system's.
    const std::filesystem::path path = folder.path() / "null";
    std::filesystem::create_symlink("/dev/null", path);
#endif
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    {
        FileOutputStream stream(path);
        stream.write("x");
        stream.close();
    }
    EXPECT_FALSE(std::filesystem::is_regular_file(path));
    EXPECT_LE(folder.count(), 1U);
    std::filesystem::current_path(before);
}

TEST(FileOutputStream, FailsAgainOnceItHasFailed) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "file.json";
    FileOutputStream stream(path);
    corvane::utils::io::removeTemporaryFiles();
    stream.write("x");
    EXPECT_THROW(stream.close(), std::system_error);
    EXPECT_NO_THROW(stream.close());
    EXPECT_EQ(folder.count(), 0U);
}

TEST(FileOutputStream, LeavesNothingBehindWhenTheTargetBecomesAFolder) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "file.json";
    FileOutputStream stream(path);
    stream.write("x");
    std::filesystem::create_directory(path);
    EXPECT_THROW(stream.close(), std::system_error);
    EXPECT_EQ(folder.count(), 1U);
}

TEST(FileOutputStream, WritesToAPathOfAnyLength) {
    const TemporaryFolder folder;
    const DeepFolder deep(folder.path());
    const auto path = deep.path() / "file.json";
    ASSERT_GT(path.native().size(), 300U);
    {
        FileOutputStream stream(path);
        stream.write("old");
        stream.close();
    }
    {
        FileOutputStream stream(path);
        stream.write("new");
        stream.close();
        EXPECT_EQ(stream.path(), path);
    }
    EXPECT_EQ(TemporaryFolder::read(deep.file()), "new");
}

TEST(FileOutputStream, WritesNextToTheLongestPathThatNeedsNoOtherForm) {
    // The name of the temporary file is longer than that of the file.
    const TemporaryFolder folder;
    for (std::size_t length = 225; length <= 259; ++length) {
        const std::size_t used = folder.path().native().size() + 1;
        ASSERT_LT(used, 200U);
        const auto path = folder.path() / std::string(length - used, 'n');
        FileOutputStream stream(path);
        stream.write("x");
        stream.close();
        EXPECT_EQ(TemporaryFolder::read(path), "x") << length;
    }
    EXPECT_EQ(folder.count(), 35U);
}

} // namespace
