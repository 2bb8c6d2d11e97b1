// Plays bytes as operations on a tree of property owners, from inside callbacks as well as from
// outside, and compares every error count with one made from scratch.
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace corvane::workbench::bindings;

const PropertyKey kOwn;
const PropertyKey kChildren;
const PropertyKey kExtra;

class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}
    [[nodiscard]] bool empty() const { return next_ == end_; }
    std::size_t below(std::size_t limit) { return empty() ? 0 : *next_++ % limit; }

private:
    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

class Node : public PropertyController {
public:
    bool good = true;
    bool visible = true;
    Node* child = nullptr;
    std::vector<Subscription> subscriptions;
    std::vector<ErrorCountSubscription> counts;

    [[nodiscard]] std::uint64_t recount() const {
        return (good ? 0U : 1U) + (child != nullptr && visible ? child->recount() : 0U);
    }
    void report() { subPropertyContainerListChanged({}); }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kOwn, {.state = [this]() -> PropertyState {
                              if (good) {
                                  return {};
                              }
                              return tl::unexpected<std::wstring>(L"wrong");
                          }});
        context.configure(kChildren,
                          {.valueDependencies = {kOwn}, .visibility = [this] { return visible; }},
                          {.subPropertyContainer = child});
    }
};

class Scene {
public:
    explicit Scene(Input& input) : input_(input) {
        for (std::size_t i = 0; i + 1 < nodes_.size(); ++i) {
            nodes_[i].child = &nodes_[i + 1];
        }
    }

    void step() {
        Node& node = nodes_[input_.below(nodes_.size())];
        switch (input_.below(12)) {
        case 0:
            node.good = !node.good;
            node.publish(kOwn, Action::Update, 0);
            break;
        case 1:
            node.good = !node.good;
            node.publishState(kOwn);
            break;
        case 2:
            node.visible = !node.visible;
            node.publishVisibility(kChildren);
            break;
        case 3:
            node.publishValue(kOwn, Action::Move, 1);
            break;
        case 4:
        case 5:
            node.subscriptions.push_back(node.subscribe(
                input_.below(2) == 0 ? kOwn : kExtra,
                {.value = callback(), .state = callback(), .visibility = callback()}));
            break;
        case 6:
            node.counts.push_back(node.subscribeToPropertyErrorCount(callback()));
            break;
        case 7:
            if (!node.subscriptions.empty()) {
                node.subscriptions[input_.below(node.subscriptions.size())].reset();
            }
            break;
        case 8:
            if (!node.counts.empty()) {
                node.counts[input_.below(node.counts.size())].reset();
            }
            break;
        case 9:
            static_cast<void>(node.propertyErrorCount());
            break;
        case 10:
            node.publishValue(kExtra, Action::Insert, 2);
            break;
        case 11:
            if (depth_ > 0 && input_.below(4) == 0) {
                throw std::runtime_error("from a callback");
            }
            break;
        }
    }

    void check() {
        // What changed below an invisible property has to be reported by its owner.
        for (auto node = nodes_.rbegin(); node != nodes_.rend(); ++node) {
            node->publish(kOwn, Action::Update, 0);
            node->publishVisibility(kChildren);
        }
        for (auto node = nodes_.rbegin(); node != nodes_.rend(); ++node) {
            node->report();
        }
        for (const Node& node : nodes_) {
            if (node.propertyErrorCount() != node.recount()) {
                std::abort();
            }
        }
    }

    void endSubscriptions() {
        for (Node& node : nodes_) {
            node.subscriptions.clear();
            node.counts.clear();
        }
    }

private:
    std::function<void()> callback() {
        return [this] {
            if (depth_ < 3 && !input_.empty()) {
                const Depth depth(depth_);
                step();
            }
        };
    }

    class Depth {
    public:
        explicit Depth(int& depth) : depth_(depth) { ++depth_; }
        Depth(const Depth&) = delete;
        Depth& operator=(const Depth&) = delete;
        ~Depth() { --depth_; }

    private:
        int& depth_;
    };

    Input& input_;
    int depth_ = 0;
    std::vector<Node> nodes_ = std::vector<Node>(4);
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, std::min<std::size_t>(size, 400));
    Scene scene(input);
    while (!input.empty()) {
        try {
            scene.step();
        } catch (const std::runtime_error&) { // NOLINT: a callback threw, as it may
        }
    }
    scene.endSubscriptions();
    scene.check();
    return 0;
}
