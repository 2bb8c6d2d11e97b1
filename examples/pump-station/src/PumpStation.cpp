// The skill and its element classes. The one static object of the skill enters itself into the
// workbench's list when the library is loaded; nothing else has to be called.

#include "Controller.hpp"
#include "Group.hpp"
#include "Measurement.hpp"
#include "PumpBalancer.hpp"
#include "SamplingTimer.hpp"
#include "Setpoint.hpp"
#include "Valve.hpp"
#include "elementClasses.hpp"
#include <corvane/workbench/kit/Skill.hpp>

namespace pump_station {

using namespace kit::literals;
using enum model::ElementCategory;

namespace {

const kit::ElementClass<Group> kArea({
    .id = "PumpStation.Area",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a01"_uuid,
    .displayName = "Area",
    .description = "A part of the station, such as its intake.",
    .category = ElementGroup,
    .children = {ElementGroup, Device, Timer, Microservice},
});

const kit::ElementClass<Controller> kController({
    .id = "PumpStation.Controller",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a02"_uuid,
    .displayName = "Pump controller",
    .description = "A controller on the network, with pumps and valves.",
    .category = Device,
    .children = {SubDevice, DataPointGroup, DataPoint},
    .defaultName = "Controller",
});

const kit::ElementClass<Valve> kValve({
    .id = "PumpStation.Valve",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a04"_uuid,
    .displayName = "Valve",
    .description = "A valve that shuts a pipe or controls its flow.",
    .category = SubDevice,
    .children = {DataPoint},
});

const kit::ElementClass<Group> kMeasurementGroup({
    .id = "PumpStation.MeasurementGroup",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a05"_uuid,
    .displayName = "Measurement group",
    .description = "Data points that belong together.",
    .category = DataPointGroup,
    .children = {DataPointGroup, DataPoint},
    .defaultName = "Measurements",
});

const kit::ElementClass<Measurement> kMeasurement({
    .id = "PumpStation.Measurement",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a06"_uuid,
    .displayName = "Measurement",
    .description = "A measured value with its alarm limits.",
    .category = DataPoint,
});

const kit::ElementClass<Setpoint> kSetpoint({
    .id = "PumpStation.Setpoint",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a07"_uuid,
    .displayName = "Set point",
    .description = "A wanted value, which can follow an event.",
    .category = DataPoint,
});

const kit::ElementClass<SamplingTimer> kSamplingTimer({
    .id = "PumpStation.SamplingTimer",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a08"_uuid,
    .displayName = "Timer",
    .description = "Triggers tasks at a regular interval.",
    .category = Timer,
});

const kit::ElementClass<PumpBalancer> kPumpBalancer({
    .id = "PumpStation.PumpBalancer",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a09"_uuid,
    .displayName = "Pump balancer",
    .description = "Sets the speed of a pump from weighted attributes.",
    .category = Microservice,
    .defaultName = "Balancer",
});

} // namespace

const kit::ElementClass<Pump> kPump({
    .id = "PumpStation.Pump",
    .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a03"_uuid,
    .displayName = "Pump",
    .description = "A pump with its drive.",
    .category = SubDevice,
    .children = {DataPoint},
});

namespace {

const kit::Skill kPumpStation({.id = "PumpStation",
                               .displayName = "Pump station",
                               .version = "1.0.0",
                               .translationContext = "pump_station"},
                              {kArea, kController, kPump, kValve, kMeasurementGroup, kMeasurement,
                               kSetpoint, kSamplingTimer, kPumpBalancer});

} // namespace

} // namespace pump_station
