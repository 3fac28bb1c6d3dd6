#include "classes/device_names.h"

#include "core/computer_name.h"
#include "core/property_names.h"

namespace tqcim {

void PutDeviceNames(Instance& instance, const OLECHAR* className) {
  instance.Put(property::kCreationClassName, Variant::Text(className));
  instance.Put(property::kSystemCreationClassName, Variant::Text(property::kComputerSystem));
  instance.Put(property::kSystemName, Variant::Text(ComputerName()));
}

}  // namespace tqcim
