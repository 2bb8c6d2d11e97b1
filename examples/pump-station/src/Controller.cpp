#include "Controller.hpp"

#include "durations.hpp"
#include "editors.hpp"
#include "members.hpp"
#include "rules.hpp"
#include "settingsEditor.hpp"
#include "timeStamps.hpp"
#include "visitUntil.hpp"
#include <corvane/utils/json/decoder/AllowLegacyMicrosecondsTag.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <array>

namespace pump_station {

namespace config = corvane::workbench::config;
namespace core = corvane::utils::core;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;
namespace model = corvane::workbench::model;
namespace process = corvane::workbench::process;

using corvane::workbench::bindings::PropertyKey;
using corvane::workbench::chrono::Duration;
using corvane::workbench::json::Object;

namespace {

const PropertyKey kAddress;
const PropertyKey kPort;
const PropertyKey kSecurity;
const PropertyKey kCertificate;
const PropertyKey kPollInterval;
const PropertyKey kReconnectDelay;
const PropertyKey kCommissioned;
const PropertyKey kAssetId;
const PropertyKey kSettings;

constexpr std::array<std::string_view, 2> kSecurityTexts{"none", "certificate"};

} // namespace

void Controller::configureProperties(PropertyConfigurationContext& context) {
    context.configure(kAddress, {.state = [this] {
                          return require(!address_.empty(), "Enter the address of the controller.");
                      }});
    context.configure(kPort, {.state = [this] {
                          return require(port_ >= 1 && port_ <= 65535,
                                         "The port must lie between 1 and 65535.");
                      }});
    context.configure(kCertificate,
                      {.state =
                           [this] {
                               return require(!certificate_.empty(),
                                              "Enter the file name of the certificate.");
                           },
                       .visibility = [this] { return security_ == Security::Certificate; },
                       .visibilityDependencies = {kSecurity}});
    context.configure(kPollInterval, {.state = [this] {
                          return require(seconds(pollInterval_) > 0,
                                         "The poll interval must be longer than 0.");
                      }});
    context.configure(
        kReconnectDelay,
        {.state =
             [this] {
                 return require(seconds(reconnectDelay_) >= seconds(pollInterval_),
                                "The reconnect delay must not be shorter than the poll interval.");
             },
         .stateDependencies = {kPollInterval}});
    context.configure(kCommissioned, {.state = [this] {
                          return require(commissioned_.empty() || isTimeStamp(commissioned_),
                                         "The time stamp must read like “2024-05-06 07:08:09Z”.");
                      }});
}

void Controller::forEachEditableProperty(
    core::function_ref<void(const EditableProperty&)> callback) {
    callback(textEditor({"address", "Address", propertyHandle(kAddress)}, address_));
    callback(integerEditor({"port", "Port", propertyHandle(kPort)}, port_));
    callback(choiceEditor({"security", "Security", propertyHandle(kSecurity)}, kSecurityTexts,
                          security_));
    callback(
        textEditor({"certificate", "Certificate", propertyHandle(kCertificate)}, certificate_));
    callback(durationEditor({"pollInterval", "Poll interval", propertyHandle(kPollInterval)},
                            pollInterval_));
    callback(durationEditor({"reconnectDelay", "Reconnect delay", propertyHandle(kReconnectDelay)},
                            reconnectDelay_));
    callback(timeStampEditor({"commissioned", "Commissioned", propertyHandle(kCommissioned)},
                             commissioned_));
    callback(uuidEditor({"assetId", "Asset id", propertyHandle(kAssetId)}, assetId_));
    callback(settingsEditor({"settings", "Driver settings", propertyHandle(kSettings)}, settings_));
}

void Controller::load(decoder::Object& object, config::Context& /*context*/) {
    for (const auto& [name, value] : object) {
        if (name == "address") {
            address_ = readText(value);
        } else if (name == "port") {
            port_ = readInteger(value);
        } else if (name == "security") {
            readChoice(value, kSecurityTexts, security_);
        } else if (name == "certificate") {
            certificate_ = readText(value);
        } else if (name == "pollInterval") {
            // Early versions wrote a plain count of microseconds.
            pollInterval_ = Duration::load(value, decoder::kAllowLegacyMicroseconds);
        } else if (name == "reconnectDelay") {
            reconnectDelay_ = Duration::load(value, decoder::kAllowLegacyMicroseconds);
        } else if (name == "commissioned") {
            commissioned_ = readText(value);
        } else if (name == "assetId") {
            assetId_ = readUuid(value);
        } else if (name == "settings") {
            // The names that the element format reserves are refused here as well, so that the
            // settings could one day stand beside them.
            settings_.decode(value, Object::kCorvaneElementFilter);
        } else {
            config::throwUnknownParameterError(name);
        }
    }
}

void Controller::save(encoder::Object& object) const {
    writeText(object, "address", address_);
    writeInteger(object, "port", port_);
    writeChoice(object, "security", kSecurityTexts, security_);
    if (security_ == Security::Certificate) {
        writeText(object, "certificate", certificate_);
    }
    pollInterval_.saveTo(object, "pollInterval");
    reconnectDelay_.saveTo(object, "reconnectDelay");
    if (!commissioned_.empty()) {
        writeText(object, "commissioned", commissioned_);
    }
    writeText(object, "assetId", assetId_.toString());
    if (!settings_.empty()) {
        encoder::Value settings = object.addMember("settings");
        settings_.encode(settings);
    }
}

void Controller::makeDefault() {
    address_ = "192.168.0.10";
    port_ = 502;
    pollInterval_ = Duration(250, Duration::Units::Milliseconds);
    reconnectDelay_ = Duration(5, Duration::Units::Seconds);
    assetId_ = core::Uuid::generate();
}

bool Controller::forEachAttribute(
    const core::function_ref<bool(const model::Attribute&)>& callback) const {
    return callback(model::Attribute::kDeviceState);
}

bool Controller::forEachEvent(
    const core::function_ref<bool(const process::Event&)>& callback) const {
    return callback(process::Event::kConnected) || callback(process::Event::kDisconnected);
}

bool Controller::forEachTask(const core::function_ref<bool(const process::Task&)>& callback) const {
    return callback(process::Task::kReconnect);
}

} // namespace pump_station
