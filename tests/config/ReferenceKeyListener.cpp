#include <corvane/workbench/config/internal/ReferenceKeyListener.hpp>

#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/config/Context.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace {

using corvane::workbench::config::kWithoutLocation;
using corvane::workbench::config::internal::ReferenceKeyListener;
using Key = corvane::workbench::config::Context::ReferenceKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
namespace decoder = corvane::utils::json::decoder;

class RecordingListener final : public ReferenceKeyListener {
public:
    std::vector<std::string> heard;

    void keyRead(std::string_view key, const decoder::Location& location) override {
        heard.push_back(std::string(key) + " " + std::to_string(location.line()) + ":" +
                        std::to_string(location.column()));
    }
};

TEST(ReferenceKeyListener, HearsOfEveryKeyThatHasAPlace) {
    corvane::utils::io::MemoryInputStream<char> stream(std::string_view("\n  \"a.b\""));
    decoder::Document document(stream);
    RecordingListener listener;

    const Key value(document.root());
    const Key name(decoder::Name("c", decoder::Location(3, 4)));
    const Key text(std::string("d"), decoder::Location(5, 6));

    EXPECT_THAT(listener.heard, ElementsAre("a.b 2:3", "c 3:4", "d 5:6"));
}

TEST(ReferenceKeyListener, DoesNotHearOfKeysWithoutAPlaceAndOfCopies) {
    const Key before(std::string("a"), decoder::Location(1, 2));
    RecordingListener listener;

    const Key withoutPlace("b", kWithoutLocation);
    Key copy(before);
    const Key moved(std::move(copy));

    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST(ReferenceKeyListener, IsTheNewestOneThatHears) {
    RecordingListener older;
    {
        RecordingListener newer;
        const Key key(std::string("a"), decoder::Location(1, 2));
        EXPECT_THAT(newer.heard, ElementsAre("a 1:2"));
        EXPECT_THAT(older.heard, IsEmpty());
    }
    const Key key(std::string("b"), decoder::Location(3, 4));
    EXPECT_THAT(older.heard, ElementsAre("b 3:4"));
}

TEST(ReferenceKeyListener, HearsOnItsOwnThreadOnly) {
    RecordingListener listener;
    std::thread([] { const Key key(std::string("a"), decoder::Location(1, 2)); }).join();
    EXPECT_THAT(listener.heard, IsEmpty());
    EXPECT_EQ(ReferenceKeyListener::newest(), &listener);
}

} // namespace
