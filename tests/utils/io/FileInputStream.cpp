#include <corvane/utils/io/FileInputStream.hpp>

#include "utils/io/DeepFolder.hpp"
#include "utils/io/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace {

using corvane::tests::DeepFolder;
using corvane::tests::TemporaryFolder;
using corvane::utils::io::FileInputStream;

std::string bigText() {
    std::string text;
    for (int line = 0; line != 20000; ++line) {
        text += "line " + std::to_string(line) + '\n';
    }
    return text;
}

TEST(FileInputStream, ReadsAFileByteForByte) {
    const TemporaryFolder folder;
    const std::string content("a\r\nb\0\xFF\x1A z", 9);
    FileInputStream stream(folder.write("data", content));
    std::string read;
    while (const auto character = stream.get()) {
        read.push_back(*character);
    }
    EXPECT_EQ(read, content);
}

TEST(FileInputStream, ReadsAFileOfManyBlocks) {
    const TemporaryFolder folder;
    const std::string content = bigText();
    FileInputStream stream(folder.write("big", content));
    std::string read;
    while (const auto character = stream.get()) {
        read.push_back(*character);
    }
    EXPECT_EQ(read, content);
}

TEST(FileInputStream, GivesTheRestOfAFileInOnePiece) {
    const TemporaryFolder folder;
    const std::string content = bigText();
    const auto path = folder.write("big", content);
    std::string storage;
    FileInputStream fromStart(path);
    EXPECT_EQ(fromStart.readRest(storage), content);
    EXPECT_EQ(fromStart.get(), std::nullopt);
    FileInputStream fromSecond(path);
    EXPECT_EQ(fromSecond.get(), 'l');
    EXPECT_EQ(fromSecond.readRest(storage), content.substr(1));
}

TEST(FileInputStream, ReadsAnEmptyFile) {
    const TemporaryFolder folder;
    const auto path = folder.write("empty", "");
    FileInputStream stream(path);
    EXPECT_EQ(stream.get(), std::nullopt);
    EXPECT_EQ(stream.get(), std::nullopt);
    std::string storage;
    EXPECT_EQ(FileInputStream(path).readRest(storage), "");
}

TEST(FileInputStream, OpensAPathOutsideAscii) {
    const TemporaryFolder folder;
    const auto path = folder.write(u8"Gr\u00F6\u00DFe \u6E2C\u8A66.json", "{}");
    FileInputStream stream(path);
    EXPECT_EQ(stream.get(), '{');
    EXPECT_TRUE(stream.description().ends_with("Gr\xC3\xB6\xC3\x9F"
                                               "e \xE6\xB8\xAC\xE8\xA9\xA6.json"));
    EXPECT_EQ(stream.path(), path);
}

TEST(FileInputStream, NamesAFileThatIsMissing) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "missing.json";
    try {
        const FileInputStream stream(path);
        ADD_FAILURE() << "opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        const std::string text = error.what();
        EXPECT_TRUE(text.starts_with("cannot open ")) << text;
        EXPECT_NE(text.find("missing.json: "), std::string::npos) << text;
    }
}

TEST(FileInputStream, RefusesAFolder) {
    const TemporaryFolder folder;
    try {
        const FileInputStream stream(folder.path());
        ADD_FAILURE() << "opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::is_a_directory);
        EXPECT_TRUE(std::string(error.what()).starts_with("cannot open ")) << error.what();
    }
}

TEST(FileInputStream, StatesExactlyWhyAFileCannotBeOpened) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "missing.json";
    try {
        const FileInputStream stream(path);
        ADD_FAILURE() << "opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.what(), "cannot open " + path.string() + ": No such file or directory");
    }
    try {
        const FileInputStream stream(folder.path());
        ADD_FAILURE() << "opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.what(), "cannot open " + folder.path().string() + ": Is a directory");
    }
}

TEST(FileInputStream, OpensAPathOfAnyLength) {
    const TemporaryFolder folder;
    const DeepFolder deep(folder.path());
    {
        std::ofstream(deep.file(), std::ios_base::binary) << "content";
    }
    const auto path = deep.path() / "file.json";
    ASSERT_GT(path.native().size(), 300U);
    FileInputStream stream(path);
    std::string storage;
    EXPECT_EQ(stream.readRest(storage), "content");
    EXPECT_EQ(stream.path(), path);
}

TEST(FileInputStream, OpensALongPathThatIsNotInItsShortestForm) {
    const TemporaryFolder folder;
    const DeepFolder deep(folder.path());
    {
        std::ofstream(deep.file(), std::ios_base::binary) << "content";
    }
    FileInputStream stream(deep.path() / "." / ".." / deep.path().filename() / "file.json");
    EXPECT_EQ(stream.get(), 'c');
}

TEST(FileInputStream, NamesALongPathAsItWasGiven) {
    const TemporaryFolder folder;
    const DeepFolder deep(folder.path());
    const auto path = deep.path() / "missing.json";
    try {
        const FileInputStream stream(path);
        ADD_FAILURE() << "opened";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.what(), "cannot open " + path.string() + ": No such file or directory");
    }
}

} // namespace
