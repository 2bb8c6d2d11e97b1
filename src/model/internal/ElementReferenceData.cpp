#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

#include "ImportReferenceProxy.hpp"
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/i18n/translate.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventSearchOptions.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <format>

namespace corvane::workbench::model::internal {

namespace {

std::wstring message(std::string_view text) {
    return i18n::translate("corvane::workbench::model::BasicElementReference", text);
}

std::wstring message(std::string_view text, std::string_view argument) {
    const std::wstring wide = utils::string::toWide(argument);
    return std::vformat(message(text), std::make_wformat_args(wide));
}

std::wstring message(std::string_view text, std::string_view first, std::string_view second) {
    const std::wstring wideFirst = utils::string::toWide(first);
    const std::wstring wideSecond = utils::string::toWide(second);
    return std::vformat(message(text), std::make_wformat_args(wideFirst, wideSecond));
}

/// The first component of the part of a key that does not exist, or what is wrong with it.
tl::expected<std::string_view, std::wstring> checkKeyComponent(std::string_view text,
                                                               bool topLevel) {
    if (!topLevel && text.starts_with('.')) {
        text.remove_prefix(1);
    }
    if (!text.starts_with('[')) {
        const std::string_view component = text.substr(0, text.find('.'));
        if (component.empty()) {
            return tl::unexpected(
                message(topLevel ? "empty top level element name" : "empty child element name"));
        }
        return component;
    }
    const std::size_t closing = text.find(']');
    if (closing == std::string_view::npos) {
        return tl::unexpected(message("“[” without “]” in key component"));
    }
    const std::size_t end = closing + 1;
    if (end < text.size() && text[end] != '.') {
        return tl::unexpected(message("closing “]” must be at the end of the key component"));
    }
    if (end == 2) {
        return tl::unexpected(message("an empty set of “[]” is not a valid key component"));
    }
    return text.substr(0, end);
}

/// What is wrong with a member name, in the words for each kind of member.
struct MemberError {
    using MessageMaker = std::wstring (*)();

