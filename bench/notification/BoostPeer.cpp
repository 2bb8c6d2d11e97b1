#include "Peer.hpp"

#include <boost/signals2.hpp>

namespace corvane::bench {
namespace {

/// Without locks, which nobody else has either.
using Signal = boost::signals2::signal_type<
    void(int, std::size_t),
    boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type;

class BoostSubject final : public Subject {
public:
    BoostSubject(std::size_t subscribers, std::size_t& calls) : calls_(calls) {
        while (connections_.size() < subscribers) {
            connections_.push_back(subscribe());
        }
    }

    void publish(std::size_t times) override {
        for (std::size_t index = 0; index < times; ++index) {
            signal_(0, index);
        }
    }

    void subscribeAndReset(std::size_t times) override {
        for (std::size_t time = 0; time < times; ++time) {
            subscribe().disconnect();
        }
    }

private:
    boost::signals2::connection subscribe() {
        return signal_.connect([this](int, std::size_t) { ++calls_; });
    }

    std::size_t& calls_;
    Signal signal_;
    std::vector<boost::signals2::connection> connections_;
};

const Peer kPeer("Boost.Signals2", makeSubject<BoostSubject>);

} // namespace
} // namespace corvane::bench
