#include "fans.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/String.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/decoder/detail/WrappedException.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/chrono/Duration.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/i18n/translate.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::bench {

namespace {

using namespace workbench;
using bindings::PropertyKey;
using utils::core::function_ref;
namespace decoder = utils::json::decoder;
namespace encoder = utils::json::encoder;

using State = bindings::PropertyController::PropertyState;

State require(bool condition, std::string_view message) {
    if (condition) {
        return {};
    }
    return tl::unexpected(i18n::translate("bench", message));
}

const PropertyKey kThreshold;
const PropertyKey kMessage;

const PropertyKey kLocation;
const PropertyKey kPower;
const PropertyKey kBlades;
const PropertyKey kDrive;
const PropertyKey kLowest;
const PropertyKey kHighest;
const PropertyKey kLimits;

class Limit final : public skill::SubElement {
public:
    void load(decoder::Value& row) {
        for (const auto& [name, value] : row.asObject()) {
            if (name == "threshold") {
                threshold_ = value.asDouble();
            } else if (name == "message") {
                message_ = std::string(value.asString().view());
            } else {
                config::throwUnknownParameterError(name);
            }
        }
    }
    void saveTo(encoder::Array& rows) const {
        encoder::Object row = rows.addElement().writeObject();
        row.addMember("threshold").writeNumber(utils::numeric::format(threshold_));
        row.addMember("message").writeString(message_);
    }

    [[nodiscard]] std::wstring displayName() const override { return std::to_wstring(threshold_); }
    // What is edited is not compared.
    void forEachEditableProperty(function_ref<void(const skill::EditableProperty&)>) override {}

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(
            kThreshold,
            {.state =
                 [this] { return require(threshold_ >= 0, "The threshold must not be negative."); },
             .raisedProperties = {kLimits}});
        context.configure(
            kMessage, {.state = [this] { return require(!message_.empty(), "Enter the message."); },
                       .raisedProperties = {kLimits}});
        context.configure(displayNamePropertyId(), {.valueDependencies = {kThreshold}});
    }

    double threshold_ = 0;
    std::string message_;
};

class Limits final : public bindings::PropertyContainer {
public:
    [[nodiscard]] std::size_t size() const noexcept { return rows_.size(); }
    [[nodiscard]] const Limit& operator[](std::size_t index) const { return *rows_[index]; }
    Limit& append() { return *rows_.emplace_back(std::make_unique<Limit>()); }
    void link() { subPropertyContainerListChanged({.updateEnclosingContainers = true}); }

private:
    void
    forEachSubPropertyContainer(const function_ref<void(bindings::PropertyContainer&)>& callback,
                                bool /*includeInvisible*/) override {
        for (const std::unique_ptr<Limit>& row : rows_) {
            callback(*row);
        }
    }
    void forEachLocalCrossReference(
        const function_ref<void(bindings::CrossReferenceController&)>& /*callback*/,
        bool /*includeInvisible*/) override {}
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const bindings::PropertyId& property) override {
        raisePropertyNotification(property);
    }

    std::vector<std::unique_ptr<Limit>> rows_;
};

class Fan final : public skill::Element {
public:
    // What is edited is not compared.
    void forEachEditableProperty(function_ref<void(const skill::EditableProperty&)>) override {}

private:
    enum class Drive : std::uint8_t { FixedSpeed, VariableSpeed };

    static constexpr std::array<std::string_view, 2> kDriveTexts{"fixed speed", "variable speed"};

    void configureProperties(PropertyConfigurationContext& context) override;
    void load(decoder::Object& object, config::Context& context) override;
    void save(encoder::Object& object) const override;

    [[nodiscard]] bool isVariable() const { return drive_ == Drive::VariableSpeed; }
    void loadDrive(decoder::Value& value);
    [[nodiscard]] State sourceState() const;

