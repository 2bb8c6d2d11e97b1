#include <corvane/utils/io/InputStream.hpp>

#include <corvane/utils/io/MemoryInputStream.hpp>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

using corvane::utils::io::InputStream;
using corvane::utils::io::MemoryInputStream;

static_assert(!std::is_copy_constructible_v<MemoryInputStream<char>>);

/// Gives its pieces one buffer after the other.
class PieceStream : public InputStream<char> {
public:
    explicit PieceStream(std::vector<std::string> pieces) : pieces_(std::move(pieces)) {}
    [[nodiscard]] std::string description() const override { return "pieces"; }

private:
    bool refill() override {
        if (next_ == pieces_.size()) {
            return false;
        }
        setBuffer(pieces_[next_++]);
        return true;
    }

    std::vector<std::string> pieces_;
    std::size_t next_ = 0;
};

TEST(InputStream, GivesCharacterAfterCharacterAcrossBuffers) {
    PieceStream stream({"ab", "c"});
    EXPECT_EQ(stream.get(), 'a');
    EXPECT_EQ(stream.get(), 'b');
    EXPECT_EQ(stream.get(), 'c');
    EXPECT_EQ(stream.get(), std::nullopt);
    EXPECT_EQ(stream.get(), std::nullopt);
}

TEST(InputStream, ReadsAsMuchAsThereIs) {
    PieceStream stream({"abc", "de", "f"});
    std::string text(4, '.');
    EXPECT_EQ(stream.read(text.data(), 4), 4U);
    EXPECT_EQ(text, "abcd");
    EXPECT_EQ(stream.read(text.data(), 4), 2U);
    EXPECT_EQ(text, "efcd");
    EXPECT_EQ(stream.read(text.data(), 4), 0U);
}

TEST(InputStream, CollectsTheRestFromAllBuffers) {
    PieceStream stream({"abc", "de", "f"});
    EXPECT_EQ(stream.get(), 'a');
    std::string storage = "old";
    EXPECT_EQ(stream.readRest(storage), "bcdef");
    EXPECT_EQ(stream.get(), std::nullopt);
    EXPECT_EQ(stream.readRest(storage), "");
}

TEST(MemoryInputStream, ReadsTheTextItWasGiven) {
    MemoryInputStream<char> stream("xy");
    EXPECT_EQ(stream.description(), "in-memory text");
    EXPECT_EQ(stream.get(), 'x');
    EXPECT_EQ(stream.get(), 'y');
    EXPECT_EQ(stream.get(), std::nullopt);
    EXPECT_EQ(stream.get(), std::nullopt);
}

TEST(MemoryInputStream, HandsOutTheRestWithoutACopy) {
    const std::string text(1000, 'x');
    MemoryInputStream<char> stream(text);
    (void)stream.get();
    std::string storage;
    const std::string_view rest = stream.readRest(storage);
    EXPECT_EQ(rest.data(), text.data() + 1);
    EXPECT_EQ(rest.size(), 999U);
    EXPECT_TRUE(storage.empty());
    EXPECT_EQ(stream.get(), std::nullopt);
}

TEST(MemoryInputStream, ReadsWideText) {
    MemoryInputStream<wchar_t> stream(L"w");
    EXPECT_EQ(stream.get(), L'w');
    EXPECT_EQ(stream.get(), std::nullopt);
}

TEST(MemoryInputStream, OfNothingIsAtItsEnd) {
    MemoryInputStream<char> stream(std::string_view{});
    std::string storage;
    EXPECT_EQ(stream.readRest(storage), "");
    EXPECT_EQ(stream.get(), std::nullopt);
}

} // namespace
