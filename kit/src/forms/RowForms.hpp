#pragma once

// What is asked of the descriptions of rows and of lists of them.

#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace corvane::workbench::kit {
class Row;
}

namespace corvane::workbench::kit::internal {

/// The name under which the user sees a row.
class NameForm final : public Form {
public:
    explicit NameForm(const Subject& subject) : Form(subject, Purpose::Name) {}

    [[nodiscard]] std::wstring name();

private:
    void take(Description& description) override;

    Field first_;
    std::function<std::wstring()> name_;
};

/// What a list proposes for a new row.
class ProposingForm final : public Form {
public:
    ProposingForm(const Subject& subject, const RowList& rows)
        : Form(subject, Purpose::Propose), rows_(rows) {}

    void propose(Row& row, std::size_t index);

private:
    void take(Description& description) override;

    const RowList& rows_;
    std::function<void(Row&, std::size_t)> proposal_;
};

/// Computes the states of all settings of a row anew.
class RecheckingForm final : public Form {
public:
    explicit RecheckingForm(const Subject& subject) : Form(subject, Purpose::Recheck) {}

    void recheck();

private:
    void take(Description& description) override;

    std::vector<bindings::PropertyId> properties_;
};

} // namespace corvane::workbench::kit::internal
