#include "host/refused_puts.h"

#include <map>
#include <mutex>
#include <tuple>

namespace tqcim::host {
namespace {

struct Record {
  std::mutex mutex;
  std::map<std::tuple<std::string, std::string, HRESULT>, size_t> counts;
};

Record& TheRecord() {
  static Record record;
  return record;
}

}  // namespace

void RefusedPuts::Add(std::string_view class_name, std::string_view property, HRESULT result) {
  Record& record = TheRecord();
  const std::lock_guard lock(record.mutex);
  ++record.counts[{std::string(class_name), std::string(property), result}];
}

std::vector<RefusedPut> RefusedPuts::All() {
  Record& record = TheRecord();
  const std::lock_guard lock(record.mutex);
  std::vector<RefusedPut> all;
  for (const auto& [put, count] : record.counts) {
    const auto& [class_name, property, result] = put;
    all.push_back({class_name, property, result, count});
  }
  return all;
}

void RefusedPuts::Clear() {
  Record& record = TheRecord();
  const std::lock_guard lock(record.mutex);
  record.counts.clear();
}

}  // namespace tqcim::host
