#include <ctime>

#include "classes/inventory/firmware_states.h"
#include "classes/inventory/handlers.h"
#include "core/cim_datetime.h"
#include "core/instance.h"
#include "core/property_names.h"
#include "core/results.h"
#include "core/text.h"
#include "platform/layouts/firmware.h"

namespace tqcim {
namespace {

namespace bios = layout::bios;

constexpr const OLECHAR* kSystemBios = OLESTR("System Bios");

/// Midnight of the day that "month/day/year" names. A missing field stays 0; years above 1900 are
/// counted from there, others (two digits) are taken as they stand.
std::tm ReleaseTime(const char* text) {
  int32_t fields[3] = {};
  for (int32_t& field : fields) {
    field = ScanDecimal(text);
    text = text ? std::strchr(text, '/') : nullptr;
    if (!text) break;
    ++text;
  }
  const auto [month, day, year] = fields;
  std::tm time{};
  time.tm_mon = month - 1;
  time.tm_mday = day;
  time.tm_year = year > 1900 ? year - 1900 : year;
  return time;
}

void PutInstallDate(Instance& instance, const Utf8Text& releaseDate) {
  const std::tm released = ReleaseTime(releaseDate.get());
  if (const SupportText date = FormatCimDateTime(&released)) {
    instance.PutDateTime(OLESTR("InstallDate"), date.get());
  }
}

void PutBiosProperties(Instance& instance, const DataObject& object) {
  PutInstallDate(instance, object[bios::kReleaseDate]);
  instance.Put(OLESTR("Version"), Variant::Text(object[bios::kVersion]));
  // The version stands here until the fixed identifier below replaces it.
  instance.Put(OLESTR("SoftwareElementID"), Variant::Text(object[bios::kVersion]));
  instance.Put(OLESTR("Manufacturer"), Variant::Text(object[bios::kManufacturer]));
  instance.Put(OLESTR("PrimaryBIOS"), Variant::Bool(1));
  instance.Put(OLESTR("SoftwareElementState"), Variant::Int32(kSoftwareElementState));
  instance.Put(OLESTR("SoftwareElementID"), Variant::Text(kSystemBios));
  instance.Put(property::kName, Variant::Text(kSystemBios));
  instance.Put(OLESTR("TargetOperatingSystem"), Variant::Int32(kOtherOperatingSystem));
}

HRESULT DeliverBios(const DataObject& object, IWbemClassObject* classDefinition,
                    IWbemObjectSink* sink) {
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutBiosProperties(instance, object);
  return instance.Indicate(sink);
}

}  // namespace

HRESULT CIM_BIOSElement::EnumerateInstances(IWbemClassObject* classDefinition,
                                            IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, bios::kType);
  return object ? DeliverBios(object, classDefinition, sink) : S_OK;
}

HRESULT CIM_BIOSElement::GetInstance(IWbemClassObject* classDefinition, IWbemPathKeyList*,
                                     IWbemObjectSink* sink) {
  const DataObject object = GetChildObjectOfOid2(0, bios::kType);
  return object ? DeliverBios(object, classDefinition, sink) : kNotFound;
}

}  // namespace tqcim
