#pragma once

// What the four typed references have in common. Each of their tests instantiates this suite with
// a type that says how its kind is made.

#include "RecordingProxy.hpp"
#include "savedText.hpp"
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace corvane::tests {

/// The part that references to attributes, events and tasks share.
struct MemberReferenceKind {
    static constexpr const char* kKey = "plant.pump.speed";
    static workbench::model::internal::ElementReferenceData
    data(const std::shared_ptr<workbench::model::internal::AbstractCrossReferenceProxy>& proxy) {
        return {proxy, ".pump", "speed"};
    }
};

template <class Kind>
class TypedReference : public ::testing::Test {
protected:
    using Reference = typename Kind::Reference;
    using ImportReference = typename Kind::Reference::ImportReference;

    workbench::model::internal::ElementReferenceData data() const { return Kind::data(proxy); }
    std::string quotedKey() const { return "\"" + std::string(Kind::kKey) + "\""; }
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    std::vector<std::string> calls;
    std::shared_ptr<RecordingProxy> proxy = std::make_shared<RecordingProxy>("plant", calls);
};

TYPED_TEST_SUITE_P(TypedReference);

TYPED_TEST_P(TypedReference, IsABasicReferenceThatMovesWithoutThrowing) {
    using Reference = typename TypeParam::Reference;
    EXPECT_TRUE((std::is_base_of_v<workbench::model::internal::BasicElementReference, Reference>));
    EXPECT_TRUE(std::has_virtual_destructor_v<Reference>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<Reference>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<Reference>);
}

TYPED_TEST_P(TypedReference, ADefaultOneIsFalseAndSavesAnEmptyString) {
    const typename TypeParam::Reference reference;
    EXPECT_FALSE(static_cast<bool>(reference));
    EXPECT_EQ(reference.primaryKey(), "");
    EXPECT_EQ(savedText(reference), R"("")");
}

TYPED_TEST_P(TypedReference, AProxyOrAMemberNameMakesItTrue) {
    using workbench::model::internal::ElementReferenceData;
    EXPECT_TRUE(static_cast<bool>(TypeParam::make(ElementReferenceData(this->proxy, ""))));
    EXPECT_TRUE(static_cast<bool>(TypeParam::make(ElementReferenceData(nullptr, "", "speed"))));
    EXPECT_FALSE(static_cast<bool>(TypeParam::make(ElementReferenceData(nullptr, "pump"))));
}

TYPED_TEST_P(TypedReference, RegistersFromConstructionToDestruction) {
    {
        const auto data = this->data();
        const auto copied = TypeParam::make(data);
        const auto moved = TypeParam::make(this->data());
        EXPECT_THAT(this->proxy->registered(), ::testing::ElementsAre(&copied, &moved));
        EXPECT_EQ(copied.primaryKey(), TypeParam::kKey);
        EXPECT_EQ(moved.primaryKey(), TypeParam::kKey);
    }
    EXPECT_THAT(this->calls, ::testing::ElementsAre("plant.attach -> 1", "plant.attach -> 2",
                                                    "plant.detach(2)", "plant.detach(1)"));
}

TYPED_TEST_P(TypedReference, CopiesRegisterAnewAndMovesTakeTheRegistration) {
    auto source = TypeParam::make(this->data());
    const auto copy = source;
    const auto moved = std::move(source);
    EXPECT_THAT(this->calls, ::testing::ElementsAre("plant.attach -> 1", "plant.attach -> 2"));
    EXPECT_THAT(this->proxy->registered(), ::testing::ElementsAre(&moved, &copy));
    EXPECT_EQ(copy.primaryKey(), TypeParam::kKey);
    EXPECT_EQ(moved.primaryKey(), TypeParam::kKey);
    EXPECT_FALSE(static_cast<bool>(source));
}

TYPED_TEST_P(TypedReference, EveryAssignmentRegisters) {
    using Reference = typename TypeParam::Reference;
    const auto source = TypeParam::make(this->data());
    this->takeCalls();

    Reference target;
    EXPECT_EQ(&(target = source), &target);
    EXPECT_THAT(this->takeCalls(), ::testing::ElementsAre("plant.attach -> 2"));
    EXPECT_EQ(target.primaryKey(), TypeParam::kKey);

    EXPECT_EQ(&(target = Reference()), &target);
    EXPECT_THAT(this->takeCalls(), ::testing::ElementsAre("plant.detach(2)"));

    const auto data = this->data();
    EXPECT_EQ(&(target = data), &target);
    EXPECT_THAT(this->takeCalls(), ::testing::ElementsAre("plant.attach -> 3"));
    EXPECT_EQ(target.primaryKey(), TypeParam::kKey);

    target = Reference();
    this->takeCalls();
    EXPECT_EQ(&(target = this->data()), &target);
    EXPECT_THAT(this->takeCalls(), ::testing::ElementsAre("plant.attach -> 4"));
    EXPECT_EQ(target.primaryKey(), TypeParam::kKey);
}

TYPED_TEST_P(TypedReference, SavesItsKeyAsOneString) {
    const auto reference = TypeParam::make(this->data());
    EXPECT_EQ(savedText(reference), this->quotedKey());
    EXPECT_EQ(savedArray(reference), "[" + this->quotedKey() + "]");
    EXPECT_EQ(savedObject(reference, "source"), "{\"source\":" + this->quotedKey() + "}");
}

TYPED_TEST_P(TypedReference, ADefaultImportReferenceIsFalseAndSavesAnEmptyString) {
    const typename TypeParam::Reference::ImportReference reference;
    EXPECT_FALSE(static_cast<bool>(reference));
    EXPECT_EQ(savedText(reference), R"("")");
}

TYPED_TEST_P(TypedReference, AnImportReferenceSavesLikeItsReferenceAndRegistersNowhere) {
    using ImportReference = typename TypeParam::Reference::ImportReference;
    const auto reference = TypeParam::make(this->data());
    this->takeCalls();
    {
        ImportReference import(reference);
        EXPECT_TRUE(static_cast<bool>(import));
        EXPECT_EQ(savedText(import), this->quotedKey());
        EXPECT_EQ(savedArray(import), "[" + this->quotedKey() + "]");
        EXPECT_EQ(savedObject(import, "source"), "{\"source\":" + this->quotedKey() + "}");

        const ImportReference copy(import);
        EXPECT_EQ(savedText(copy), this->quotedKey());
        ImportReference assigned;
        assigned = copy;
        EXPECT_EQ(savedText(assigned), this->quotedKey());
        ImportReference moved(std::move(import));
        EXPECT_EQ(savedText(moved), this->quotedKey());
        assigned = std::move(moved);
        EXPECT_EQ(savedText(assigned), this->quotedKey());
    }
    EXPECT_THAT(this->calls, ::testing::IsEmpty());
}

TYPED_TEST_P(TypedReference, AnImportReferenceIsPlainDataOfOneField) {
    using ImportReference = typename TypeParam::Reference::ImportReference;
    EXPECT_FALSE(std::is_polymorphic_v<ImportReference>);
    EXPECT_EQ(sizeof(ImportReference), sizeof(workbench::model::internal::ElementReferenceData));
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<ImportReference>);
}

