#include "ElementWatch.hpp"

#include "columns.hpp"
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/Action.hpp>
#include <corvane/workbench/skill/Element.hpp>

#include <ostream>
#include <utility>

namespace pump_station::demo {

namespace bindings = corvane::workbench::bindings;
namespace host = corvane::workbench::host;
namespace skill = corvane::workbench::skill;

using corvane::utils::string::toUtf8;

namespace {

constexpr std::size_t kKindWidth = 10;
constexpr std::size_t kLabelWidth = 33;

std::string rowLabel(const std::string& list, std::size_t index) {
    return list + ", row " + std::to_string(index);
}

} // namespace

ElementWatch::ElementWatch(host::ElementNode& element, std::ostream& out) : out_(out) {
    const auto watch = [&](const skill::EditableProperty& property) {
        watchProperty(property, toUtf8(property.displayName));
    };
    element.skillElement()->forEachEditableProperty(watch);
    for (host::ElementNode* node = &element; node != nullptr; node = node->parent()) {
        watchErrorCount(*node);
    }
}

void ElementWatch::watchErrorCount(host::ElementNode& element) {
    errorCountSubscriptions_.push_back(
        element.properties().subscribeToPropertyErrorCount([this, &element] {
            print("errors",
                  element.isInvisibleRoot() ? "the whole plant" : std::string(element.name()),
                  std::to_string(element.properties().propertyErrorCount()));
        }));
}

void ElementWatch::watchProperty(const skill::EditableProperty& property,
                                 const std::string& label) {
    const bindings::PropertyHandle& handle = property.property;
    subscriptions_.push_back(handle.subscribe(
        {.value =
             [this, property, label](bindings::Action action, std::size_t index) {
                 print("value", label, toUtf8(property.text()));
                 if (action == bindings::Action::Insert) {
                     watchInsertedRow(property, label, index);
                 }
             },
         .state =
             [this, handle, label] {
                 const auto& state = handle.state();
                 print("state", label, state ? "valid" : toUtf8(state.error()));
             },
         .visibility =
             [this, handle, label] {
                 print("visibility", label, handle.visible() ? "visible" : "hidden");
             }}));
    if (property.forEachSubElement) {
        std::size_t index = 0;
        const auto watch = [&](skill::SubElement& row) { watchRow(row, rowLabel(label, index++)); };
        property.forEachSubElement(watch);
    }
}

void ElementWatch::watchRow(skill::SubElement& row, const std::string& label) {
    const auto watch = [&](const skill::EditableProperty& property) {
        watchProperty(property, label + ", " + toUtf8(property.displayName));
    };
    row.forEachEditableProperty(watch);
    subscriptions_.push_back(row.subscribe(row.displayNamePropertyId(),
                                           {.value =
                                                [this, &row, label](bindings::Action, std::size_t) {
                                                    print("name", label, toUtf8(row.displayName()));
                                                },
                                            .state = {},
                                            .visibility = {}}));
}

void ElementWatch::watchInsertedRow(const skill::EditableProperty& list, const std::string& label,
                                    std::size_t index) {
    std::size_t row = 0;
    const auto watch = [&](skill::SubElement& subElement) {
        if (row == index) {
            watchRow(subElement, rowLabel(label, index));
        }
        ++row;
    };
    list.forEachSubElement(watch);
}

void ElementWatch::print(std::string_view what, const std::string& label,
                         const std::string& value) {
    out_ << "    " << padded(std::string(what), kKindWidth) << padded(label, kLabelWidth)
         << (value.empty() ? "(empty)" : value) << '\n';
}

} // namespace pump_station::demo
