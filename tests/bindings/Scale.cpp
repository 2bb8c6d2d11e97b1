// Many properties, many subscribers, deep trees and long lists.
#include "TestController.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <random>
#include <vector>

namespace corvane::workbench::bindings::test {
namespace {

const PropertyKey kOwn;
const PropertyKey kRows;

// A property owner that can be in error and can hold rows, visible or not.
class Node : public PropertyController {
public:
    bool good = true;
    bool visible = true;
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> rows;

    void setGood(bool value) {
        good = value;
        publish(kOwn, Action::Update, 0);
    }
    void setVisible(bool value) {
        visible = value;
        publishVisibility(kRows);
    }
    Node& addRow() {
        rows.push_back(std::make_unique<Node>());
        rows.back()->parent = this;
        rows.back()->setEnclosingPropertyContainer(list_, {});
        return *rows.back();
    }
    void removeRow(std::size_t index) {
        const std::unique_ptr<Node> row = std::move(rows[index]);
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(index));
        row->resetEnclosingPropertyContainer({});
    }
    /// What changes below an invisible property climbs all the same; its owner has to say so.
    void reportHiddenChanges() {
        for (Node* node = this; node != nullptr; node = node->parent) {
            if (!node->visible) {
                node->subPropertyContainerListChanged({});
            }
        }
    }
    /// The count from scratch, without anything that the library keeps.
    [[nodiscard]] std::uint64_t recount() const {
        std::uint64_t count = good ? 0 : 1;
        if (visible) {
            for (const auto& row : rows) {
                count += row->recount();
            }
        }
        return count;
    }

private:
    class List : public PropertyContainer {
    public:
        explicit List(Node& node) : node_(node) {}

    private:
        void forEachSubPropertyContainer(
            const utils::core::function_ref<void(PropertyContainer&)>& callback, bool) override {
            for (const auto& row : node_.rows) {
                callback(*row);
            }
        }
        void forEachLocalCrossReference(
            const utils::core::function_ref<void(CrossReferenceController&)>&, bool) override {}
        std::uint64_t localPropertyErrorCount() const override { return 0; }
        void propertyNotificationRaised(const PropertyId&) override {}

        Node& node_;
    };

    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kOwn, {.state = [this] { return successIf(good); }});
        context.configure(kRows, {.visibility = [this] { return visible; }},
                          {.subPropertyContainer = &list_});
    }

    List list_{*this};
};

TEST(Scale, CountsClimbThroughATreeTwoHundredDeep) {
    Node root;
    Node* deepest = &root;
    for (int depth = 0; depth < 200; ++depth) {
        deepest = &deepest->addRow();
    }
    EXPECT_EQ(root.propertyErrorCount(), 0U);
    deepest->setGood(false);
    EXPECT_EQ(root.propertyErrorCount(), 1U);
    root.rows.front()->setVisible(false);
    EXPECT_EQ(root.propertyErrorCount(), 0U);
}

TEST(Scale, AListOfTenThousandRowsIsCounted) {
    Node root;
    static_cast<void>(root.propertyErrorCount());
    for (int row = 0; row < 10'000; ++row) {
        root.addRow();
    }
    for (std::size_t row = 0; row < root.rows.size(); row += 100) {
        root.rows[row]->setGood(false);
    }
    EXPECT_EQ(root.propertyErrorCount(), 100U);
    root.setVisible(false);
    EXPECT_EQ(root.propertyErrorCount(), 0U);
    root.setVisible(true);
    EXPECT_EQ(root.propertyErrorCount(), 100U);
}

TEST(Scale, CountsAreRightAfterAHundredThousandRandomOperations) {
    Node root;
    std::vector<Node*> nodes{&root};
    std::mt19937 random(20'240'506); // NOLINT: the same run each time
    const auto below = [&](std::size_t end) { return random() % end; };
    static_cast<void>(root.propertyErrorCount());

    for (int operation = 0; operation < 100'000; ++operation) {
        Node& node = *nodes[below(nodes.size())];
        switch (below(8)) {
        case 0:
            if (nodes.size() < 200) {
                nodes.push_back(&node.addRow());
            }
            break;
        case 1:
            if (!node.rows.empty()) {
                const std::size_t index = below(node.rows.size());
                if (node.rows[index]->rows.empty()) {
                    std::erase(nodes, node.rows[index].get());
                    node.removeRow(index);
                }
            }
            break;
        case 2:
        case 3:
            node.setVisible(!node.visible);
            break;
        default:
            node.setGood(!node.good);
            break;
        }
        node.reportHiddenChanges();
        if (operation % 100 == 0) {
            ASSERT_EQ(root.propertyErrorCount(), root.recount()) << "operation " << operation;
        }
    }
    for (const Node* node : nodes) {
        ASSERT_EQ(node->propertyErrorCount(), node->recount());
    }
}

// The least time of several runs, which is the one that was disturbed least.
template <class Function>
std::chrono::nanoseconds leastTime(Function&& function) {
    auto least = std::chrono::nanoseconds::max();
    for (int run = 0; run < 15; ++run) {
        const auto start = std::chrono::steady_clock::now();
        for (int repetition = 0; repetition < 2'000; ++repetition) {
            function();
        }
        least = std::min<std::chrono::nanoseconds>(least, std::chrono::steady_clock::now() - start);
    }
    return least;
}

TEST(Scale, APublicationCostsTheSameAfterAThousandSubscriptionsCameAndWent) {
    const auto costAfter = [](int subscriptions) {
        TestController controller;
        int called = 0;
        const auto stays = controller.subscribe(kOwn, {.value = [&] { ++called; }});
        for (int i = 0; i < subscriptions; ++i) {
            const auto goes = controller.subscribe(kOwn, {.value = [&] { ++called; }});
        }
        return leastTime([&] { controller.publishValue(kOwn, Action::Update, 0); });
    };
    EXPECT_LT(costAfter(1'000), costAfter(0) * 3);
}

TEST(Scale, LookingAPropertyUpDoesNotDependOnHowManyThereAre) {
    const auto costAmong = [](std::size_t count) {
        const std::vector<PropertyKey> keys(count);
        TestController controller([&](TestController::Context& context) {
            for (const PropertyKey& key : keys) {
                context.configure(key, {});
            }
        });
        std::size_t next = 0;
        return leastTime([&] {
            // Few enough of them to stay in the cache, so that it is the table that is measured.
            next = (next + 1) % 16;
            static_cast<void>(controller.propertyVisible(keys[next * (count / 16)]));
        });
    };
    EXPECT_LT(costAmong(16'000), costAmong(16) * 6);
}

} // namespace
} // namespace corvane::workbench::bindings::test
