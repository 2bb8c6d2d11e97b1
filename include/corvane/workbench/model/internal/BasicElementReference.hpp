#pragma once

#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>
#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>
#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

#include <memory>
#include <string_view>

namespace corvane::workbench::model::internal {

/// A live reference: it is registered with its proxy from construction or assignment until it ends,
/// and the registration follows it when it moves. Nothing here notifies by itself; the workbench
/// calls the update operations when the referenced element has changed.
///
/// The common part of the typed references. No constructor or assignment brings along a referring
/// controller: it belongs to the place of a reference, not to its value. When a proxy's `attach`
/// throws, a constructor makes no object, and the other operations leave the reference empty.
class CORVANE_WORKBENCH_EXPORT BasicElementReference : public bindings::CrossReferenceController {
public:
    BasicElementReference() noexcept;
    explicit BasicElementReference(const ElementReferenceData& data);
    explicit BasicElementReference(ElementReferenceData&& data);
    /// Registers a second time, on its own.
    BasicElementReference(const BasicElementReference& other);
    /// Takes over the registration without a call to the proxy; the source is left empty.
    BasicElementReference(BasicElementReference&& other) noexcept;
    /// With the proxy that the reference already has, the registration stays as it is.
    BasicElementReference& operator=(const ElementReferenceData& data);
    BasicElementReference& operator=(ElementReferenceData&& data);
    BasicElementReference& operator=(const BasicElementReference& other);
    /// Ends the own registration and takes over that of the source, which is left empty.
    BasicElementReference& operator=(BasicElementReference&& other) noexcept;
    ~BasicElementReference() override;

    [[nodiscard]] const ElementReferenceData& data() const noexcept { return data_; }
    operator const ElementReferenceData&() const noexcept { return data_; }

    /// Points the reference at another proxy, keeping suffix and member name.
    void remap(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy);
    /// Points the reference at a proxy with a new suffix, keeping the member name.
    void resolve(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy,
                 std::string_view suffix);

    /// The property that this reference is, named by its own address: what the owning controller
    /// configures it under, with this object as the cross-reference controller. Another one after
    /// the reference has moved.
    [[nodiscard]] bindings::PropertyId propertyId() const noexcept;
    /// Publishes value and state of the property through the referring controller, if there is one.
    void updateValue() const;
    /// Publishes the value alone: the referenced element has another primary key.
    void updatePrimaryKey() const;
    /// Publishes the state alone: whether the reference resolves may have changed. Configures the
    /// controller.
    void updateState() const;
    /// Whether the property is visible; false without a referring controller. Configures the
    /// controller.
    [[nodiscard]] bool isVisible() const;

private:
    void attach();
    void detach() noexcept;
    void fixPosition() noexcept;
    /// Detaches, replaces the data and attaches to the new proxy.
    void replaceData(ElementReferenceData&& data);

    ElementReferenceData data_;
    AbstractCrossReferenceProxy::Attachment* token_ = nullptr;
};

} // namespace corvane::workbench::model::internal
