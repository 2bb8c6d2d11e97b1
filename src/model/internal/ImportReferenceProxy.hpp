#pragma once

#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>
#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

namespace corvane::workbench::model::internal {

/// The proxy of every reference that comes from an imported configuration: it stands for no element
/// and keeps no registrations. There is one instance in the process.
class ElementReferenceData::ImportReferenceProxy final : public AbstractCrossReferenceProxy {
public:
    static constexpr std::string_view kPrefix = ".import:";

    ~ImportReferenceProxy() override;
    [[nodiscard]] tl::expected<std::reference_wrapper<Element>, std::wstring>
    element() const override;
    [[nodiscard]] std::size_t referenceCount() const override;
    [[nodiscard]] Attachment* attach(BasicElementReference& reference) override;
    void detach(Attachment* token) noexcept override;
    [[nodiscard]] std::string primaryKey() const override;
    void save(utils::json::encoder::Value& value, std::string_view suffix,
              std::optional<std::string_view> memberName) const override;
};

} // namespace corvane::workbench::model::internal
