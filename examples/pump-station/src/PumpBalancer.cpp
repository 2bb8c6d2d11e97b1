#include "PumpBalancer.hpp"

#include "ElementClass.hpp"
#include "dataTypes.hpp"
#include "editors.hpp"
#include "elementClasses.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "text.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <memory>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::io::Direction;
using corvane::workbench::model::Attribute;
using corvane::workbench::process::Task;

namespace {

const PropertyKey kGain;

const Attribute kOutput("output", Attribute::Access::ReadOnly, kDouble, Direction::Read);
const Task kRebalance("rebalance");

} // namespace

PumpBalancer::PumpBalancer()
    : inputs_([](std::size_t) { return std::make_unique<WeightedInput>(); }) {}

PumpBalancer::PumpBalancer(const PumpBalancer& other)
    : Element(other), pump_(other.pump_), gain_(other.gain_),
      inputs_([](std::size_t) { return std::make_unique<WeightedInput>(); }) {
    for (std::size_t index = 0; index < other.inputs_.size(); ++index) {
        inputs_.append(std::make_unique<WeightedInput>(other.inputs_[index]));
    }
}

void PumpBalancer::configureProperties(PropertyConfigurationContext& context) {
    context.configure(pump_.propertyId(), {.state = [this] { return pumpState(); }},
                      {.crossReferenceController = &pump_});
    context.configure(kGain, {.state = [this] {
                          return require(gain_ > 0, "The gain must be greater than 0.");
                      }});
    inputs_.link();
    context.configure(
        WeightedInput::kListProperty,
        {.state = [this] { return require(inputs_.size() > 0, "Add an attribute to weigh up."); },
         .stateDependencies = {WeightedInput::kListProperty}},
        {.subPropertyContainer = &inputs_});
}

void PumpBalancer::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    callback(referenceEditor({"pump", "Pump", propertyHandle(pump_.propertyId())}, pump_));
    callback(numberEditor({"gain", "Gain", propertyHandle(kGain)}, gain_));
    callback(
        listEditor({"inputs", "Inputs", propertyHandle(WeightedInput::kListProperty)}, inputs_));
}

void PumpBalancer::load(decoder::Object& object, config::Context& context) {
    for (const auto& [name, value] : object) {
        if (name == "pump") {
            context.resolve(config::Context::ReferenceKey(value), pump_);
        } else if (name == "gain") {
            gain_ = readNumber(value);
        } else if (name == "inputs") {
            for (decoder::Value& row : value.asArray()) {
                auto input = std::make_unique<WeightedInput>();
                input->load(row, context);
                inputs_.append(std::move(input));
            }
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void PumpBalancer::save(encoder::Object& object) const {
    pump_.saveTo(object, "pump");
    writeNumber(object, "gain", gain_);
    encoder::Array rows = object.addMember("inputs").writeArray();
    for (std::size_t index = 0; index < inputs_.size(); ++index) {
        inputs_[index].saveTo(rows);
    }
}

void PumpBalancer::makeDefault() {
    gain_ = 1;
}

bool PumpBalancer::forEachAttribute(
    const core::function_ref<bool(const Attribute&)>& callback) const {
    return callback(kOutput);
}

bool PumpBalancer::forEachTask(const core::function_ref<bool(const Task&)>& callback) const {
    return callback(kRebalance);
}

State PumpBalancer::pumpState() const {
    const auto target = pump_.element();
    if (target && !target->get().isA(pumpClass())) {
        return tl::unexpected(text("The element “{}” is not a pump.",
                                   corvane::utils::string::toWide(pump_.primaryKey())));
    }
    return resolves(target);
}

} // namespace pump_station
