#pragma once

#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::workbench::kit::internal {

/// Looks for mistakes in a description.
class CheckingForm final : public Form {
public:
    /// `place` is what the messages begin with.
    CheckingForm(const Subject& subject, std::string place)
        : Form(subject, Purpose::Check), place_(std::move(place)) {}

    /// Throws std::logic_error with a sentence for the first mistake.
    void check();

private:
    void take(Description& description) override;
    void takeWrittenAsValue() override;

    void takeSetting(const Description& description);
    void takeMember(const Description& description);
    void checkName(std::string_view name) const;
    void checkChoices(const Description& description) const;
    [[nodiscard]] bool isBeingChecked(const Row& row) const;
    void addDependencies(const std::string& name, const Description& description);
    [[noreturn]] void fail(const std::string& mistake) const;

    std::string place_;
    /// What has the list whose row this describes, or null.
    const CheckingForm* enclosing_ = nullptr;
    std::set<std::string, std::less<>> names_;
    std::set<bindings::PropertyId> properties_;
    /// By kind and name.
    std::set<std::pair<Description::Subject, std::string>> members_;
    /// Who depends on what.
    std::vector<std::pair<std::string, bindings::PropertyId>> dependencies_;
    std::size_t settingCount_ = 0;
    bool hasDisplayName_ = false;
    bool isWrittenAsValue_ = false;
};

} // namespace corvane::workbench::kit::internal
