#pragma once

#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/model/internal/AbstractChildElementAccessor.hpp>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::model::internal {
class AbstractCrossReferenceProxy;
} // namespace corvane::workbench::model::internal

namespace corvane::tests {

class FakeChildren : public workbench::model::internal::AbstractChildElementAccessor {
public:
    std::vector<const workbench::model::Element*> elements;

    [[nodiscard]] std::size_t elementCount() const override;
    [[nodiscard]] const workbench::model::Element& elementAt(std::size_t index) const override;
};

/// An element whose answers are public fields and which writes down every question.
class FakeElement : public workbench::model::Element {
public:
    std::string elementName = "valve";
    std::string key = "plant.valve";
    utils::core::Uuid identifier;
    std::wstring typeText = L"Valve";
    workbench::model::ElementCategory elementCategory = workbench::model::ElementCategory::Device;
    bool invisibleRoot = false;
    const workbench::model::Element* ancestor = nullptr;
    bool descendent = false;
    std::vector<workbench::model::Attribute> attributeList;
    std::vector<workbench::process::Event> eventList;
    std::vector<workbench::process::Task> taskList;
    FakeChildren children;
    const workbench::model::Element* parent = nullptr;
    workbench::skill::Element* skillElement = nullptr;

    /// References to this element are made with this proxy and no suffix.
    std::shared_ptr<workbench::model::internal::AbstractCrossReferenceProxy> proxy;

    /// The virtual operations asked so far, with their arguments: "childElementImpl(pump)".
    mutable std::vector<std::string> calls;
    mutable const workbench::skill::Element::Class* askedClass = nullptr;
    mutable const workbench::model::Element* askedElement = nullptr;

    /// The questions since the last call of this.
    [[nodiscard]] std::vector<std::string> takeCalls() const;

    // The virtual operations of Element. They are public here for the test of their order.

    ~FakeElement() override;
    [[nodiscard]] utils::string::BasicStringView<char> nameImpl() const override;
    [[nodiscard]] std::string primaryKeyImpl() const override;
    [[nodiscard]] utils::core::Uuid uuidImpl() const override;
    [[nodiscard]] std::wstring typeImpl() const override;
    [[nodiscard]] workbench::model::ElementCategory categoryImpl() const override;
    [[nodiscard]] bool isInvisibleRootImpl() const override;
    [[nodiscard]] const workbench::model::Element*
    findAncestorImpl(const workbench::skill::Element::Class& elementClass) const override;
    [[nodiscard]] bool isDescendentOfImpl(const workbench::model::Element& other) const override;
    bool forEachAttributeImpl(
        const utils::core::function_ref<bool(const workbench::model::Attribute&)>& callback)
        const override;
    bool forEachEventImpl(
        const utils::core::function_ref<bool(const workbench::process::Event&)>& callback,
        bool forwardedFlag) const override;
    bool forEachTaskImpl(const utils::core::function_ref<bool(const workbench::process::Task&)>&
                             callback) const override;
    [[nodiscard]] workbench::model::ChildElementAccessor childElementsImpl() const override;
    [[nodiscard]] const workbench::model::Element*
    childElementImpl(std::string_view name) const override;
    [[nodiscard]] const workbench::model::Element* parentElementImpl() const override;
    [[nodiscard]] workbench::skill::Element* skillElementImpl() const override;
    [[nodiscard]] workbench::model::internal::ElementReferenceData
    referenceDataImpl(std::optional<std::string> memberName) const override;
};

} // namespace corvane::tests
