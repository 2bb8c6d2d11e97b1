// The part of model::Element that makes references; it alone needs the typed references.
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventReference.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/process/TaskReference.hpp>

namespace corvane::workbench::model {

ElementReference Element::makeReference() const {
    return ElementReference(referenceDataImpl(std::nullopt));
}

AttributeReference Element::makeAttributeReference(std::string_view name) const {
    return AttributeReference(referenceDataImpl(std::string(name)));
}

AttributeReference Element::makeAttributeReference(const Attribute& attribute) const {
    return makeAttributeReference(attribute.name());
}

process::EventReference Element::makeEventReference(std::string_view name,
                                                    process::EventSearchOptions options) const {
    return process::EventReference(referenceDataImpl(std::string(name)), options);
}

process::EventReference Element::makeEventReference(const process::Event& event,
                                                    process::EventSearchOptions options) const {
    return makeEventReference(event.name(), options);
}

process::TaskReference Element::makeTaskReference(std::string_view name) const {
    return process::TaskReference(referenceDataImpl(std::string(name)));
}

process::TaskReference Element::makeTaskReference(const process::Task& task) const {
    return makeTaskReference(task.name());
}

} // namespace corvane::workbench::model
