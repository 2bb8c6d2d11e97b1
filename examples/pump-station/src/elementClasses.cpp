#include "elementClasses.hpp"

#include "Controller.hpp"
#include "ElementClass.hpp"
#include "ElementFactory.hpp"
#include "Group.hpp"
#include "Measurement.hpp"
#include "Pump.hpp"
#include "PumpBalancer.hpp"
#include "SamplingTimer.hpp"
#include "Setpoint.hpp"
#include "Valve.hpp"

#include <array>

namespace pump_station {

namespace {

using corvane::workbench::model::ElementCategory;

// The order of statics within one source file is the order in which they stand here.
const ElementFactory<Group> kGroupFactory;
const ElementFactory<Controller> kControllerFactory;
const ElementFactory<Pump> kPumpFactory;
const ElementFactory<Valve> kValveFactory;
const ElementFactory<Measurement> kMeasurementFactory;
const ElementFactory<Setpoint> kSetpointFactory;
const ElementFactory<SamplingTimer> kSamplingTimerFactory;
const ElementFactory<PumpBalancer> kPumpBalancerFactory;

const ElementClass kArea({.id = "PumpStation.Area",
                          .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a01",
                          .displayName = "Area",
                          .description = "A part of the station, such as its intake.",
                          .category = ElementCategory::ElementGroup,
                          .children = {ElementCategory::ElementGroup, ElementCategory::Device,
                                       ElementCategory::Timer, ElementCategory::Microservice},
                          .defaultName = "Area"},
                         kGroupFactory);

const ElementClass
    kController({.id = "PumpStation.Controller",
                 .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a02",
                 .displayName = "Pump controller",
                 .description = "A controller on the network, with pumps and valves.",
                 .category = ElementCategory::Device,
                 .children = {ElementCategory::SubDevice, ElementCategory::DataPointGroup,
                              ElementCategory::DataPoint},
                 .defaultName = "Controller"},
                kControllerFactory);

const ElementClass kPump({.id = "PumpStation.Pump",
                          .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a03",
                          .displayName = "Pump",
                          .description = "A pump with its drive.",
                          .category = ElementCategory::SubDevice,
                          .children = {ElementCategory::DataPoint},
                          .defaultName = "Pump"},
                         kPumpFactory);

const ElementClass kValve({.id = "PumpStation.Valve",
                           .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a04",
                           .displayName = "Valve",
                           .description = "A valve that shuts a pipe or controls its flow.",
                           .category = ElementCategory::SubDevice,
                           .children = {ElementCategory::DataPoint},
                           .defaultName = "Valve"},
                          kValveFactory);

const ElementClass
    kMeasurementGroup({.id = "PumpStation.MeasurementGroup",
                       .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a05",
                       .displayName = "Measurement group",
                       .description = "Data points that belong together.",
                       .category = ElementCategory::DataPointGroup,
                       .children = {ElementCategory::DataPointGroup, ElementCategory::DataPoint},
                       .defaultName = "Measurements"},
                      kGroupFactory);

const ElementClass kMeasurement({.id = "PumpStation.Measurement",
                                 .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a06",
                                 .displayName = "Measurement",
                                 .description = "A measured value with its alarm limits.",
                                 .category = ElementCategory::DataPoint,
                                 .children = {},
                                 .defaultName = "Measurement"},
                                kMeasurementFactory);

const ElementClass kSetpoint({.id = "PumpStation.Setpoint",
                              .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a07",
                              .displayName = "Set point",
                              .description = "A wanted value, which can follow an event.",
                              .category = ElementCategory::DataPoint,
                              .children = {},
                              .defaultName = "Set point"},
                             kSetpointFactory);

const ElementClass kSamplingTimer({.id = "PumpStation.SamplingTimer",
                                   .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a08",
                                   .displayName = "Timer",
                                   .description = "Triggers tasks at a regular interval.",
                                   .category = ElementCategory::Timer,
                                   .children = {},
                                   .defaultName = "Timer"},
                                  kSamplingTimerFactory);

const ElementClass
    kPumpBalancer({.id = "PumpStation.PumpBalancer",
                   .uuid = "0e6b5c1a-6d0f-4a53-9f0e-1b6f0b6f7a09",
                   .displayName = "Pump balancer",
                   .description = "Sets the speed of a pump from weighted attributes.",
                   .category = ElementCategory::Microservice,
                   .children = {},
                   .defaultName = "Balancer"},
                  kPumpBalancerFactory);

constexpr std::array<const ElementClass*, 9> kAll{&kArea,     &kController,       &kPump,
                                                  &kValve,    &kMeasurementGroup, &kMeasurement,
                                                  &kSetpoint, &kSamplingTimer,    &kPumpBalancer};

} // namespace

std::span<const ElementClass* const> allElementClasses() {
    return kAll;
}

const ElementClass& pumpClass() {
    return kPump;
}

} // namespace pump_station
