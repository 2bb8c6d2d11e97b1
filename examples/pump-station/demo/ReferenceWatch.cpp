#include "ReferenceWatch.hpp"

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <ostream>

namespace pump_station::demo {

namespace host = corvane::workbench::host;

using corvane::utils::string::toUtf8;
using corvane::workbench::model::internal::BasicElementReference;

ReferenceWatch::ReferenceWatch(host::Workbench& workbench, std::ostream& out)
    : workbench_(workbench), out_(out) {
    workbench_.addObserver(*this);
}

ReferenceWatch::~ReferenceWatch() {
    workbench_.removeObserver(*this);
}

void ReferenceWatch::elementAdded(const host::ElementNode& element) {
    out_ << "    added     " << element.primaryKey() << '\n';
}

void ReferenceWatch::elementRenamed(const host::ElementNode& element, std::string_view oldKey) {
    out_ << "    renamed   " << oldKey << "\n    to        " << element.primaryKey() << '\n';
}

void ReferenceWatch::elementRemoved(std::string_view key) {
    out_ << "    removed   " << key << '\n';
}

void ReferenceWatch::referenceKeyChanged(const BasicElementReference& reference) {
    printOwner(reference);
    out_ << " refers to\n              " << reference.data().primaryKey() << '\n';
}

void ReferenceWatch::referenceStateChanged(const BasicElementReference& reference) {
    printOwner(reference);
    const auto element = reference.data().element();
    if (element) {
        out_ << " resolves again\n";
    } else {
        out_ << " does not resolve:\n              " << toUtf8(element.error()) << '\n';
    }
}

void ReferenceWatch::printOwner(const BasicElementReference& reference) {
    out_ << "    reference of “" << workbench_.ownerOf(reference)->primaryKey() << "”";
}

} // namespace pump_station::demo
