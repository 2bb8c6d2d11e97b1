// The tables and the code of docs/references.md, checked against the library and the reference
// workbench. CodeBlocks checks that the guide quotes the code as it stands.

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/internal/keys.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventSearchOptions.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

namespace keys = corvane::workbench::model::internal;

using corvane::utils::core::function_ref;
using corvane::utils::string::toUtf8;
using corvane::workbench::bindings::Action;
using corvane::workbench::bindings::CrossReferenceController;
using corvane::workbench::bindings::PropertyContainer;
using corvane::workbench::bindings::PropertyController;
using corvane::workbench::bindings::PropertyId;
using corvane::workbench::host::ReferenceUse;
using corvane::workbench::host::Workbench;
using corvane::workbench::model::AttributeReference;
using corvane::workbench::model::internal::BasicElementReference;
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class ReferencesGuide : public ::testing::Test {
protected:
    ReferencesGuide() {
        EXPECT_TRUE(workbench.loadSkills(FIRST_SKILL_LIBRARY));
        EXPECT_TRUE(workbench.add("", "FirstSkill.Mixer", "main"));
        EXPECT_TRUE(workbench.add("", "FirstSkill.Mixer", "second"));
    }

    [[nodiscard]] AttributeReference speedOf(std::string_view key) const {
        return workbench.findElement(key)->makeAttributeReference("speed");
    }

    [[nodiscard]] std::vector<const BasicElementReference*>
    referencesTo(std::string_view key) const {
        std::vector<const BasicElementReference*> result;
        for (const ReferenceUse& use : workbench.referencesTo(*workbench.findElement(key))) {
            result.push_back(use.reference);
        }
        return result;
    }

    Workbench workbench;
};

/// The cells of the rows of the guide's table with that heading, without the quoting of code.
std::vector<std::vector<std::string>> tableOfTheGuide(std::string_view heading) {
    std::ifstream stream(CHECKOUT_FOLDER "/docs/references.md");
    std::vector<std::vector<std::string>> rows;
    bool inTable = false;
    for (std::string line; std::getline(stream, line);) {
        if (line == heading) {
            inTable = true;
            std::getline(stream, line); // the line under the heading
            continue;
        }
        if (!line.starts_with('|')) {
            inTable = false;
        }
        if (!inTable) {
            continue;
        }
        std::vector<std::string> cells;
        for (std::size_t begin = 2; begin < line.size();) {
            const std::size_t end = line.find(" |", begin);
            std::string cell = line.substr(begin, end - begin);
            std::erase(cell, '`');
            cells.push_back(cell == "(empty)" ? std::string() : cell);
            begin = end + 3;
        }
        rows.push_back(cells);
    }
    return rows;
}

std::string wholeOrError(const auto& result) {
    return result ? "resolves" : toUtf8(result.error());
}

std::string resolved(const Workbench& workbench, std::string_view kind, std::string_view key) {
    if (kind == "element") {
        return wholeOrError(workbench.elementReferenceData(key).element());
    }
    const auto data = workbench.memberReferenceData(key);
    if (kind == "attribute") {
        return wholeOrError(data.attribute());
    }
    if (kind == "event") {
        return wholeOrError(data.event({}));
    }
    if (kind == "event or attribute") {
        return wholeOrError(data.event({.includeAttributes = true}));
    }
    EXPECT_EQ(kind, "task");
    return wholeOrError(data.task());
}

TEST_F(ReferencesGuide, KeysAreSplitAsTheTableSays) {
    const auto rows = tableOfTheGuide("| key | element key | member name |");
    ASSERT_EQ(rows.size(), 8U);
    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 3U);
        const auto [elementKey, memberName] = keys::splitMemberKey(std::string_view(row[0]));
        EXPECT_EQ(elementKey, row[1]) << row[0];
        EXPECT_EQ(memberName ? std::string(*memberName) : "none", row[2]) << row[0];
    }
}

TEST_F(ReferencesGuide, KeysThatDoNotResolveSayWhatTheTableSays) {
    const auto rows = tableOfTheGuide("| read as | key | message |");
    ASSERT_EQ(rows.size(), 24U);
    for (const auto& row : rows) {
        ASSERT_EQ(row.size(), 3U);
        EXPECT_EQ(resolved(workbench, row[0], row[1]), row[2]) << row[0] << " " << row[1];
    }
}

TEST_F(ReferencesGuide, AnImportReferenceHasAKeyButNoElement) {
    const auto data = workbench.elementReferenceData(".import:main");
    EXPECT_TRUE(data.isImportReference());
    EXPECT_EQ(data.primaryKey(), "main");
    EXPECT_EQ(wholeOrError(data.element()),
              "internal error: unresolved cross reference from import");
}

class Input final : public PropertyController {
public:
    explicit Input(AttributeReference reference) : source(std::move(reference)) {}
    Input(Input&&) noexcept = default;
    Input& operator=(Input&&) noexcept = default;

    AttributeReference source;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(source.propertyId(), {.state = [this] { return sourceState(); }},
                          {.crossReferenceController = &source});
    }

    [[nodiscard]] PropertyState sourceState() const {
        const auto attribute = source.attribute();
        return attribute ? PropertyState() : tl::unexpected(attribute.error());
    }
};

class Inputs final : public PropertyContainer {
public:
    std::vector<Input> rows;

