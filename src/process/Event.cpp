#include <corvane/workbench/process/Event.hpp>

#include <utility>

namespace corvane::workbench::process {

const Event Event::kChanged("changed", io::Direction::Read);
const Event Event::kConnected("connected", {});
const Event Event::kDisconnected("disconnected", {});

Event::Event(std::string&& name, utils::core::Flags<io::Direction> ioDirections) noexcept
    : name_(std::move(name)), ioDirections_(ioDirections) {}

Event::Event(const Event& other) = default;
Event::Event(Event&& other) noexcept = default;
Event& Event::operator=(const Event& other) = default;
Event& Event::operator=(Event&& other) noexcept = default;
Event::~Event() = default;

std::string_view Event::name() const& noexcept {
    return name_;
}

std::string&& Event::name() && noexcept {
    return std::move(name_);
}

utils::core::Flags<io::Direction> Event::ioDirections() const noexcept {
    return ioDirections_;
}

} // namespace corvane::workbench::process
