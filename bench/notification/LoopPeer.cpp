#include "Peer.hpp"

#include <functional>

namespace corvane::bench {
namespace {

/// No library: a vector of functions and a loop.
class LoopSubject final : public Subject {
public:
    LoopSubject(std::size_t subscribers, std::size_t& calls) : calls_(calls) {
        while (functions_.size() < subscribers) {
            subscribe();
        }
    }

    void publish(std::size_t times) override {
        for (std::size_t index = 0; index < times; ++index) {
            for (const auto& function : functions_) {
                function(0, index);
            }
        }
    }

    void subscribeAndReset(std::size_t times) override {
        for (std::size_t time = 0; time < times; ++time) {
            subscribe();
            functions_.pop_back();
        }
    }

private:
    void subscribe() {
        functions_.emplace_back([this](int, std::size_t) { ++calls_; });
    }

    std::size_t& calls_;
    std::vector<std::function<void(int, std::size_t)>> functions_;
};

const Peer kPeer("bare loop", makeSubject<LoopSubject>);

} // namespace
} // namespace corvane::bench
