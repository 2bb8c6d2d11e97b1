#include "Peer.hpp"

#include <sigc++/sigc++.h>

namespace corvane::bench {
namespace {

class SigcSubject final : public Subject {
public:
    SigcSubject(std::size_t subscribers, std::size_t& calls) : calls_(calls) {
        while (connections_.size() < subscribers) {
            connections_.push_back(subscribe());
        }
    }

    void publish(std::size_t times) override {
        for (std::size_t index = 0; index < times; ++index) {
            signal_.emit(0, index);
        }
    }

    void subscribeAndReset(std::size_t times) override {
        for (std::size_t time = 0; time < times; ++time) {
            subscribe().disconnect();
        }
    }

private:
    sigc::connection subscribe() {
        return signal_.connect([this](int, std::size_t) { ++calls_; });
    }

    std::size_t& calls_;
    sigc::signal<void(int, std::size_t)> signal_;
    std::vector<sigc::connection> connections_;
};

const Peer kPeer("libsigc++", makeSubject<SigcSubject>);

} // namespace
} // namespace corvane::bench
