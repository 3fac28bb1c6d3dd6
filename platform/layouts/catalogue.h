/// Every object type that the store can hold.
#pragma once

#include "platform/layouts/boards.h"
#include "platform/layouts/chassis.h"
#include "platform/layouts/event_log.h"
#include "platform/layouts/firmware.h"
#include "platform/layouts/header.h"
#include "platform/layouts/management_devices.h"
#include "platform/layouts/network_adapter.h"
#include "platform/layouts/ports.h"
#include "platform/layouts/power.h"
#include "platform/layouts/power_consumption.h"
#include "platform/layouts/power_profile.h"
#include "platform/layouts/probes.h"
#include "platform/layouts/processors_memory.h"
#include "platform/layouts/system.h"
#include "platform/layouts/watchdog.h"

namespace tqcim::layout {

// clang-format off
inline constexpr ObjectLayout kCatalogue[] = {
    system::kLayout,
    redundancy_group::kLayout,
    chassis::kLayout,
    firmware::kLayout,
    power_supply::kLayout,
    probe::kTemperatureLayout,
    probe::kFanLayout,
    probe::kVoltageLayout,
    probe::kCurrentLayout,
    processor_sensor::kLayout,
    battery_sensor::kLayout,
    intrusion::kLayout,
    watchdog::kLayout,
    event_log::kLayout,
    chassis_description::kLayout,
    chassis_identity::kLayout,
    power_consumption::kLayout,
    power_profile::kLayout,
    services_device::kLayout,
    sd_card::kLayout,
    custom_profile::kMemoryLayout,
    custom_profile::kFanLayout,
    custom_profile::kProcessorLayout,
    network_adapter::kLayout,
    parallel_port::kLayout,
    serial_port::kLayout,
    processor_device::kLayout,
    pointing_device::kLayout,
    processor::kLayout,
    bios::kLayout,
    memory_device::kLayout,
    slot::kLayout,
    memory_redundancy::kLayout,
    management_agent::kLayout,
    baseboard::kLayout,
    remote_access_port::kLayout,
    remote_access_address::kLayout,
    fru::kParentLayout,
    fru::kOwnLayout,
    fru::kOtherOwnLayout,
    fru_identity::kLayout,
    bios_settings::kLayout,
};
// clang-format on

}  // namespace tqcim::layout
