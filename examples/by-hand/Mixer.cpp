#include "Mixer.hpp"

#include "editors.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/Element.hpp>

namespace by_hand {

namespace {

const workbench::bindings::PropertyKey kTopSpeed;
const workbench::bindings::PropertyKey kShare;

} // namespace

void Mixer::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kTopSpeed, {.state = [this] {
                          return check(topSpeed_ > 0 && topSpeed_ <= 3000,
                                       "The top speed must lie between 1 and 3000.");
                      }});
    context.configure(leader_.propertyId(), {.state = [this] { return leaderState(); }},
                      {.crossReferenceController = &leader_});
    context.configure(
        kShare,
        {.state = [this] { return check(share_ > 0, "The share must be greater than 0 %."); },
         .visibility = [this] { return static_cast<bool>(leader_); },
         .visibilityDependencies = {leader_.propertyId()}});
    steps_.link();
    context.configure(
        Step::kList,
        {.state = [this] { return stepsState(); }, .stateDependencies = {Step::kList, kTopSpeed}},
        {.subPropertyContainer = &steps_});
}

Mixer::PropertyState Mixer::leaderState() const {
    if (!leader_) {
        return {};
    }
    const auto speed = leader_.attribute();
    return speed ? PropertyState() : tl::unexpected(speed.error());
}

Mixer::PropertyState Mixer::stepsState() const {
    for (std::size_t index = 0; index < steps_.size(); ++index) {
        if (steps_[index].speed > topSpeed_) {
            return tl::unexpected(text("No step may be faster than the top speed."));
        }
    }
    return {};
}

void Mixer::load(utils::json::decoder::Object& object, workbench::config::Context& context) {
    for (const auto& [name, value] : object) {
        if (name == "topSpeed") {
            topSpeed_ = value.asInt64();
        } else if (name == "leader") {
            context.resolve(workbench::config::Context::ReferenceKey(value), leader_);
        } else if (name == "share") {
            share_ = value.asInt64();
        } else if (name == "steps") {
            for (utils::json::decoder::Value& row : value.asArray()) {
                steps_.append().load(row, context);
            }
        } else {
            workbench::config::throwUnknownParameterError(name);
        }
    }
}

void Mixer::save(utils::json::encoder::Object& object) const {
    object.addMember("topSpeed").writeNumber(utils::numeric::format(topSpeed_).view());
    if (leader_) {
        leader_.saveTo(object, "leader");
        object.addMember("share").writeNumber(utils::numeric::format(share_).view());
    }
    if (steps_.size() > 0) {
        auto rows = object.addMember("steps").writeArray();
        for (std::size_t index = 0; index < steps_.size(); ++index) {
            steps_[index].saveTo(rows);
        }
    }
}

void Mixer::makeDefault() {
    topSpeed_ = 1500;
}

bool Mixer::forEachAttribute(
    const utils::core::function_ref<bool(const workbench::model::Attribute&)>& callback) const {
    using workbench::model::Attribute;
    return callback(Attribute("speed", Attribute::Access::ReadOnly, workbench::data::DataType::kAny,
                              workbench::io::Direction::Read));
}

void Mixer::forEachEditableProperty(
    utils::core::function_ref<void(const workbench::skill::EditableProperty&)> callback) {
    using workbench::skill::EditableProperty;
    callback(numberEditor("topSpeed", "Top speed", propertyHandle(kTopSpeed), topSpeed_));
    callback(referenceEditor("leader", "Follows", propertyHandle(leader_.propertyId()),
                             [this] { return leader_.primaryKey(); }));
    callback(numberEditor("share", "Share (%)", propertyHandle(kShare), share_));

    EditableProperty steps;
    steps.name = "steps";
    steps.displayName = text("Steps");
    steps.editor = EditableProperty::Editor::SubElementList;
    steps.property = propertyHandle(Step::kList);
    steps.text = [this] { return std::to_wstring(steps_.size()); };
    steps.forEachSubElement =
        [this](const utils::core::function_ref<void(workbench::skill::SubElement&)>& visit) {
            for (std::size_t index = 0; index < steps_.size(); ++index) {
                visit(steps_[index]);
            }
        };
    steps.insertSubElement = [this, list = steps.property](std::size_t index) -> State {
        if (index > steps_.size()) {
            return tl::unexpected(text("There is no such step."));
        }
        steps_.insert(index);
        list.publish(workbench::bindings::Action::Insert, index);
        return {};
    };
    steps.removeSubElement = [this, list = steps.property](std::size_t index) -> State {
        if (index >= steps_.size()) {
            return tl::unexpected(text("There is no such step."));
        }
        steps_.remove(index);
        list.publish(workbench::bindings::Action::Remove, index);
        return {};
    };
    callback(steps);
}

} // namespace by_hand
