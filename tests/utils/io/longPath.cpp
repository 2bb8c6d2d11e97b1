#include "../../../platform/corvane-utils/src/io/longPath.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using corvane::utils::io::longPath;

const std::wstring kTail(240, L'x');

TEST(LongPath, AShortPathStaysAsItIs) {
    EXPECT_EQ(longPath(LR"(C:\plant\pump.json)"), LR"(C:\plant\pump.json)");
    EXPECT_EQ(longPath(LR"(\\server\plant\pump.json)"), LR"(\\server\plant\pump.json)");
    EXPECT_EQ(longPath(L""), L"");
}

TEST(LongPath, ALongPathOnADriveGetsThePrefix) {
    EXPECT_EQ(longPath(LR"(C:\plant\)" + kTail), LR"(\\?\C:\plant\)" + kTail);
}

TEST(LongPath, ALongPathOnAServerGetsThePrefixForServers) {
    EXPECT_EQ(longPath(LR"(\\server\plant\)" + kTail), LR"(\\?\UNC\server\plant\)" + kTail);
}

TEST(LongPath, ALongPathThatHasAPrefixStaysAsItIs) {
    EXPECT_EQ(longPath(LR"(\\?\C:\)" + kTail), LR"(\\?\C:\)" + kTail);
    EXPECT_EQ(longPath(LR"(\\.\pipe\)" + kTail), LR"(\\.\pipe\)" + kTail);
}

TEST(LongPath, APathIsLongFrom240Characters) {
    const std::wstring path = LR"(C:\)" + std::wstring(236, L'x');
    EXPECT_EQ(longPath(path), path);
    EXPECT_EQ(longPath(path + L"x"), LR"(\\?\)" + path + L"x");
}

} // namespace