    std::string location_;
    double power_ = 1.5;
    std::int64_t blades_ = 6;
    Drive drive_ = Drive::FixedSpeed;
    bool reversible_ = false;
    chrono::Duration runUp_{3, chrono::Duration::Units::Seconds};
    double lowest_ = 200;
    double highest_ = 900;
    model::ElementReference source_;
    Limits limits_;
};

void Fan::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kLocation, {.state = [this] {
                          return require(!location_.empty(), "Say where the fan is.");
                      }});
    context.configure(kPower, {.state = [this] {
                          return require(power_ > 0, "The power must be greater than 0.");
                      }});
    context.configure(kBlades, {.state = [this] {
                          return require(blades_ >= 2 && blades_ <= 24,
                                         "The value must lie between 2 and 24.");
                      }});
    context.configure(kLowest, {.visibility = [this] { return isVariable(); },
                                .visibilityDependencies = {kDrive}});
    context.configure(kHighest,
                      {.state =
                           [this] {
                               return require(highest_ > lowest_,
                                              "The highest speed must lie above the lowest.");
                           },
                       .stateDependencies = {kLowest},
                       .visibility = [this] { return isVariable(); },
                       .visibilityDependencies = {kDrive}});
    context.configure(source_.propertyId(), {.state = [this] { return sourceState(); }},
                      {.crossReferenceController = &source_});
    limits_.link();
    context.configure(kLimits,
                      {.state =
                           [this] {
                               return require(limits_.size() <= 8,
                                              "There must be no more than eight limits.");
                           },
                       .stateDependencies = {kLimits}},
                      {.subPropertyContainer = &limits_});
}

State Fan::sourceState() const {
    if (!source_) {
        return {};
    }
    const auto element = source_.element();
    return element ? State() : tl::unexpected(element.error());
}

void Fan::load(decoder::Object& object, config::Context& context) {
    for (const auto& [name, value] : object) {
        if (name == "location") {
            location_ = std::string(value.asString().view());
        } else if (name == "power") {
            power_ = value.asDouble();
        } else if (name == "blades") {
            blades_ = value.asInt64();
        } else if (name == "drive") {
            loadDrive(value);
        } else if (name == "reversible") {
            reversible_ = value.asBool();
        } else if (name == "runUp") {
            runUp_ = chrono::Duration::load(value);
        } else if (name == "lowest") {
            lowest_ = value.asDouble();
        } else if (name == "highest") {
            highest_ = value.asDouble();
        } else if (name == "source") {
            context.resolve(config::Context::ReferenceKey(value), source_);
        } else if (name == "limits") {
            for (decoder::Value& row : value.asArray()) {
                limits_.append().load(row);
            }
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Fan::loadDrive(decoder::Value& value) {
    const std::string text(value.asString().view());
    for (std::size_t index = 0; index < kDriveTexts.size(); ++index) {
        if (text == kDriveTexts[index]) {
            drive_ = static_cast<Drive>(index);
            return;
        }
    }
    throw decoder::detail::WrappedException<std::runtime_error>(
        value.location(), std::runtime_error("\"" + text + "\" is no drive"));
}

void Fan::save(encoder::Object& object) const {
    object.addMember("location").writeString(location_);
    object.addMember("power").writeNumber(utils::numeric::format(power_));
    object.addMember("blades").writeNumber(utils::numeric::format(blades_));
    object.addMember("drive").writeString(kDriveTexts[static_cast<std::size_t>(drive_)]);
    object.addMember("reversible").writeBool(reversible_);
    runUp_.saveTo(object, "runUp");
    if (isVariable()) {
        object.addMember("lowest").writeNumber(utils::numeric::format(lowest_));
        object.addMember("highest").writeNumber(utils::numeric::format(highest_));
    }
    source_.saveTo(object, "source");
    encoder::Array rows = object.addMember("limits").writeArray();
    for (std::size_t index = 0; index < limits_.size(); ++index) {
        limits_[index].saveTo(rows);
    }
}

} // namespace

std::unique_ptr<skill::Element> makeHandwrittenFan() {
    return std::make_unique<Fan>();
}

} // namespace corvane::bench
