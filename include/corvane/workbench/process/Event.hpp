#pragma once

#include <corvane/utils/core/Flags.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/io/Direction.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::process {

/// Describes an event of an element: something that happens there, to which others can react.
///
/// A plain value. The predefined events are constants of the library and ready before the code of
/// any skill runs.
class CORVANE_WORKBENCH_EXPORT Event {
public:
    static const Event kChanged;      ///< "changed"
    static const Event kConnected;    ///< "connected"
    static const Event kDisconnected; ///< "disconnected"

    /// `name` is UTF-8 and is the name by which reference keys name the event; `ioDirections` are
    /// the directions in which the event is relevant.
    Event(std::string&& name, utils::core::Flags<io::Direction> ioDirections) noexcept;

    /// Copied and moved as a plain value.
    /// @{
    Event(const Event& other);
    Event(Event&& other) noexcept;
    Event& operator=(const Event& other);
    Event& operator=(Event&& other) noexcept;
    /// @}

    ~Event();

    /// Valid as long as the event.
    [[nodiscard]] std::string_view name() const& noexcept;

    /// A temporary event gives up its name.
    [[nodiscard]] std::string&& name() && noexcept;

    /// The directions in which the event is relevant.
    [[nodiscard]] utils::core::Flags<io::Direction> ioDirections() const noexcept;

    /// Compares field by field.
    friend bool operator==(const Event&, const Event&) = default;

private:
    std::string name_;
    utils::core::Flags<io::Direction> ioDirections_;
};

} // namespace corvane::workbench::process
