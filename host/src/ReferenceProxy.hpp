#pragma once

#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>

#include <cstddef>
#include <list>
#include <string>

namespace corvane::workbench::host {

class ElementNode;
class ReferenceUpdates;

/// What references to one element of the tree point at. It knows the element as long as that lives,
/// and every registered reference. References share its ownership; the element knows it without
/// owning it, so that it ends with the last reference.
class ReferenceProxy final : public model::internal::AbstractCrossReferenceProxy {
public:
    struct Registration : Attachment {
        std::list<Registration>::iterator position;
        /// The updates that this registration takes part in, and where; null for none.
        ReferenceUpdates* updates = nullptr;
        std::size_t updateIndex = 0;
    };

    explicit ReferenceProxy(ElementNode& node) noexcept : node_(&node) {}
    ReferenceProxy(const ReferenceProxy&) = delete;
    ReferenceProxy& operator=(const ReferenceProxy&) = delete;
    ~ReferenceProxy() override = default;

    /// The element, or null after it has ended.
    [[nodiscard]] ElementNode* node() const noexcept { return node_; }
    /// The element is about to end; its last key stays.
    void retire(std::string lastKey) noexcept;

    /// Oldest first.
    [[nodiscard]] std::list<Registration>& registrations() noexcept { return registrations_; }

    [[nodiscard]] tl::expected<std::reference_wrapper<model::Element>, std::wstring>
    element() const override;
    [[nodiscard]] std::size_t referenceCount() const override { return registrations_.size(); }
    [[nodiscard]] Attachment* attach(model::internal::BasicElementReference& reference) override;
    void detach(Attachment* token) noexcept override;
    [[nodiscard]] std::string primaryKey() const override;
    void save(utils::json::encoder::Value& value, std::string_view suffix,
              std::optional<std::string_view> memberName) const override;

private:
    ElementNode* node_;
    std::string lastKey_;
    std::list<Registration> registrations_;
};

} // namespace corvane::workbench::host