    MessageMaker attribute;
    MessageMaker event;
    MessageMaker task;
};

tl::expected<void, MemberError> checkMemberName(std::string_view name) {
    static constexpr MemberError kEmpty{
        [] { return message("empty attribute name"); },
        [] { return message("empty event name"); },
        [] { return message("empty task name"); },
    };
    static constexpr MemberError kNotClosed{
        [] { return message("“[” without “]” in attribute name"); },
        [] { return message("“[” without “]” in event name"); },
        [] { return message("“[” without “]” in task name"); },
    };
    static constexpr MemberError kClosedEarly{
        [] { return message("closing “]” must be at the end of the attribute name"); },
        [] { return message("closing “]” must be at the end of the event name"); },
        [] { return message("closing “]” must be at the end of the task name"); },
    };
    static constexpr MemberError kEmptySet{
        [] { return message("an empty set of “[]” is not a valid attribute name"); },
        [] { return message("an empty set of “[]” is not a valid event name"); },
        [] { return message("an empty set of “[]” is not a valid task name"); },
    };

    if (name.empty()) {
        return tl::unexpected(kEmpty);
    }
    if (!name.starts_with('[')) {
        return {};
    }
    const std::size_t closing = name.find(']');
    if (closing == std::string_view::npos) {
        return tl::unexpected(kNotClosed);
    }
    if (closing + 1 != name.size()) {
        return tl::unexpected(kClosedEarly);
    }
    if (name.size() == 2) {
        return tl::unexpected(kEmptySet);
    }
    return {};
}

/// What sets the resolution of one kind of member apart from that of the others.
struct MemberKind {
    std::string_view emptyKey;
    std::string_view missingName;
    MemberError::MessageMaker MemberError::* invalidName;
};

template <class Member, class Lookup>
tl::expected<Member, std::wstring> resolveMember(const ElementReferenceData& data,
                                                 const MemberKind& kind, Lookup lookup) {
    if (data.empty()) {
        return tl::unexpected(message(kind.emptyKey));
    }
    const auto resolved = data.element();
    if (!resolved) {
        return tl::unexpected(resolved.error());
    }
    if (!data.memberName()) {
        return tl::unexpected(message(kind.missingName));
    }
    const std::string& name = *data.memberName();
    if (const auto valid = checkMemberName(name); !valid) {
        return tl::unexpected((valid.error().*kind.invalidName)());
    }
    const Element& element = resolved->get();
    tl::expected<Member, std::wstring> member = lookup(element, name);
    // The key of a child without a member looks the same as the key of a member.
    if (!member && element.childElement(name) != nullptr) {
        return tl::unexpected(message(kind.missingName));
    }
    return member;
}

} // namespace

ElementReferenceData::ElementReferenceData() noexcept = default;

ElementReferenceData::ElementReferenceData(
    const std::shared_ptr<AbstractCrossReferenceProxy>& proxy, std::string&& suffix)
    : proxy_(proxy), suffix_(std::move(suffix)) {}

ElementReferenceData::ElementReferenceData(
    const std::shared_ptr<AbstractCrossReferenceProxy>& proxy, std::string&& suffix,
    std::optional<std::string>&& memberName)
    : proxy_(proxy), suffix_(std::move(suffix)), memberName_(std::move(memberName)) {}

ElementReferenceData::ElementReferenceData(const ElementReferenceData&) = default;
ElementReferenceData::ElementReferenceData(ElementReferenceData&&) noexcept = default;
ElementReferenceData& ElementReferenceData::operator=(const ElementReferenceData&) = default;
ElementReferenceData& ElementReferenceData::operator=(ElementReferenceData&&) noexcept = default;
ElementReferenceData::~ElementReferenceData() = default;

ElementReferenceData ElementReferenceData::makeImportReference(std::string_view key) {
    return {importProxy(), std::string(key)};
}

ElementReferenceData ElementReferenceData::makeImportReference(std::string_view key,
                                                               std::string_view memberName) {
    return {importProxy(), std::string(key), std::string(memberName)};
}

std::optional<std::string_view>
ElementReferenceData::parseImportReference(std::string_view text) noexcept {
    if (!text.starts_with(ImportReferenceProxy::kPrefix)) {
        return std::nullopt;
    }
    text.remove_prefix(ImportReferenceProxy::kPrefix.size());
    return text;
}

void ElementReferenceData::setProxy(
    const std::shared_ptr<AbstractCrossReferenceProxy>& proxy) noexcept {
    proxy_ = proxy;
}

void ElementReferenceData::setSuffix(std::string&& suffix) noexcept {
    suffix_ = std::move(suffix);
}

void ElementReferenceData::setMemberName(std::optional<std::string>&& memberName) noexcept {
    memberName_ = std::move(memberName);
}

bool ElementReferenceData::empty() const noexcept {
    return !proxy_ && !memberName_;
}

bool ElementReferenceData::isImportReference() const {
    return proxy_ == importProxy();
}

tl::expected<std::reference_wrapper<Element>, std::wstring> ElementReferenceData::element() const {
    if (!proxy_) {
        return tl::unexpected(message("empty element key"));
    }
    auto existing = proxy_->element();
    if (!existing || suffix_.empty()) {
        return existing;
    }
    const Element& ancestor = existing->get();
    if (ancestor.category() == ElementCategory::CustomElement) {
        return existing;
    }
    const bool topLevel = ancestor.isInvisibleRoot();
    const auto missing = checkKeyComponent(suffix_, topLevel);
    if (!missing) {
        return tl::unexpected(missing.error());
    }
    if (topLevel) {
        return tl::unexpected(message("the element “{}” does not exist", *missing));
    }
    return tl::unexpected(message("the element “{}” does not have a child named “{}”",
                                  ancestor.primaryKey(), *missing));
}

tl::expected<Attribute, std::wstring> ElementReferenceData::attribute() const {
    return resolveMember<Attribute>(
        *this, {"empty attribute key", "missing attribute name", &MemberError::attribute},
        [](const Element& element, std::string_view name) { return element.attribute(name); });
}

tl::expected<process::Event, std::wstring>
ElementReferenceData::event(process::EventSearchOptions options) const {
    return resolveMember<process::Event>(
        *this, {"empty event key", "missing event name", &MemberError::event},
        [options](const Element& element, std::string_view name) {
            return element.event(name, options);
        });
}

tl::expected<process::Task, std::wstring> ElementReferenceData::task() const {
    return resolveMember<process::Task>(
        *this, {"empty task key", "missing task name", &MemberError::task},
        [](const Element& element, std::string_view name) { return element.task(name); });
}

std::string ElementReferenceData::primaryKey() const {
    if (!proxy_) {
        return {};
    }
    std::string key = proxy_->primaryKey();
    key += suffix_;
    if (memberName_) {
        key += std::format(".{}", *memberName_);
    }
    return key;
}

void ElementReferenceData::save(utils::json::encoder::Value& value) const {
    if (proxy_) {
        proxy_->save(value, suffix_, memberName_);
    } else {
        AbstractCrossReferenceProxy::writeKey(value, "", suffix_, memberName_);
    }
}

void ElementReferenceData::saveTo(utils::json::encoder::Array& array) const {
    utils::json::encoder::Value value = array.addElement();
    save(value);
}

void ElementReferenceData::saveTo(utils::json::encoder::Object& object,
                                  std::string_view name) const {
    utils::json::encoder::Value value = object.addMember(name);
    save(value);
}

const std::shared_ptr<AbstractCrossReferenceProxy>& ElementReferenceData::importProxy() {
    static const std::shared_ptr<AbstractCrossReferenceProxy> instance =
        std::make_shared<ImportReferenceProxy>();
    return instance;
}

} // namespace corvane::workbench::model::internal
