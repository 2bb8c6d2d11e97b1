#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/host/ElementProperties.hpp>
#include <corvane/workbench/json/Value.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/model/internal/AbstractChildElementAccessor.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/internal/AbstractElementSupervisor.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace corvane::workbench::host {

class ElementTree;
class ReferenceProxy;

/// One element of the workbench's tree: its name, identity and place, its children, and the skill
/// element, which it owns. Nodes are made, changed and destroyed by their workbench alone and keep
/// their addresses as long as they live; everybody else reads. The root is a node of its own:
/// invisible, without name, class and skill element, and alive as long as the workbench.
class ElementNode final : public model::Element,
                          private model::internal::AbstractChildElementAccessor,
                          private skill::internal::AbstractElementSupervisor {
public:
    /// The root of a tree.
    explicit ElementNode(ElementTree& tree);
    /// An element outside any tree. Attaches the skill element to itself.
    ElementNode(const skill::Element::Class& elementClass,
                std::unique_ptr<skill::Element> skillElement, std::string name,
                const utils::core::Uuid& uuid);
    ElementNode(const ElementNode&) = delete;
    ElementNode& operator=(const ElementNode&) = delete;
    ~ElementNode() override;

    /// The element's class. Precondition: not the root.
    [[nodiscard]] const skill::Element::Class& elementClass() const override;
    /// Null for the root.
    [[nodiscard]] skill::Element* skillElement() const noexcept { return skillElement_.get(); }

    [[nodiscard]] ElementNode* parent() const noexcept { return parent_; }
    [[nodiscard]] std::size_t childCount() const noexcept { return children_.size(); }
    /// Precondition: index < childCount().
    [[nodiscard]] ElementNode& child(std::size_t index) const { return *children_[index]; }
    /// The child of that name, or null; does not depend on how many children there are.
    [[nodiscard]] ElementNode* findChild(std::string_view name) const;
    /// How many levels below the root: 0 for the root.
    [[nodiscard]] std::size_t depth() const noexcept;

    /// Counts the invalid properties of the element and of everything below it:
    /// `properties().propertyErrorCount()`. Subscriptions must end before the element does.
    [[nodiscard]] ElementProperties& properties() noexcept { return properties_; }
    [[nodiscard]] const ElementProperties& properties() const noexcept { return properties_; }

    /// Where the element's class is named in the file it was loaded from; 0 when it was not loaded.
    [[nodiscard]] std::uint64_t line() const noexcept { return line_; }
    [[nodiscard]] std::uint64_t column() const noexcept { return column_; }

    /// The element's access-control list, kept as it was in the file.
    [[nodiscard]] const std::optional<json::Value>& accessControl() const noexcept {
        return accessControl_;
    }

private:
    friend class ConfigurationReader;
    friend class ElementTree;

    // model::Element
    [[nodiscard]] utils::string::BasicStringView<char> nameImpl() const override;
    [[nodiscard]] std::string primaryKeyImpl() const override;
    [[nodiscard]] utils::core::Uuid uuidImpl() const override;
    [[nodiscard]] std::wstring typeImpl() const override;
    [[nodiscard]] model::ElementCategory categoryImpl() const override;
    [[nodiscard]] bool isInvisibleRootImpl() const override;
    [[nodiscard]] const model::Element*
    findAncestorImpl(const skill::Element::Class& elementClass) const override;
    [[nodiscard]] bool isDescendentOfImpl(const model::Element& other) const override;
    bool forEachAttributeImpl(
        const utils::core::function_ref<bool(const model::Attribute&)>& callback) const override;
    bool forEachEventImpl(const utils::core::function_ref<bool(const process::Event&)>& callback,
                          bool forwardedFlag) const override;
    bool forEachTaskImpl(
        const utils::core::function_ref<bool(const process::Task&)>& callback) const override;
    [[nodiscard]] model::ChildElementAccessor childElementsImpl() const override;
    [[nodiscard]] const model::Element* childElementImpl(std::string_view name) const override;
    [[nodiscard]] const model::Element* parentElementImpl() const override;
    [[nodiscard]] skill::Element* skillElementImpl() const override;
    [[nodiscard]] model::internal::ElementReferenceData
    referenceDataImpl(std::optional<std::string> memberName) const override;

    // model::internal::AbstractChildElementAccessor
    [[nodiscard]] std::size_t elementCount() const override;
    [[nodiscard]] const model::Element& elementAt(std::size_t index) const override;

    // skill::internal::AbstractElementSupervisor
    [[nodiscard]] const model::Element& element() const override;
    void publishElementMembers() override;

    /// The proxy through which references point here, made when there is none.
    [[nodiscard]] std::shared_ptr<ReferenceProxy> proxy() const;
    /// The proxy if there is one.
    [[nodiscard]] std::shared_ptr<ReferenceProxy> existingProxy() const noexcept;

    void insertChild(std::unique_ptr<ElementNode> child);
    [[nodiscard]] std::unique_ptr<ElementNode> extractChild(ElementNode& child);
    void renameChild(ElementNode& child, std::string name);

    ElementTree* tree_ = nullptr; // of the root only
    const skill::Element::Class* elementClass_ = nullptr;
    ElementNode* parent_ = nullptr;
    std::string name_;
    utils::core::Uuid uuid_;
    std::uint64_t line_ = 0;
    std::uint64_t column_ = 0;
    std::optional<json::Value> accessControl_;
    std::vector<std::unique_ptr<ElementNode>> children_;
    // The names are views of the children's own; empty while there are few children.
    std::unordered_map<std::string_view, ElementNode*> childrenByName_;
    mutable std::weak_ptr<ReferenceProxy> proxy_;
    ElementProperties properties_;
    std::unique_ptr<skill::Element> skillElement_;
};

} // namespace corvane::workbench::host
