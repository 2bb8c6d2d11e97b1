#include "WeightedInput.hpp"

#include "editors.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "text.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;

namespace {

const PropertyKey kWeight;

} // namespace

const PropertyKey WeightedInput::kListProperty;

void WeightedInput::configureProperties(PropertyConfigurationContext& context) {
    context.configure(attribute_.propertyId(),
                      {.state = [this] { return resolves(attribute_.attribute()); },
                       .raisedProperties = {kListProperty}},
                      {.crossReferenceController = &attribute_});
    context.configure(kWeight, {.state =
                                    [this] {
                                        return require(weight_ > 0 && weight_ <= 100,
                                                       "The weight must be greater than 0 and at "
                                                       "most 100.");
                                    },
                                .raisedProperties = {kListProperty}});
    context.configure(displayNamePropertyId(),
                      {.valueDependencies = {attribute_.propertyId(), kWeight}});
}

std::wstring WeightedInput::displayName() const {
    return text("{} × {}", numberText(weight_),
                attribute_ ? corvane::utils::string::toWide(attribute_.primaryKey())
                           : text("no attribute"));
}

void WeightedInput::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    callback(referenceEditor({"attribute", "Attribute", propertyHandle(attribute_.propertyId())},
                             attribute_));
    callback(numberEditor({"weight", "Weight", propertyHandle(kWeight)}, weight_));
}

void WeightedInput::load(decoder::Value& value, config::Context& context) {
    for (const auto& [name, member] : value.asObject()) {
        if (name == "attribute") {
            context.resolve(config::Context::ReferenceKey(member), attribute_);
        } else if (name == "weight") {
            weight_ = readNumber(member);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void WeightedInput::saveTo(encoder::Array& array) const {
    encoder::Object object = array.addElement().writeObject();
    attribute_.saveTo(object, "attribute");
    writeNumber(object, "weight", weight_);
}

} // namespace pump_station
