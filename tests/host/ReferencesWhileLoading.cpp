// References that a skill does more with, while it loads, than hand over their keys.
#include "TestElementClass.hpp"
#include "WorkbenchFixture.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

#include <deque>
#include <memory>
#include <stdexcept>

namespace {

using corvane::tests::SingleClassSkill;
using corvane::tests::WorkbenchTest;
using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::host::LoadResult;
using corvane::workbench::model::ElementReference;
using testing::ElementsAre;
using testing::IsEmpty;
namespace bindings = corvane::workbench::bindings;
namespace config = corvane::workbench::config;
namespace decoder = corvane::utils::json::decoder;
namespace skill = corvane::workbench::skill;

const PropertyKey kHint;
const PropertyKey kRule;
const PropertyKey kRows;

/// A row with a reference, a hint that is shown only beside a reference, and a rule that wants the
/// reference to lead to an element.
class LinkedRow final : public skill::SubElement {
public:
    explicit LinkedRow(std::vector<std::string>& calls) : calls_(calls) {}

    ElementReference target;

    void listen() {
        subscription_ = subscribe(target.propertyId(), {.value = [this] { note("value"); },
                                                        .state = [this] { note("state"); }});
    }

    [[nodiscard]] std::wstring displayName() const override { return L"row"; }
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)>) override {}

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(target.propertyId(), {.state = [this] { return targetState(); }},
                          {.crossReferenceController = &target});
        context.configure(kHint, {.visibility = [this] { return static_cast<bool>(target); },
                                  .visibilityDependencies = {target.propertyId()}});
        context.configure(kRule, {.state = [this] { return ruleState(); },
                                  .stateDependencies = {target.propertyId()}});
    }

    [[nodiscard]] PropertyState targetState() const {
        if (!target) {
            return {};
        }
        if (target.primaryKey() == "trap") {
            throw std::runtime_error("it is a trap");
        }
        const auto element = target.element();
        return element ? PropertyState() : tl::unexpected(element.error());
    }
    [[nodiscard]] PropertyState ruleState() const {
        return target.element() ? PropertyState() : tl::unexpected(std::wstring(L"no element"));
    }

    void note(const std::string& what) { calls_.push_back(what + " " + target.primaryKey()); }

    std::vector<std::string>& calls_;
    Subscription subscription_;
};

/// Links each row when it is inserted, even while it is being loaded.
class LinkingList final : public bindings::PropertyContainer {
public:
    LinkingList() = default;
    LinkingList(const LinkingList& other) : PropertyContainer(other) {}
    LinkingList& operator=(const LinkingList&) = delete;
    ~LinkingList() override = default;

    LinkedRow& append() {
        LinkedRow& row = *rows.emplace_back(std::make_unique<LinkedRow>(calls));
        row.listen();
        row.setEnclosingPropertyContainer(*this, {});
        return row;
    }

    std::vector<std::string> calls;
    std::vector<std::unique_ptr<LinkedRow>> rows;

private:
    void forEachSubPropertyContainer(
        const corvane::utils::core::function_ref<void(PropertyContainer&)>& callback,
        bool /*includeInvisible*/) override {
        for (const auto& row : rows) {
            callback(*row);
        }
    }
    void forEachLocalCrossReference(
        const corvane::utils::core::function_ref<void(bindings::CrossReferenceController&)>&,
        bool /*includeInvisible*/) override {}
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const bindings::PropertyId&) override {}
};

class LinkingElement final : public skill::Element {
public:
    LinkingList list;

    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)>) override {}

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kRows, {}, {.subPropertyContainer = &list});
    }
    void load(decoder::Object& object, config::Context& context) override {
        for (const auto& [name, value] : object) {
            for (decoder::Value& key : value.asArray()) {
                context.resolve(config::Context::ReferenceKey(key), list.append().target);
            }
        }
    }
};

class RowsLinkedWhileLoading : public WorkbenchTest {
protected:
    RowsLinkedWhileLoading() {
        static const SingleClassSkill<LinkingElement> skill("linking", 50);
        EXPECT_TRUE(workbench.addSkill(skill));
    }
    [[nodiscard]] LinkingList& list() const {
        return dynamic_cast<LinkingElement&>(*workbench.findElement("a")->skillElement()).list;
    }
};

TEST_F(RowsLinkedWhileLoading, HaveTheStatesOfTheirResolvedReferences) {
    EXPECT_TRUE(load(R"({"children": [{"linking": {"name": "a", "rows": ["gone", "a", ""]}}]})"));

    const LinkedRow& unresolved = *list().rows[0];
    EXPECT_EQ(unresolved.propertyState(unresolved.target.propertyId()).error(),
              L"the element “gone” does not exist");
    EXPECT_FALSE(unresolved.propertyState(kRule));
    EXPECT_TRUE(unresolved.propertyVisible(kHint));
    const LinkedRow& resolved = *list().rows[1];
    EXPECT_TRUE(resolved.propertyState(resolved.target.propertyId()));
    EXPECT_TRUE(resolved.propertyState(kRule));
    EXPECT_TRUE(resolved.propertyVisible(kHint));
    const LinkedRow& empty = *list().rows[2];
    EXPECT_FALSE(empty.propertyState(kRule));
    EXPECT_FALSE(empty.propertyVisible(kHint));
}

TEST_F(RowsLinkedWhileLoading, CountTheErrorsOfTheirResolvedReferences) {
    EXPECT_TRUE(load(R"({"children": [{"linking": {"name": "a", "rows": ["gone", "a", ""]}}]})"));
    EXPECT_EQ(list().rows[0]->propertyErrorCount(), 2U);
    EXPECT_EQ(list().rows[1]->propertyErrorCount(), 0U);
    EXPECT_EQ(list().propertyErrorCount(), 3U);
    EXPECT_EQ(workbench.root().properties().propertyErrorCount(), 3U);
}

