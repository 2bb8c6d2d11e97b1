#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace corvane::bench {

/// Something that subscribers listen to. Each is told a kind of change and an index.
class Subject {
public:
    Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    virtual ~Subject() = default;

    /// Calls every subscriber, that many times.
    virtual void publish(std::size_t times) = 0;

    /// Adds a subscriber behind the others and removes it, that many times.
    virtual void subscribeAndReset(std::size_t times) = 0;
};

/// A way to call subscribers under comparison. Each has a source file of its own, in which it
/// enters itself into the list as it is constructed; meant for static objects.
class Peer {
public:
    /// Makes a subject whose subscribers each count their calls in `calls`.
    using MakeSubject = std::unique_ptr<Subject> (*)(std::size_t subscribers, std::size_t& calls);

    Peer(std::string_view peerName, MakeSubject makeSubject);
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    [[nodiscard]] std::string_view name() const noexcept { return name_; }
    [[nodiscard]] std::unique_ptr<Subject> subject(std::size_t subscribers,
                                                   std::size_t& calls) const {
        return makeSubject_(subscribers, calls);
    }

    /// Those that were compiled in.
    [[nodiscard]] static const std::vector<const Peer*>& all();

private:
    std::string_view name_;
    MakeSubject makeSubject_;
};

/// For the list of peers: makes a subject of one class.
template <class SomeSubject>
[[nodiscard]] std::unique_ptr<Subject> makeSubject(std::size_t subscribers, std::size_t& calls) {
    return std::make_unique<SomeSubject>(subscribers, calls);
}

} // namespace corvane::bench