TYPED_TEST_P(TypedReference, AnImportedReferenceKeepsItsPrefix) {
    using workbench::model::internal::ElementReferenceData;
    const auto reference = TypeParam::make(ElementReferenceData::makeImportReference("a.[b.c]"));
    EXPECT_EQ(reference.primaryKey(), "a.[b.c]");
    EXPECT_EQ(savedText(reference), R"(".import:a.[b.c]")");
    const typename TypeParam::Reference::ImportReference import(reference);
    EXPECT_EQ(savedText(import), R"(".import:a.[b.c]")");
}

REGISTER_TYPED_TEST_SUITE_P(TypedReference, IsABasicReferenceThatMovesWithoutThrowing,
                            ADefaultOneIsFalseAndSavesAnEmptyString, AProxyOrAMemberNameMakesItTrue,
                            RegistersFromConstructionToDestruction,
                            CopiesRegisterAnewAndMovesTakeTheRegistration, EveryAssignmentRegisters,
                            SavesItsKeyAsOneString,
                            ADefaultImportReferenceIsFalseAndSavesAnEmptyString,
                            AnImportReferenceSavesLikeItsReferenceAndRegistersNowhere,
                            AnImportReferenceIsPlainDataOfOneField,
                            AnImportedReferenceKeepsItsPrefix);

} // namespace corvane::tests
