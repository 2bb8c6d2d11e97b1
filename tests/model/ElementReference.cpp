#include <corvane/workbench/model/ElementReference.hpp>

#include "FakeElement.hpp"
#include "internal/typedReferences.hpp"

#include <gtest/gtest.h>

namespace corvane::tests {

struct ElementReferenceKind {
    using Reference = workbench::model::ElementReference;

    static constexpr const char* kKey = "plant.pump";
    static workbench::model::internal::ElementReferenceData
    data(const std::shared_ptr<workbench::model::internal::AbstractCrossReferenceProxy>& proxy) {
        return {proxy, ".pump"};
    }
    static Reference make(const workbench::model::internal::ElementReferenceData& value) {
        return Reference(value);
    }
    static Reference make(workbench::model::internal::ElementReferenceData&& value) {
        return Reference(std::move(value));
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Element, TypedReference, ElementReferenceKind);

namespace {

using workbench::model::ElementReference;
using workbench::model::internal::ElementReferenceData;

TEST(ElementReference, ResolvesToTheElement) {
    std::vector<std::string> calls;
    FakeElement pump;
    const auto proxy = std::make_shared<RecordingProxy>("pump", calls, &pump);
    const ElementReference reference(ElementReferenceData(proxy, ""));
    ASSERT_TRUE(reference.element().has_value());
    EXPECT_EQ(&reference.element()->get(), &pump);
}

TEST(ElementReference, ExplainsWhyItDoesNotResolve) {
    EXPECT_EQ(ElementReference().element().error(), L"empty element key");
}

TEST(ElementReference, AnInternalReferenceSavesWithTheImportPrefix) {
    const auto reference = ElementReference::ImportReference::makeInternalReference("a.b");
    EXPECT_TRUE(static_cast<bool>(reference));
    EXPECT_EQ(savedText(reference), R"(".import:a.b")");
}

} // namespace
} // namespace corvane::tests
