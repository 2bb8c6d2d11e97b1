#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/bindings/PropertyController.hpp>

#include <string>
#include <utility>

namespace corvane::workbench::model::internal {

BasicElementReference::BasicElementReference() noexcept = default;

BasicElementReference::BasicElementReference(const ElementReferenceData& data) : data_(data) {
    attach();
}

BasicElementReference::BasicElementReference(ElementReferenceData&& data) : data_(std::move(data)) {
    attach();
}

BasicElementReference::BasicElementReference(const BasicElementReference& other)
    : BasicElementReference(other.data_) {}

BasicElementReference::BasicElementReference(BasicElementReference&& other) noexcept
    : data_(std::exchange(other.data_, {})), token_(std::exchange(other.token_, nullptr)) {
    fixPosition();
}

BasicElementReference& BasicElementReference::operator=(const ElementReferenceData& data) {
    return *this = ElementReferenceData(data);
}

BasicElementReference& BasicElementReference::operator=(ElementReferenceData&& data) {
    if (data.proxy() == data_.proxy()) {
        data_ = std::move(data);
    } else {
        replaceData(std::move(data));
    }
    return *this;
}

BasicElementReference& BasicElementReference::operator=(const BasicElementReference& other) {
    return *this = other.data_;
}

BasicElementReference& BasicElementReference::operator=(BasicElementReference&& other) noexcept {
    if (this != &other) {
        detach();
        data_ = std::exchange(other.data_, {});
        token_ = std::exchange(other.token_, nullptr);
        fixPosition();
    }
    return *this;
}

BasicElementReference::~BasicElementReference() {
    detach();
}

void BasicElementReference::remap(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy) {
    if (proxy != data_.proxy()) {
        ElementReferenceData data = data_;
        data.setProxy(proxy);
        replaceData(std::move(data));
    }
}

void BasicElementReference::resolve(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy,
                                    std::string_view suffix) {
    ElementReferenceData data(proxy, std::string(suffix),
                              std::optional<std::string>(data_.memberName()));
    *this = std::move(data);
}

bindings::PropertyId BasicElementReference::propertyId() const noexcept {
    return bindings::PropertyId(bindings::PropertyId::kInternalConstructor,
                                static_cast<const void*>(this));
}

void BasicElementReference::updateValue() const {
    if (const bindings::PropertyController* controller = referringController()) {
        controller->publish(propertyId(), bindings::Action::Update, 0);
    }
}

void BasicElementReference::updatePrimaryKey() const {
    if (const bindings::PropertyController* controller = referringController()) {
        controller->publishValue(propertyId(), bindings::Action::Update, 0);
    }
}

void BasicElementReference::updateState() const {
    if (const bindings::PropertyController* controller = referringController()) {
        controller->publishState(propertyId());
    }
}

bool BasicElementReference::isVisible() const {
    const bindings::PropertyController* controller = referringController();
    return controller != nullptr && controller->propertyVisible(propertyId());
}

void BasicElementReference::attach() {
    token_ = data_.proxy() ? data_.proxy()->attach(*this) : nullptr;
}

void BasicElementReference::detach() noexcept {
    AbstractCrossReferenceProxy::Attachment* token = std::exchange(token_, nullptr);
    if (data_.proxy()) {
        data_.proxy()->detach(token);
    }
}

void BasicElementReference::fixPosition() noexcept {
    if (token_ != nullptr) {
        token_->reference = this;
    }
}

void BasicElementReference::replaceData(ElementReferenceData&& data) {
    detach();
    data_ = std::move(data);
    try {
        attach();
    } catch (...) {
        // The new proxy does not know this reference, so the reference must not detach from it.
        data_ = {};
        throw;
    }
}

} // namespace corvane::workbench::model::internal
