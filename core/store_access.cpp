#include "core/store_access.h"

#include <iterator>

#include "platform/layouts/chassis.h"

namespace tqcim {

OidList ListChildren(uint32_t parentOid, uint16_t objectType) {
  return OidList(SMILListChildOIDByType(&parentOid, objectType));
}

DataObject ReadObject(uint32_t oid) {
  return DataObject(SMILGetObjByOID(&oid));
}

const OLECHAR* StatusToText(uint32_t status) {
  static constexpr const OLECHAR* kTexts[] = {OLESTR("Other"), OLESTR("Unknown"),
                                              OLESTR("OK"),    OLESTR("Stressed"),
                                              OLESTR("Error"), OLESTR("NonRecover")};
  return status < std::size(kTexts) ? kTexts[status] : OLESTR("Stressed");
}

DataObject GetChildObjectOfOid2(uint16_t index, uint16_t objectType) {
  return GetChildObject(layout::system::kMainChassisOid, objectType, index);
}

DataObject GetChildObject(uint32_t parentOid, uint16_t objectType, uint16_t index) {
  const OidList children = ListChildren(parentOid, objectType);
  return index < children.size() ? ReadObject(children[index]) : DataObject();
}

DataObject GetObjectByCursor(uint32_t& outer, uint32_t& inner, uint16_t objectType) {
  const OidList chassis = ListChildren(layout::system::kRootOid, layout::chassis::kType);
  for (; outer < chassis.size() && outer < kPositionLimit; ++outer, inner = 0) {
    const OidList children = ListChildren(chassis[outer], objectType);
    if (!children) break;
    if (inner < children.size()) {
      return inner < kPositionLimit ? ReadObject(children[inner]) : DataObject();
    }
  }
  return {};
}

}  // namespace tqcim
