#include "Peer.hpp"
#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>

namespace corvane::bench {
namespace {

using namespace workbench::bindings;

const PropertyKey kName;
const PropertyKey kSpeed;

class Controller final : public PropertyController {
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kName, {});
        context.configure(kSpeed, {.state = [] { return PropertyState(); }});
    }
};

class CorvaneSubject final : public Subject {
public:
    CorvaneSubject(std::size_t subscribers, std::size_t& calls) : calls_(calls) {
        static_cast<void>(controller_.propertyVisible(kSpeed));
        while (subscriptions_.size() < subscribers) {
            subscriptions_.push_back(subscribe());
        }
    }

    void publish(std::size_t times) override {
        for (std::size_t index = 0; index < times; ++index) {
            controller_.publishValue(kSpeed, Action::Update, index);
        }
    }

    void subscribeAndReset(std::size_t times) override {
        for (std::size_t time = 0; time < times; ++time) {
            subscribe().reset();
        }
    }

private:
    PropertyController::Subscription subscribe() {
        return controller_.subscribe(kSpeed, {.value = [this](Action, std::size_t) { ++calls_; }});
    }

    std::size_t& calls_;
    Controller controller_;
    std::vector<PropertyController::Subscription> subscriptions_;
};

const Peer kPeer("corvane", makeSubject<CorvaneSubject>);

} // namespace
} // namespace corvane::bench
