#include <corvane/workbench/model/Element.hpp>

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/data/DataType.hpp>
#include <corvane/workbench/i18n/translate.hpp>
#include <corvane/workbench/model/internal/ElementReferenceData.hpp>

#include <format>
#include <typeinfo>
#include <utility>

namespace corvane::workbench::model {

namespace {

using utils::core::function_ref;

constexpr utils::core::Flags<io::Direction> kBothDirections = {io::Direction::Read,
                                                               io::Direction::Write};

// `format` has a place for the element's key and one for the member's name.
std::wstring missingMember(const Element& element, std::string_view format,
                           std::string_view memberName) {
    const std::wstring translated = i18n::translate("corvane::workbench::model::Element", format);
    const std::wstring key = utils::string::toWide(element.primaryKey());
    const std::wstring name = utils::string::toWide(memberName);
    return std::vformat(translated, std::make_wformat_args(key, name));
}

} // namespace

Element::~Element() = default;

utils::string::BasicStringView<char> Element::name() const {
    return nameImpl();
}

std::string Element::primaryKey() const {
    return primaryKeyImpl();
}

utils::core::Uuid Element::uuid() const {
    return uuidImpl();
}

std::wstring Element::type() const {
    return typeImpl();
}

ElementCategory Element::category() const {
    return categoryImpl();
}

bool Element::checkCategory(utils::core::Flags<ElementCategory> categories) const {
    const ElementCategory own = category();
    return own == ElementCategory::CustomElement || categories.test(own);
}

bool Element::isDataPoint() const {
    return checkCategory(ElementCategory::DataPoint);
}

bool Element::isSkillDataPoint() const {
    const ElementCategory own = category();
    return own == ElementCategory::CustomElement ||
           (own == ElementCategory::DataPoint && getSkillElement(std::nothrow) != nullptr);
}

bool Element::isA(const skill::Element::Class& elementClass) const {
    const skill::Element* const skillElement = getSkillElement(std::nothrow);
    return skillElement != nullptr && &skillElement->elementClass() == &elementClass;
}

bool Element::isInvisibleRoot() const {
    return isInvisibleRootImpl();
}

const Element* Element::findAncestor(const skill::Element::Class& elementClass) const {
    return findAncestorImpl(elementClass);
}

bool Element::isDescendentOf(const Element& other) const {
    return isDescendentOfImpl(other);
}

const Element* Element::parentElement() const {
    return parentElementImpl();
}

ChildElementAccessor Element::childElements() const {
    return childElementsImpl();
}

const Element* Element::childElement(std::string_view name) const {
    return childElementImpl(name);
}

std::vector<Attribute> Element::attributes() const {
    std::vector<Attribute> attributes;
    forEachAttribute([&](const Attribute& attribute) { attributes.push_back(attribute); });
    return attributes;
}

std::vector<process::Event> Element::events(process::EventSearchOptions options) const {
    std::vector<process::Event> events;
    forEachEvent([&](const process::Event& event) { events.push_back(event); }, options);
    return events;
}

std::vector<process::Task> Element::tasks() const {
    std::vector<process::Task> tasks;
    forEachTask([&](const process::Task& task) { tasks.push_back(task); });
    return tasks;
}

tl::expected<Attribute, std::wstring> Element::attribute(std::string_view name) const {
    std::optional<Attribute> found;
    forEachAttributeInternal([&](const Attribute& attribute) {
        if (attribute.name() != name) {
            return false;
        }
        found = attribute;
        return true;
    });
    if (found) {
        return *std::move(found);
    }
    if (category() == ElementCategory::CustomElement) {
        return Attribute(std::string(name), Attribute::Access::ReadWrite, data::DataType::kAny,
                         kBothDirections);
    }
    return tl::unexpected(
        missingMember(*this, "the element “{}” does not have an attribute named “{}”", name));
}

tl::expected<process::Event, std::wstring>
Element::event(std::string_view name, process::EventSearchOptions options) const {
    std::optional<process::Event> found;
    forEachEventInternal(
        [&](const process::Event& event) {
            if (event.name() != name) {
                return false;
            }
            found = event;
            return true;
        },
        options);
    if (found) {
        return *std::move(found);
    }
    if (category() == ElementCategory::CustomElement) {
        return process::Event(std::string(name), kBothDirections);
    }
    return tl::unexpected(
        missingMember(*this,
                      options.includeAttributes
                          ? "the element “{}” does not have an event or attribute named “{}”"
                          : "the element “{}” does not have an event named “{}”",
                      name));
}

tl::expected<process::Task, std::wstring> Element::task(std::string_view name) const {
    std::optional<process::Task> found;
    forEachTaskInternal([&](const process::Task& task) {
        if (task.name() != name) {
            return false;
        }
        found = task;
        return true;
    });
    if (found) {
        return *std::move(found);
    }
    if (category() == ElementCategory::CustomElement) {
        return process::Task(std::string(name));
    }
    return tl::unexpected(
        missingMember(*this, "the element “{}” does not have a task named “{}”", name));
}

skill::Element& Element::getSkillElement() & {
    skill::Element* const skillElement = getSkillElement(std::nothrow);
    if (skillElement == nullptr) {
        throw std::bad_cast();
    }
    return *skillElement;
}

skill::Element&& Element::getSkillElement() && {
    return std::move(getSkillElement());
}

const skill::Element& Element::getSkillElement() const& {
    const skill::Element* const skillElement = getSkillElement(std::nothrow);
    if (skillElement == nullptr) {
        throw std::bad_cast();
    }
    return *skillElement;
}

const skill::Element&& Element::getSkillElement() const&& {
    return std::move(getSkillElement());
}

skill::Element* Element::getSkillElement(std::nothrow_t) {
    return skillElementImpl();
}

const skill::Element* Element::getSkillElement(std::nothrow_t) const {
    return skillElementImpl();
}

bool Element::forEachAttributeInternal(const function_ref<bool(const Attribute&)>& callback) const {
    return forEachAttributeImpl(callback);
}

bool Element::forEachEventInternal(const function_ref<bool(const process::Event&)>& callback,
                                   process::EventSearchOptions options) const {
    if (forEachEventImpl(callback, options.forwardedFlag) || !options.includeAttributes) {
        return false;
    }
    return forEachAttributeImpl(
        [&](const Attribute& attribute) { return callback(attribute.changeEvent()); });
}

bool Element::forEachTaskInternal(const function_ref<bool(const process::Task&)>& callback) const {
    return forEachTaskImpl(callback);
}

} // namespace corvane::workbench::model
