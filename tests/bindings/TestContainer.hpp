#pragma once

#include "Trace.hpp"
#include <corvane/workbench/bindings/CrossReferenceController.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyId.hpp>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace corvane::workbench::bindings::test {

/// A property container whose properties a test lists, and which records what it is asked.
class TestContainer : public PropertyContainer {
public:
    struct Part {
        PropertyContainer* container = nullptr;
        bool visible = true;
    };
    struct Reference {
        CrossReferenceController* controller = nullptr;
        bool visible = true;
    };

    TestContainer() = default;
    TestContainer(std::string containerName, Trace& containerTrace)
        : name(std::move(containerName)), trace(&containerTrace) {}

    using PropertyContainer::localPropertyErrorCountChanged;
    using PropertyContainer::raisePropertyNotification;
    using PropertyContainer::subPropertyContainerAdded;
    using PropertyContainer::subPropertyContainerListChanged;
    using PropertyContainer::subPropertyContainerListCopied;
    using PropertyContainer::subPropertyContainerListMoved;
    using PropertyContainer::subPropertyContainerListSwapped;
    using PropertyContainer::subPropertyContainerRemoved;

    /// Changes the number of own errors and reports it.
    void setLocal(std::uint64_t count) {
        local = count;
        localPropertyErrorCountChanged();
    }

    std::string name;
    Trace* trace = nullptr;
    std::vector<Part> parts;
    std::vector<Reference> references;
    std::uint64_t local = 0;
    mutable int localQueries = 0;
    std::function<void()> onLocalQuery;
    std::function<void()> onErrorCountChanged;
    std::vector<PropertyId> raised;

private:
    void propertyErrorCountChanged() override {
        if (trace != nullptr) {
            trace->add(name + ".changed=" + std::to_string(propertyErrorCount()));
        }
        if (onErrorCountChanged) {
            onErrorCountChanged();
        }
    }
    void
    forEachSubPropertyContainer(const utils::core::function_ref<void(PropertyContainer&)>& callback,
                                bool includeInvisible) override {
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (includeInvisible || parts[i].visible) {
                callback(*parts[i].container);
            }
        }
    }
    void forEachLocalCrossReference(
        const utils::core::function_ref<void(CrossReferenceController&)>& callback,
        bool includeInvisible) override {
        for (const Reference& reference : references) {
            if (includeInvisible || reference.visible) {
                callback(*reference.controller);
            }
        }
    }
    std::uint64_t localPropertyErrorCount() const override {
        ++localQueries;
        if (onLocalQuery) {
            onLocalQuery();
        }
        return local;
    }
    void propertyNotificationRaised(const PropertyId& property) override {
        raised.push_back(property);
    }
};

} // namespace corvane::workbench::bindings::test
