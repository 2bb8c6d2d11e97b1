#include "Controller.hpp"

#include <corvane/workbench/kit/seconds.hpp>

namespace pump_station {

using chrono::Duration;
using corvane::utils::core::Uuid;

void Controller::describe(kit::Form& form) {
    form.text("address", "Address", address_)
        .initially("192.168.0.10")
        .required("Enter the address of the controller.");
    form.integer("port", "Port", port_)
        .initially(502)
        .range(1, 65535, "The port must lie between 1 and 65535.");
    form.choice("security", "Security", security_, {"none", "certificate"});
    form.text("certificate", "Certificate", certificate_)
        .required("Enter the file name of the certificate.")
        .visibleIf([this] { return security_ == Security::Certificate; }, security_)
        .savedWhenVisible();
    form.duration("pollInterval", "Poll interval", pollInterval_)
        .acceptsMicroseconds()
        .initially(Duration(250, Duration::Units::Milliseconds))
        .rule([](const Duration& interval) { return kit::seconds(interval) > 0; },
              "The poll interval must be longer than 0.");
    form.duration("reconnectDelay", "Reconnect delay", reconnectDelay_)
        .acceptsMicroseconds()
        .initially(Duration(5, Duration::Units::Seconds))
        .rule([this] { return kit::seconds(reconnectDelay_) >= kit::seconds(pollInterval_); },
              "The reconnect delay must not be shorter than the poll interval.", pollInterval_);
    form.timeStamp("commissioned", "Commissioned", commissioned_).savedWhenNotInitial();
    form.uuid("assetId", "Asset id", assetId_).generated(Uuid::generate);
    // The settings could one day stand beside the reserved names.
    form.json("settings", "Driver settings", settings_).refusesReservedNames();

    form.attribute(model::Attribute::kDeviceState);
    form.event(process::Event::kConnected);
    form.event(process::Event::kDisconnected);
    form.task(process::Task::kReconnect);
}

} // namespace pump_station
