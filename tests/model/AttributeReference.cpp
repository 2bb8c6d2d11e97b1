#include <corvane/workbench/model/AttributeReference.hpp>

#include "FakeElement.hpp"
#include "internal/typedReferences.hpp"

#include <gtest/gtest.h>

namespace corvane::tests {

struct AttributeReferenceKind : MemberReferenceKind {
    using Reference = workbench::model::AttributeReference;

    static Reference make(const workbench::model::internal::ElementReferenceData& value) {
        return Reference(value);
    }
    static Reference make(workbench::model::internal::ElementReferenceData&& value) {
        return Reference(std::move(value));
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Attribute, TypedReference, AttributeReferenceKind);

namespace {

using workbench::model::Attribute;
using workbench::model::AttributeReference;
using workbench::model::internal::ElementReferenceData;

TEST(AttributeReference, ResolvesToTheAttribute) {
    std::vector<std::string> calls;
    FakeElement pump;
    pump.attributeList.push_back(Attribute::kQuality);
    const auto proxy = std::make_shared<RecordingProxy>("pump", calls, &pump);
    const AttributeReference reference(ElementReferenceData(proxy, "", "quality"));
    ASSERT_TRUE(reference.attribute().has_value());
    EXPECT_EQ(reference.attribute()->name(), "quality");
}

TEST(AttributeReference, ExplainsWhyItDoesNotResolve) {
    EXPECT_EQ(AttributeReference().attribute().error(), L"empty attribute key");
}

TEST(AttributeReference, AnInternalReferenceSavesWithTheImportPrefix) {
    const auto reference =
        AttributeReference::ImportReference::makeInternalReference("a.b", "value");
    EXPECT_TRUE(static_cast<bool>(reference));
    EXPECT_EQ(savedText(reference), R"(".import:a.b.value")");
}

} // namespace
} // namespace corvane::tests
