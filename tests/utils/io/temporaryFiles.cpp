#include <corvane/utils/io/temporaryFiles.hpp>

#include "utils/io/TemporaryFolder.hpp"
#include <corvane/utils/io/FileOutputStream.hpp>

#include <gtest/gtest.h>

#include <csignal>
#include <list>
#include <string>
#include <system_error>

namespace {

using corvane::tests::TemporaryFolder;
using corvane::utils::io::FileOutputStream;
using corvane::utils::io::removeTemporaryFiles;

TEST(TemporaryFiles, AreRemovedWhileTheirStreamsAreOpen) {
    const TemporaryFolder folder;
    const auto path = folder.write("file.json", "old content");
    FileOutputStream stream(path);
    stream.write(std::string(200000, 'x'));
    ASSERT_EQ(folder.count(), 2U);
    removeTemporaryFiles();
    EXPECT_THROW(stream.close(), std::system_error);
    EXPECT_EQ(TemporaryFolder::read(path), "old content");
    EXPECT_EQ(folder.count(), 1U);
}

TEST(TemporaryFiles, AreForgottenWithTheirStreams) {
    const TemporaryFolder folder;
    FileOutputStream closed(folder.path() / "closed");
    closed.close();
    {
        const FileOutputStream destroyed(folder.path() / "destroyed");
    }
    removeTemporaryFiles();
    EXPECT_EQ(folder.count(), 1U);
    EXPECT_EQ(TemporaryFolder::read(folder.path() / "closed"), "");
}

void removeThem(int /*signal*/) {
    removeTemporaryFiles();
}

TEST(TemporaryFiles, CanBeRemovedByASignalHandler) {
    const TemporaryFolder folder;
    {
        const FileOutputStream stream(folder.path() / "file");
        auto* const before = std::signal(SIGTERM, removeThem);
        std::raise(SIGTERM);
        std::signal(SIGTERM, before);
#ifndef _WIN32 // where an open file keeps its name until it is closed
        EXPECT_EQ(folder.count(), 0U);
#endif
    }
    EXPECT_EQ(folder.count(), 0U);
}

TEST(TemporaryFiles, AreKnownForSixtyFourStreamsAtATime) {
    const TemporaryFolder folder;
    std::list<FileOutputStream> streams;
    for (int number = 0; number < 65; ++number) {
        streams.emplace_back(folder.path() / std::to_string(number));
    }
    removeTemporaryFiles();
    for (int number = 0; number < 64; ++number) {
        EXPECT_THROW(streams.front().close(), std::system_error);
        streams.pop_front();
    }
    EXPECT_NO_THROW(streams.front().close());
    streams.clear();
    EXPECT_EQ(folder.count(), 1U);
}

} // namespace
