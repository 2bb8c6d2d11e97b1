#pragma once

#include <stdexcept>

namespace corvane::workbench::testing {

/// What a bench throws when a skill or the workbench refuses an edit that a test expects to be
/// done. The text is the reason, and names what was to be edited.
class Refused final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace corvane::workbench::testing
