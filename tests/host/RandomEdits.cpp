// Random edits on a big tree. References are compared with what their key text means when it is
// read from scratch by code of this test's own: those that were told of an edit after each one, and
// all of them every now and then, because all of them after each edit would take hours.

#include "WorkbenchFixture.hpp"

#include <map>
#include <random>
#include <set>

namespace {

using corvane::tests::TestPoint;
using corvane::tests::TestRow;
using corvane::tests::WorkbenchTest;
using corvane::utils::string::toUtf8;
namespace host = corvane::workbench::host;
namespace model = corvane::workbench::model;
using model::internal::BasicElementReference;

// A build with assertions (and so, usually, sanitizers) makes fewer edits.
#ifdef NDEBUG
constexpr int kEdits = 100'000;
constexpr int kElements = 2'000;
constexpr int kReferences = 5'000;
constexpr int kCompareAllEvery = 50;
#else
constexpr int kEdits = 2'000;
constexpr int kElements = 300;
constexpr int kReferences = 750;
constexpr int kCompareAllEvery = 25;
#endif

/// Reads a key as its grammar says: components separated by dots, one in brackets up to its "]".
std::vector<std::string> components(const std::string& key) {
    std::vector<std::string> result;
    std::size_t at = 0;
    while (true) {
        std::size_t end = at;
        if (end < key.size() && key[end] == '[') {
            while (end < key.size() && key[end] != ']') {
                ++end;
            }
        }
        while (end < key.size() && key[end] != '.') {
            ++end;
        }
        result.push_back(key.substr(at, end - at));
        if (end == key.size()) {
            return result;
        }
        at = end + 1;
    }
}

/// The element that the components lead to by a walk over all children, or null and how far it
/// came.
struct NaiveResult {
    const host::ElementNode* reached;
    std::size_t steps;
};

NaiveResult naiveWalk(const host::ElementNode& root, const std::vector<std::string>& names,
                      std::size_t count) {
    const host::ElementNode* node = &root;
    for (std::size_t step = 0; step < count; ++step) {
        const host::ElementNode* next = nullptr;
        for (std::size_t index = 0; index < node->childCount(); ++index) {
            if (node->child(index).name() == names[step]) {
                next = &node->child(index);
            }
        }
        if (next == nullptr) {
            return {node, step};
        }
        node = next;
    }
    return {node, count};
}

/// Counts what is told of each reference.
class CountingObserver final : public host::Observer {
public:
    std::map<const BasicElementReference*, int> keyChanges;
    std::map<const BasicElementReference*, int> stateChanges;

    void clear() {
        keyChanges.clear();
        stateChanges.clear();
    }
    void referenceKeyChanged(const BasicElementReference& reference) override {
        ++keyChanges[&reference];
    }
    void referenceStateChanged(const BasicElementReference& reference) override {
        ++stateChanges[&reference];
    }
};

class RandomEdits : public WorkbenchTest {
protected:
    std::size_t pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    }
    /// Few names, so that edits and dangling keys meet.
    std::string randomName() {
        static constexpr std::string_view kNames[] = {"a", "b",   "c",     "[d.e]",
                                                      "f", "[g]", "value", "h i"};
        std::string name(kNames[pick(std::size(kNames))]);
        return pick(3) != 0 ? name
                            : (name.back() == ']' ? "[x" + std::to_string(pick(30)) + "]"
                                                  : name + std::to_string(pick(30)));
    }
    std::vector<host::ElementNode*> nodes() {
        std::vector<host::ElementNode*> result;
        collect(workbench.root(), result);
        return result;
    }
    std::string randomKey(const std::vector<host::ElementNode*>& all) {
        std::string key = all[pick(all.size())]->primaryKey();
        if (pick(4) == 0) {
            key += (key.empty() ? "" : ".") + randomName();
        }
        return key;
    }

    /// Expects that a reference means what its key means.
    void compare(const BasicElementReference& reference, bool isMember) {
        const std::string key = reference.data().primaryKey();
        std::vector<std::string> names = components(key);
        if (isMember) {
            ASSERT_TRUE(reference.data().memberName().has_value()) << key;
            ASSERT_EQ(names.back(), *reference.data().memberName());
            names.pop_back();
        }
        const NaiveResult naive = naiveWalk(workbench.root(), names, names.size());
        const auto element = reference.data().element();
        const bool whole = naive.steps == names.size();
        if (whole || naive.reached->category() == model::ElementCategory::CustomElement) {
            ASSERT_TRUE(element) << key;
            ASSERT_EQ(&element->get(), naive.reached) << key;
        } else if (naive.reached->isInvisibleRoot()) {
            ASSERT_EQ(toUtf8(element.error()), "the element “" + names[0] + "” does not exist");
        } else {
            ASSERT_EQ(toUtf8(element.error()), "the element “" + naive.reached->primaryKey() +
                                                   "” does not have a child named “" +
                                                   names[naive.steps] + "”");
        }
        ASSERT_EQ(reference.data().suffix().empty(), whole) << key;
        // What the property shows is what resolving says now.
        const auto* controller = reference.referringController();
        ASSERT_NE(controller, nullptr);
        const auto& state = controller->propertyState(reference.propertyId());
        const bool resolves =
            isMember ? element && dynamic_cast<const model::AttributeReference&>(reference)
                                      .attribute()
                                      .has_value()
                     : element.has_value();
        ASSERT_EQ(state.has_value(), resolves) << key;
    }