TEST_F(RowsLinkedWhileLoading, TellTheirSubscribersOnceAllReferencesAreResolved) {
    EXPECT_TRUE(load(R"({"children": [{"linking": {"name": "a", "rows": ["gone", "a"]}}]})"));
    EXPECT_THAT(list().calls, ElementsAre("value gone", "state gone", "value a"));
}

TEST_F(RowsLinkedWhileLoading, MakeAnElementFailWhoseStatesThrow) {
    constexpr std::string_view kText = R"({"children": [
{"linking": {"name": "a", "rows": ["trap"]}}]})";
    const std::string problem =
        "test.json:2:2: error: the element “a” cannot describe its properties: it is a trap";

    const LoadResult refused = load(kText);
    EXPECT_FALSE(refused.loaded);
    EXPECT_THAT(lines(refused), testing::Contains(problem));

    const LoadResult loaded = load(kText, {.keepGoing = true});
    EXPECT_TRUE(loaded.loaded);
    EXPECT_THAT(lines(loaded), testing::Contains(problem));
}

/// Makes its keys in all the ways there are.
class KeyReader final : public skill::Element {
public:
    void forEachEditableProperty(
        corvane::utils::core::function_ref<void(const skill::EditableProperty&)>) override {}

private:
    void load(decoder::Object& object, config::Context& context) override {
        using Key = config::Context::ReferenceKey;
        const auto resolve = [&](Key key) {
            context.resolve(std::move(key), references_.emplace_back());
        };
        for (const auto& [name, value] : object) {
            if (name == "title") {
                static_cast<void>(value.asString());
            } else if (name == "key") {
                resolve(Key(value));
            } else if (name == "rows") {
                for (decoder::Value& row : value.asArray()) {
                    for (const auto& [rowName, rowValue] : row.asObject()) {
                        if (rowName == "key") {
                            resolve(Key(rowValue));
                        }
                    }
                }
            } else if (name == "allReadFirst") {
                std::vector<Key> keys;
                for (decoder::Value& element : value.asArray()) {
                    keys.emplace_back(element);
                }
                for (Key& key : keys) {
                    resolve(std::move(key));
                }
            } else if (name == "byName") {
                for (const auto& [rowName, rowValue] : value.asObject()) {
                    resolve(Key(rowName));
                }
            } else if (name == "composed") {
                resolve(Key(std::string(value.asString().view()) + ".x", value.location()));
            } else if (name == "fromNowhere") {
                resolve(Key(value.asString().view(), config::kWithoutLocation));
            }
        }
    }

    // A deque does not move them.
    std::deque<ElementReference> references_;
};

class PlacesOfKeys : public WorkbenchTest {
protected:
    PlacesOfKeys() {
        static const SingleClassSkill<KeyReader> skill("reader", 51);
        EXPECT_TRUE(workbench.addSkill(skill));
    }

    /// The lines of the problems of an element that has these members from line 2 on.
    std::vector<std::uint64_t> problemLines(std::string_view members) {
        const LoadResult result = load("{\"children\": [{\"reader\": {\"name\": \"a\",\n" +
                                       std::string(members) + "}}]}");
        EXPECT_TRUE(result.loaded);
        std::vector<std::uint64_t> found;
        for (const auto& problem : result.problems) {
            found.push_back(problem.line);
        }
        return found;
    }
};

TEST_F(PlacesOfKeys, AreNotThoseOfTheSameTextInAnotherMember) {
    EXPECT_THAT(problemLines("\"title\": \"gone\",\n\"key\": \"gone\""), ElementsAre(3U));
    EXPECT_THAT(problemLines("\"key\": \"gone\",\n\"title\": \"gone\""), ElementsAre(2U));
}

TEST_F(PlacesOfKeys, AreNotThoseOfTheSameTextInTheSameRow) {
    EXPECT_THAT(problemLines("\"rows\": [\n{\"note\": \"gone\",\n\"key\": \"gone\"},\n"
                             "{\"note\": \"gone\",\n\"key\": \"gone\"}]"),
                ElementsAre(4U, 6U));
}

TEST_F(PlacesOfKeys, AreInTheOrderOfReadingWhenAllAreReadFirst) {
    EXPECT_THAT(problemLines("\"allReadFirst\": [\n\"gone\",\n\"lost\",\n\"gone\"]"),
                ElementsAre(3U, 4U, 5U));
}

TEST_F(PlacesOfKeys, AreThoseOfMemberNames) {
    EXPECT_THAT(problemLines("\"byName\": {\n\"gone\": \"lost\",\n\"lost\": 1}"),
                ElementsAre(3U, 4U));
}

TEST_F(PlacesOfKeys, AreWhatTheSkillSaysOfAComposedKey) {
    EXPECT_THAT(problemLines("\"title\": \"gone.x\",\n\"composed\":\n\"gone\""), ElementsAre(4U));
}

TEST_F(PlacesOfKeys, AreThatOfTheElementForKeysOfNoFile) {
    EXPECT_THAT(problemLines("\"title\": \"gone\",\n\"fromNowhere\": \"gone\""), ElementsAre(1U));
}

TEST_F(PlacesOfKeys, AreKeptApartFromElementToElement) {
    const LoadResult result = load("{\"children\": [\n{\"reader\": {\"name\": \"a\", \"key\": "
                                   "\"gone\"}},\n{\"reader\": {\"name\": \"b\", \"key\": "
                                   "\"gone\"}}]}");
    ASSERT_EQ(result.problems.size(), 2U);
    EXPECT_EQ(result.problems[0].line, 2U);
    EXPECT_EQ(result.problems[1].line, 3U);
}

} // namespace
