#include "TestBench.hpp"
#include <corvane/utils/core/Uuid.hpp>

namespace corvane::tests {
namespace {

class Identified final : public kit::Element {
public:
    void describe(kit::Form& form) override { form.uuid("asset", "Asset", asset); }

    utils::core::Uuid asset;
};

class UuidSetting : public ::testing::Test {
protected:
    TestBench<Identified> bench;
};

TEST_F(UuidSetting, IsLoadedAndSaved) {
    bench.loadSettings(R"("asset": "01234567-89AB-cdef-0123-456789abcdef")");
    EXPECT_EQ(bench.object().asset, "01234567-89ab-cdef-0123-456789abcdef"_uuid);
    EXPECT_EQ(bench.savedSettings(), R"({"asset":"01234567-89ab-cdef-0123-456789abcdef"})");
}

TEST_F(UuidSetting, IsRefusedWithItsPlaceWhenItIsNone) {
    EXPECT_THAT(bench.problemsOf(R"("asset": "0123")"),
                ElementsAre("configuration.json:2:10: error: \"0123\" is not a UUID"));
    EXPECT_THAT(bench.problemsOf(R"("asset": null)"),
                ElementsAre("configuration.json:2:10: error: expected a string, found null"));
}

TEST_F(UuidSetting, IsCompletedWhenItIsTyped) {
    bench.setting("asset").set("0123456789abcdef0123456789abcdef");
    EXPECT_THAT(bench.setting("asset"), HasText("01234567-89ab-cdef-0123-456789abcdef"));
    bench.setting("asset").set("");
    EXPECT_THAT(bench.setting("asset"), HasText("00000000-0000-0000-0000-000000000000"));
}

TEST_F(UuidSetting, HasTheEditorForUuids) {
    EXPECT_EQ(bench.setting("asset").property().editor, skill::EditableProperty::Editor::Uuid);
}

} // namespace
} // namespace corvane::tests
