#pragma once

#include <corvane/workbench/export.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::process {

/// Describes a task of an element: something that it can be made to do.
///
/// A plain value. The predefined task is a constant of the library and ready before the code of any
/// skill runs.
class CORVANE_WORKBENCH_EXPORT Task {
public:
    static const Task kReconnect; ///< "reconnect"

    /// `name` is UTF-8 and is the name by which reference keys name the task.
    explicit Task(std::string&& name) noexcept;

    /// Copied and moved as a plain value.
    /// @{
    Task(const Task& other);
    Task(Task&& other) noexcept;
    Task& operator=(const Task& other);
    Task& operator=(Task&& other) noexcept;
    /// @}

    ~Task();

    /// Valid as long as the task.
    [[nodiscard]] std::string_view name() const noexcept;

    /// Compares the names.
    friend bool operator==(const Task&, const Task&) = default;

private:
    std::string name_;
};

} // namespace corvane::workbench::process
