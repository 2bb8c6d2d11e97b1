#pragma once

#include <corvane/workbench/kit/Form.hpp>

namespace corvane::workbench::kit::internal {

/// Gives a new element or row its initial values; the settings take them as they are described.
class InitialForm final : public Form {
public:
    explicit InitialForm(const Subject& subject) : Form(subject, Purpose::MakeDefault) {}

    void makeDefault() { fillIn(); }

private:
    void take(Description& /*description*/) override {}
};

} // namespace corvane::workbench::kit::internal