    /// Expects that every reference means what its key means, and is registered once.
    void compareAll() {
        std::set<const BasicElementReference*> held;
        std::map<const model::internal::AbstractCrossReferenceProxy*, std::size_t> counts;
        std::uint64_t errors = 0;
        const auto visit = [&](const BasicElementReference& reference, bool isMember) {
            if (reference.data().empty()) {
                return;
            }
            compare(reference, isMember);
            held.insert(&reference);
            ++counts[reference.data().proxy().get()];
        };
        for (host::ElementNode* node : nodes()) {
            if (auto* point = dynamic_cast<TestPoint*>(node->skillElement())) {
                visit(point->target, false);
                visit(point->attribute, true);
                for (const TestRow& row : point->list.rows) {
                    visit(row.target, false);
                    errors += row.propertyErrorCount();
                }
                errors += point->propertyState(point->target.propertyId()).has_value() ? 0U : 1U;
                errors += point->propertyState(point->attribute.propertyId()).has_value() ? 0U : 1U;
            }
        }
        for (const auto& [proxy, count] : counts) {
            ASSERT_EQ(proxy->referenceCount(), count);
        }
        std::size_t listed = 0;
        for (host::ElementNode* node : nodes()) {
            for (const host::ReferenceUse& use : workbench.referencesTo(*node)) {
                ASSERT_TRUE(held.contains(use.reference));
                ++listed;
            }
        }
        ASSERT_LE(listed, held.size());
        ASSERT_EQ(workbench.root().properties().propertyErrorCount(), errors);
    }

    void setRandomReference(const std::vector<host::ElementNode*>& all) {
        auto* point = dynamic_cast<TestPoint*>(all[pick(all.size())]->skillElement());
        if (point == nullptr) {
            return;
        }
        switch (pick(4)) {
        case 0:
            point->target = workbench.elementReferenceData(randomKey(all));
            point->target.updateValue();
            break;
        case 1:
            point->attribute = workbench.memberReferenceData(randomKey(all) + ".value");
            point->attribute.updateValue();
            break;
        case 2:
            point->list.change([&](std::vector<TestRow>& rows) {
                rows.emplace(rows.begin() + static_cast<std::ptrdiff_t>(pick(rows.size() + 1)));
                TestRow& row = rows[pick(rows.size())];
                row.target = workbench.elementReferenceData(randomKey(all));
            });
            break;
        default:
            point->list.change([&](std::vector<TestRow>& rows) {
                if (!rows.empty()) {
                    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(pick(rows.size())));
                }
            });
        }
    }

    std::mt19937 random{20'240'506};

private:
    void collect(host::ElementNode& node, std::vector<host::ElementNode*>& result) {
        for (std::size_t index = 0; index < node.childCount(); ++index) {
            result.push_back(&node.child(index));
            collect(node.child(index), result);
        }
    }
};

TEST_F(RandomEdits, KeepEveryReferenceWhereItsKeySays) {
    static constexpr std::string_view kClasses[] = {"point", "point", "point", "group", "custom"};
    const auto addOne = [&](const std::vector<host::ElementNode*>& all) {
        const std::string parent =
            all.empty() || pick(8) == 0 ? std::string() : all[pick(all.size())]->primaryKey();
        static_cast<void>(workbench.add(parent, kClasses[pick(std::size(kClasses))], randomName()));
    };
    for (int tries = 0; tries < kElements * 3 && workbench.elementCount() < kElements; ++tries) {
        addOne(nodes());
    }
    auto all = nodes();
    for (int count = 0; count < kReferences; ++count) {
        setRandomReference(all);
    }
    compareAll();

    CountingObserver told;
    workbench.addObserver(told);
    for (int edit = 0; edit < kEdits && !HasFatalFailure(); ++edit) {
        // A list of all elements for each edit would be most of the work.
        if (edit % 20 == 0) {
            all = nodes();
        }
        told.clear();
        host::ElementNode& node = *all[pick(all.size())];
        const std::string key = node.primaryKey();
        switch (pick(10)) {
        case 0:
        case 1:
        case 2:
            static_cast<void>(workbench.rename(key, randomName()));
            break;
        case 3:
        case 4:
            static_cast<void>(
                workbench.move(key, pick(6) == 0 ? "" : all[pick(all.size())]->primaryKey()));
            break;
        case 5:
            // Small subtrees, so that the tree keeps its size.
            if (node.childCount() == 0) {
                ASSERT_TRUE(workbench.remove(key));
                all = nodes();
            }
            break;
        case 6:
        case 7:
            if (workbench.elementCount() < kElements) {
                addOne(all);
            }
            break;
        default:
            setRandomReference(all);
        }
        for (const auto* changes : {&told.keyChanges, &told.stateChanges}) {
            for (const auto& [reference, count] : *changes) {
                ASSERT_EQ(count, 1);
                compare(*reference, reference->data().memberName().has_value());
            }
        }
        if (edit % kCompareAllEvery == 0) {
            compareAll();
        }
    }
    workbench.removeObserver(told);
    compareAll();

    // What was saved and is loaded again is the same tree with the same references.
    const std::string text = saved();
    EXPECT_TRUE(load(text).loaded);
    EXPECT_EQ(saved(), text);
    compareAll();
}

} // namespace
