#include "resolutionMessage.hpp"

#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

#include <utility>

namespace corvane::workbench::host {

namespace {

template <class T>
std::optional<std::wstring> messageOf(tl::expected<T, std::wstring>&& result) {
    if (result) {
        return std::nullopt;
    }
    return std::move(result).error();
}

} // namespace

std::optional<std::wstring>
resolutionMessage(const model::internal::BasicElementReference& reference) {
    if (const auto* attribute = dynamic_cast<const model::AttributeReference*>(&reference)) {
        return messageOf(attribute->attribute());
    }
    if (const auto* event = dynamic_cast<const process::EventReference*>(&reference)) {
        return messageOf(event->event());
    }
    if (const auto* task = dynamic_cast<const process::TaskReference*>(&reference)) {
        return messageOf(task->task());
    }
    return messageOf(reference.data().element());
}

} // namespace corvane::workbench::host
