#include "Step.hpp"

#include "editors.hpp"
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

namespace by_hand {

namespace {

const workbench::bindings::PropertyKey kIngredient;
const workbench::bindings::PropertyKey kSpeed;

} // namespace

const workbench::bindings::PropertyKey Step::kList;

void Step::configureProperties(PropertyConfigurationContext& context) {
    context.configure(
        kIngredient,
        {.state = [this] { return check(!ingredient.empty(), "Name the ingredient."); },
         .raisedProperties = {kList}});
    context.configure(
        kSpeed, {.state = [this] { return check(speed > 0, "The speed must be greater than 0."); },
                 .raisedProperties = {kList}});
    context.configure(waitsFor.propertyId(), {.state = [this] { return waitsForState(); }},
                      {.crossReferenceController = &waitsFor});
    context.configure(displayNamePropertyId(), {.valueDependencies = {kIngredient}});
}

Step::PropertyState Step::waitsForState() const {
    if (!waitsFor) {
        return {};
    }
    const auto mixer = waitsFor.element();
    return mixer ? PropertyState() : tl::unexpected(mixer.error());
}

std::wstring Step::displayName() const {
    return utils::string::toWide(ingredient);
}

void Step::load(utils::json::decoder::Value& row, workbench::config::Context& context) {
    for (const auto& [name, value] : row.asObject()) {
        if (name == "ingredient") {
            ingredient = value.asString().view();
        } else if (name == "speed") {
            speed = value.asInt64();
        } else if (name == "waitsFor") {
            context.resolve(workbench::config::Context::ReferenceKey(value), waitsFor);
        } else {
            workbench::config::throwUnknownParameterError(name);
        }
    }
}

void Step::saveTo(utils::json::encoder::Array& rows) const {
    auto row = rows.addElement().writeObject();
    row.addMember("ingredient").writeString(ingredient);
    row.addMember("speed").writeNumber(utils::numeric::format(speed).view());
    if (waitsFor) {
        waitsFor.saveTo(row, "waitsFor");
    }
}

void Step::forEachEditableProperty(
    utils::core::function_ref<void(const workbench::skill::EditableProperty&)> callback) {
    callback(textEditor("ingredient", "Ingredient", propertyHandle(kIngredient), ingredient));
    callback(numberEditor("speed", "Speed", propertyHandle(kSpeed), speed));
    callback(referenceEditor("waitsFor", "Waits for", propertyHandle(waitsFor.propertyId()),
                             [this] { return waitsFor.primaryKey(); }));
}

} // namespace by_hand
