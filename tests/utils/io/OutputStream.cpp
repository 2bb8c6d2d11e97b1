#include <corvane/utils/io/OutputStream.hpp>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace {

using corvane::utils::io::OutputStream;

/// Has a buffer of four characters and keeps what it was asked to take, call by call.
class RecordingStream : public OutputStream<char> {
public:
    [[nodiscard]] std::string description() const override { return "recording"; }

    std::vector<std::string> flushed;
    int closings = 0;

private:
    void flushBuffer() override {
        flushed.emplace_back(bufferBegin(), bufferPosition());
        setBuffer(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }
    void closeSink() override { ++closings; }

    std::array<char, 4> buffer_{};
};

using Pieces = std::vector<std::string>;

TEST(OutputStream, AsksForABufferBeforeTheFirstCharacter) {
    RecordingStream stream;
    stream.put('a');
    EXPECT_EQ(stream.flushed, Pieces{""});
}

TEST(OutputStream, HandsItsBufferOverWhenItIsFull) {
    RecordingStream stream;
    for (const char character : std::string_view("abcdefghi")) {
        stream.put(character);
    }
    EXPECT_EQ(stream.flushed, (Pieces{"", "abcd", "efgh"}));
}

TEST(OutputStream, DividesATextThatIsLongerThanTheBuffer) {
    RecordingStream stream;
    stream.put('a');
    stream.write("bcdefghij");
    stream.flush();
    EXPECT_EQ(stream.flushed, (Pieces{"", "abcd", "efgh", "ij"}));
}

TEST(OutputStream, KeepsATextThatFitsTheBuffer) {
    RecordingStream stream;
    stream.put('a');
    stream.write("bcd");
    stream.write("");
    EXPECT_EQ(stream.flushed, Pieces{""});
    stream.flush();
    EXPECT_EQ(stream.flushed, (Pieces{"", "abcd"}));
}

TEST(OutputStream, FlushesAndCompletesOnceWhenClosed) {
    RecordingStream stream;
    stream.write("xy");
    stream.close();
    stream.close();
    stream.flush();
    EXPECT_EQ(stream.flushed, (Pieces{"", "xy"}));
    EXPECT_EQ(stream.closings, 1);
}

} // namespace
