#include <corvane/workbench/config/Context.hpp>

#include "virtualPosition.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using corvane::tests::virtualPosition;
using corvane::workbench::config::Context;
using corvane::workbench::config::kWithoutLocation;
using corvane::workbench::config::WithoutLocationTag;
using corvane::workbench::model::AttributeReference;
using corvane::workbench::model::ElementReference;
using corvane::workbench::model::internal::BasicElementReference;
using corvane::workbench::process::EventReference;
using corvane::workbench::process::TaskReference;
using Key = Context::ReferenceKey;
namespace decoder = corvane::utils::json::decoder;

static_assert(std::is_abstract_v<Context>);
static_assert(std::has_virtual_destructor_v<Context>);
static_assert(sizeof(Context) == sizeof(void*));
static_assert(std::is_copy_assignable_v<Context>);
static_assert(std::is_empty_v<WithoutLocationTag>);
static_assert(sizeof(Key) == sizeof(std::string));
static_assert(std::is_nothrow_move_constructible_v<Key>);

struct Request {
    std::string operation;
    std::string key;
    const BasicElementReference* reference;
    bool hasCompletion;
};

class RecordingContext final : public Context {
public:
    std::vector<Request> requests;

    void resolveElementReference(Key&& key, std::reference_wrapper<ElementReference> reference,
                                 std::function<void()>&& completion) override {
        requests.push_back(
            {"element", std::move(key).text(), &reference.get(), static_cast<bool>(completion)});
    }
    void resolveMemberReference(Key&& key, std::reference_wrapper<BasicElementReference> reference,
                                std::function<void()>&& completion) override {
        requests.push_back(
            {"member", std::move(key).text(), &reference.get(), static_cast<bool>(completion)});
    }
};

template <class Reference>
void expectOneRequest(std::string_view operation) {
    RecordingContext context;
    Reference reference;
    context.resolve(Key(".import:a.[b.c].x", kWithoutLocation), reference);
    ASSERT_EQ(context.requests.size(), 1U);
    EXPECT_EQ(context.requests[0].operation, operation);
    EXPECT_EQ(context.requests[0].key, ".import:a.[b.c].x");
    EXPECT_EQ(context.requests[0].reference, &reference);
    EXPECT_FALSE(context.requests[0].hasCompletion);
}

TEST(Context, AnElementReferenceIsRequestedAsOne) {
    expectOneRequest<ElementReference>("element");
}

TEST(Context, AttributeEventAndTaskReferencesAreRequestedAsMembers) {
    expectOneRequest<AttributeReference>("member");
    expectOneRequest<EventReference>("member");
    expectOneRequest<TaskReference>("member");
}

TEST(Context, AMovedKeyArrivesInTheSameMemory) {
    class AddressContext final : public Context {
    public:
        const char* address = nullptr;

    private:
        void resolveElementReference(Key&& key, std::reference_wrapper<ElementReference>,
                                     std::function<void()>&&) override {
            address = key.text().data();
        }
        void resolveMemberReference(Key&&, std::reference_wrapper<BasicElementReference>,
                                    std::function<void()>&&) override {}
    };
    AddressContext context;
    ElementReference reference;
    Key key("a.key.that.is.too.long.to.be.kept.inside.of.a.string", kWithoutLocation);
    const char* const address = key.text().data();
    context.resolve(std::move(key), reference);
    EXPECT_EQ(context.address, address);
}

TEST(Context, ItsOperationsFollowItsDestructorInTheFixedOrder) {
    if (!corvane::tests::kVirtualPositionsKnown) {
        GTEST_SKIP() << "the binary interface is not known";
    }
    EXPECT_EQ(virtualPosition(&RecordingContext::resolveElementReference), 2U);
    EXPECT_EQ(virtualPosition(&RecordingContext::resolveMemberReference), 3U);
}

TEST(ReferenceKey, IsReadFromAJsonString) {
    const std::string_view json = R"(".import:a.\u00e4\n\"[b.c]")";
    corvane::utils::io::MemoryInputStream<char> stream(json);
    decoder::Document document(stream);
    EXPECT_EQ(Key(document.root()).text(), ".import:a.\xc3\xa4\n\"[b.c]");
    document.finish();
}

TEST(ReferenceKey, RefusesAValueThatIsNoString) {
    const std::string_view json = "\n 12";
    corvane::utils::io::MemoryInputStream<char> stream(json);
    decoder::Document document(stream);
    try {
        const Key key(document.root());
        FAIL() << key.text();
    } catch (const decoder::Exception& error) {
        EXPECT_EQ(error.location().line(), 2U);
    }
}

TEST(ReferenceKey, IsTakenFromAName) {
    EXPECT_EQ(Key(decoder::Name("a.b")).text(), "a.b");
}

TEST(ReferenceKey, IsTakenFromATextWithOrWithoutALocation) {
    EXPECT_EQ(Key(std::string("a.b"), decoder::Location(3, 4)).text(), "a.b");
    EXPECT_EQ(Key("a.b", kWithoutLocation).text(), "a.b");
    EXPECT_EQ(Key("", WithoutLocationTag()).text(), "");
}

TEST(ReferenceKey, IsCopiedAndMovedAsItsText) {
    Key key("a.b", kWithoutLocation);
    Key copy(key);
    EXPECT_EQ(copy.text(), "a.b");
    const Key moved(std::move(copy));
    EXPECT_EQ(moved.text(), "a.b");
    Key assigned("x", kWithoutLocation);
    assigned = key;
    EXPECT_EQ(assigned.text(), "a.b");
    assigned = Key("c", kWithoutLocation);
    EXPECT_EQ(assigned.text(), "c");
    const std::string text = std::move(key).text();
    EXPECT_EQ(text, "a.b");
}

} // namespace
