#include <string>

#include "classes/device_names.h"
#include "classes/power/handlers.h"
#include "classes/walks.h"
#include "core/cim_datetime.h"
#include "core/results.h"
#include "platform/layouts/power_consumption.h"

namespace tqcim {
namespace {

namespace record = layout::power_consumption;

/// The text is the plain local time of the stored moment. A time that the platform can't tell stays
/// unset.
void PutTime(Instance& instance, const OLECHAR* name, int64_t secondsSince1970) {
  if (const SupportText text = FormatLocalDateTime(secondsSince1970)) {
    instance.PutDateTime(name, text.get());
  }
}

void PutConsumptionProperties(Instance& instance, const DataObject& object) {
  PutDeviceNames(instance, OLESTR("VORN_PowerConsumptionData"));
  instance.Put(property::kStatus, Variant::Text(StatusToText(object.Status())));
  instance.Put(property::kName, Variant::Text(object[record::kNameThroughLibrary].get()));
  instance.Put(OLESTR("cumulativePowerReading"),
               Variant::Int32(object[record::kCumulativeReading]));
  instance.Put(OLESTR("peakAmpReading"), Variant::Int32(object[record::kPeakAmps]));
  instance.Put(OLESTR("peakWattReading"), Variant::Int32(object[record::kPeakWatts]));
  PutTime(instance, OLESTR("cprStartTime"), object[record::kCumulativeStart]);
  PutTime(instance, OLESTR("pwrStartTime"), object[record::kPeakWattsStart]);
  PutTime(instance, OLESTR("pwrTime"), object[record::kPeakWattsTime]);
  PutTime(instance, OLESTR("parStartTime"), object[record::kPeakAmpsStart]);
  PutTime(instance, OLESTR("parTime"), object[record::kPeakAmpsTime]);
  instance.Put(OLESTR("minPowerConsumption"), Variant::Int32(object[record::kMinConsumption]));
  instance.Put(OLESTR("maxPowerConsumption"), Variant::Int32(object[record::kMaxConsumption]));
  // Put twice, as this class has always done.
  instance.Put(OLESTR("minPowerConsumption"), Variant::Int32(object[record::kMinConsumption]));
  instance.Put(OLESTR("powerCap"), Variant::Int32(object[record::kPowerCap]));
  instance.Put(OLESTR("powerCapCapabilities"),
               Variant::Int32(object[record::kPowerCapCapabilities]));
  instance.Put(OLESTR("powerCapSetting"), Variant::Int32(object[record::kPowerCapSetting]));
  instance.Put(OLESTR("instHeadRoom"), Variant::Int32(object[record::kInstantHeadroom]));
  instance.Put(OLESTR("peakHeadRoom"), Variant::Int32(object[record::kPeakHeadroom]));
}

}  // namespace

HRESULT VORN_PowerConsumptionData::EnumerateInstances(IWbemClassObject* classDefinition,
                                                      IWbemObjectSink* sink) {
  const auto put = [](Instance& instance, const DataObject& object, uint16_t position) {
    PutConsumptionProperties(instance, object);
    instance.Put(property::kDeviceId, Variant::Text(std::to_string(position).c_str()));
  };
  return EnumerateListed(record::kType, classDefinition, sink, put);
}

HRESULT VORN_PowerConsumptionData::GetInstance(IWbemClassObject* classDefinition,
                                               IWbemPathKeyList* keys, IWbemObjectSink* sink) {
  const PathKey key = FindTextKey(keys, property::kDeviceId, TextKey::kByVariant);
  if (!key.found) return kNotFound;
  const auto position = static_cast<uint16_t>(ScanDecimal(key.value.text()));
  const DataObject object = GetChildObjectOfOid2(position, record::kType);
  if (!object) return kNotFound;
  Instance instance(classDefinition);
  if (!instance) return instance.SpawnStatus();
  PutConsumptionProperties(instance, object);
  // The key goes back as the client wrote it: "01" stays "01".
  instance.Put(property::kDeviceId, Variant::Text(key.value.text()));
  instance.Indicate(sink);
  return S_OK;
}

}  // namespace tqcim
