/// The parts of a system and what is wrong with them.
#pragma once

#include <string>
#include <string_view>

#include "tools/health.h"

namespace tqcim::tools {

/// A property as plain text; empty where the instance doesn't have it.
std::string TextOf(const host::Instance& instance, std::string_view property);

/// All instances of a class, one by one. Throws Failure where the provider fails.
void ForEach(host::ManagementHost& host, std::string_view class_name,
             const host::ManagementHost::InstanceCallback& callback);

/// Fills all of `health` but records and source.
void ReadParts(host::ManagementHost& host, Health& health);

/// Fills the records: of the findings, and the others.
void ReadRecords(host::ManagementHost& host, Health& health);

}  // namespace tqcim::tools
