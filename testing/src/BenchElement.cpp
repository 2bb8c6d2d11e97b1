#include <corvane/workbench/testing/BenchElement.hpp>

#include <corvane/workbench/host/TreePrinter.hpp>
#include <corvane/workbench/host/displayText.hpp>
#include <corvane/workbench/host/editableProperties.hpp>
#include <corvane/workbench/host/referenceProperty.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/Task.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>
#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/Refused.hpp>
#include <corvane/workbench/testing/Setting.hpp>
#include <corvane/workbench/testing/savedSettings.hpp>

#include <algorithm>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace corvane::workbench::testing {

namespace {

using skill::internal::ElementAccess;

void require(const host::Result<void>& done) {
    if (!done) {
        throw Refused(done.error().text);
    }
}

/// Collects the names in a walk that goes on while the callback returns false.
auto collectInto(std::vector<std::string>& names) {
    return [&names](const auto& member) {
        names.emplace_back(member.name());
        return false;
    };
}

} // namespace

BenchElement::BenchElement(Bench& bench, const host::ElementNode& node)
    : bench_(&bench), uuid_(node.uuid()), keyAtFirst_(node.primaryKey()) {}

std::string BenchElement::key() const {
    return node().primaryKey();
}

std::uint64_t BenchElement::errorCount() const {
    return node().properties().propertyErrorCount();
}

Setting BenchElement::at(std::string_view path) const {
    if (const auto found = host::findProperty(node(), path)) {
        return {*this, *found};
    }
    std::string text = "the element “" + key() + "” has no setting “" + std::string(path) + "”";
    std::string_view separator = "; it has ";
    const auto append = [&](const host::PropertyPlace& place) {
        text += separator;
        text += place.path;
        separator = ", ";
    };
    host::forEachProperty(node(), append);
    throw std::out_of_range(text);
}

std::vector<std::string> BenchElement::settings() const {
    std::vector<std::string> names;
    const auto collect = [&](const host::PropertyPlace& place) {
        if (place.row == nullptr) {
            names.push_back(place.path);
        }
    };
    host::forEachProperty(node(), collect);
    return names;
}

std::string BenchElement::saved() const {
    return savedSettings(*node().skillElement());
}

std::vector<std::string> BenchElement::attributes() const {
    std::vector<std::string> names;
    ElementAccess::forEachAttribute(*node().skillElement(), collectInto(names));
    return names;
}

std::vector<std::string> BenchElement::events() const {
    std::vector<std::string> names;
    ElementAccess::forEachEvent(*node().skillElement(), collectInto(names));
    return names;
}

std::vector<std::string> BenchElement::tasks() const {
    std::vector<std::string> names;
    ElementAccess::forEachTask(*node().skillElement(), collectInto(names));
    return names;
}

std::vector<std::string> BenchElement::referrers() const {
    std::vector<std::string> addresses;
    for (const host::ReferenceUse& use : bench_->workbench().referencesTo(node())) {
        addresses.push_back(host::placeOf(*use.reference, bench_->workbench()));
    }
    std::ranges::sort(addresses);
    return addresses;
}

BenchElement BenchElement::add(std::string_view elementClass, std::string_view name) const {
    return bench_->add(key(), elementClass, name);
}

void BenchElement::rename(std::string_view newName) const {
    bench_->beginEdit();
    require(bench_->workbench().rename(key(), newName));
}

void BenchElement::moveTo(std::string_view parentKey) const {
    bench_->beginEdit();
    require(bench_->workbench().move(key(), parentKey));
}

void BenchElement::remove() const {
    bench_->beginEdit();
    require(bench_->workbench().remove(key()));
}

host::ElementNode& BenchElement::node() const {
    host::ElementNode* node = bench_->workbench().findElement(uuid_);
    if (node == nullptr) {
        throw std::out_of_range("the element that was “" + keyAtFirst_ + "” is no longer there");
    }
    return *node;
}

std::string BenchElement::tree() const {
    std::ostringstream text;
    host::TreePrinter(text).printElement(node());
    return text.str();
}

std::ostream& operator<<(std::ostream& to, const BenchElement& element) {
    return to << element.key() << " with " << host::countText(element.errorCount(), "error");
}

} // namespace corvane::workbench::testing
