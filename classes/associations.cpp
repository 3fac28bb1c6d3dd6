#include "classes/associations.h"

#include "core/store_access.h"
#include "platform/layouts/chassis.h"

namespace tqcim {

std::optional<ObjectPath> ChassisPath(uint32_t chassisOid) {
  namespace description = layout::chassis_description;
  const DataObject object = GetChildObject(chassisOid, description::kType, 0);
  if (!object) return std::nullopt;
  return FormatObjectPath(
      OLESTR("\\\\.\\root\\cimv2\\vorn:VORN_Chassis.CreationClassName=\"VORN_Chassis\",Tag=\"%s\""),
      {object[description::kName]});
}

void PutEnds(Instance& instance, WideView dependent, WideView antecedent) {
  instance.Put(OLESTR("Dependent"), Variant::Text(Bstr(dependent)));
  instance.Put(OLESTR("Antecedent"), Variant::Text(Bstr(antecedent)));
}

}  // namespace tqcim