    void append(AttributeReference source) {
        rows.emplace_back(std::move(source));
        subPropertyContainerListChanged({.updateEnclosingContainers = true});
    }

    void erase(std::size_t index) {
        rows.erase(std::next(rows.begin(), static_cast<std::ptrdiff_t>(index)));
        for (; index < rows.size(); ++index) {
            rows[index].source.updateValue();
        }
        subPropertyContainerListChanged({.updateEnclosingContainers = true});
    }

private:
    void forEachSubPropertyContainer(const function_ref<void(PropertyContainer&)>& callback,
                                     bool /*includeInvisible*/) override {
        for (Input& row : rows) {
            callback(row);
        }
    }
    void forEachLocalCrossReference(const function_ref<void(CrossReferenceController&)>&,
                                    bool /*includeInvisible*/) override {}
    std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const PropertyId&) override {}
};

TEST_F(ReferencesGuide, ReferencesInAVectorThatGrowsStayRegisteredWhereTheyAre) {
    Inputs inputs;
    for (int count = 0; count < 20; ++count) {
        inputs.append(speedOf("main"));
    }

    std::vector<const BasicElementReference*> expected;
    for (const Input& row : inputs.rows) {
        expected.push_back(&row.source);
        EXPECT_EQ(row.source.referringController(), &row);
        EXPECT_EQ(row.enclosingPropertyContainer(), &inputs);
    }
    std::vector<const BasicElementReference*> registered = referencesTo("main");
    std::ranges::sort(registered);
    std::ranges::sort(expected);
    EXPECT_EQ(registered, expected);
}

TEST_F(ReferencesGuide, ReferencesInAVectorThatShrinksStayRegisteredWhereTheyAre) {
    Inputs inputs;
    inputs.append(speedOf("main"));
    inputs.append(workbench.findElement("second")->makeAttributeReference("none"));
    inputs.append(speedOf("second"));
    EXPECT_EQ(inputs.propertyErrorCount(), 1U);

    inputs.erase(0);
    EXPECT_TRUE(referencesTo("main").empty());
    EXPECT_THAT(referencesTo("second"),
                UnorderedElementsAre(&inputs.rows[0].source, &inputs.rows[1].source));
    EXPECT_EQ(inputs.propertyErrorCount(), 1U);

    inputs.erase(0);
    EXPECT_THAT(referencesTo("second"), ElementsAre(&inputs.rows[0].source));
    EXPECT_EQ(inputs.propertyErrorCount(), 0U);
    EXPECT_TRUE(workbench.rename("second", "renamed"));
    EXPECT_EQ(inputs.rows[0].source.primaryKey(), "renamed.speed");
}

TEST_F(ReferencesGuide, AMovedReferenceTakesItsRegistrationAlong) {
    AttributeReference source = speedOf("main");
    const PropertyId before = source.propertyId();
    const AttributeReference target(std::move(source));

    EXPECT_THAT(referencesTo("main"), ElementsAre(&target));
    EXPECT_FALSE(source); // NOLINT: what is left is the point
    EXPECT_NE(target.propertyId(), before);
}

TEST_F(ReferencesGuide, ACopiedReferenceIsRegisteredBesideItsSource) {
    const AttributeReference source = speedOf("main");
    const AttributeReference copy = source; // NOLINT: what it does is the point
    EXPECT_THAT(referencesTo("main"), UnorderedElementsAre(&source, &copy));
}

class Listener final : public PropertyController {
public:
    AttributeReference source;
    std::vector<std::string> heard;

    explicit Listener(AttributeReference reference) : source(std::move(reference)) {
        EXPECT_EQ(propertyErrorCount(), source.attribute() ? 0U : 1U);
        subscription_ = subscribe(source.propertyId(), {.value = [this] { hear("value"); },
                                                        .state = [this] { hear("state"); }});
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        const auto state = [this]() -> PropertyState {
            const auto attribute = source.attribute();
            return attribute ? PropertyState() : tl::unexpected(attribute.error());
        };
        context.configure(source.propertyId(), {.state = state},
                          {.crossReferenceController = &source});
    }

    void hear(std::string_view what) {
        heard.push_back(std::string(what) + " " + source.primaryKey());
    }

    Subscription subscription_;
};

TEST_F(ReferencesGuide, ARenameChangesTheKeyAndARemovalTheState) {
    Listener listener(speedOf("main"));

    EXPECT_TRUE(workbench.rename("main", "first"));
    EXPECT_TRUE(workbench.remove("first"));
    EXPECT_TRUE(workbench.add("", "FirstSkill.Mixer", "first"));

    EXPECT_THAT(listener.heard,
                ElementsAre("value first.speed", "state first.speed", "state first.speed"));
    EXPECT_EQ(referencesTo("first").size(), 1U);
}

TEST_F(ReferencesGuide, AReferenceThatWaitsFindsAnElementThatIsRenamedToItsKey) {
    AttributeReference waiting(workbench.memberReferenceData("third.speed"));
    Listener listener(std::move(waiting));
    EXPECT_EQ(listener.propertyErrorCount(), 1U);

    EXPECT_TRUE(workbench.rename("main", "third"));

    EXPECT_EQ(listener.propertyErrorCount(), 0U);
    EXPECT_THAT(listener.heard, ElementsAre("state third.speed"));
}

} // namespace
