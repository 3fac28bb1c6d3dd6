#include "tools/formats.h"
#include "tools/json.h"

namespace tqcim::tools {
namespace {

/// One overload for whatever a value may hold.
Json JsonOf(std::monostate) {
  return {};
}
template <typename T>
Json JsonOf(const T& scalar) {
  return scalar;
}
Json JsonOf(const host::Array& array) {
  Json elements = Json::array();
  for (const host::Scalar& element : array) {
    elements.push_back(std::visit([](const auto& held) { return JsonOf(held); }, element));
  }
  return elements;
}

/// The names of an instance's properties differ: none is looked up among those before.
Json InstanceJson(const host::Instance& instance) {
  Json::object_t object;
  object.reserve(instance.properties.size());
  for (const host::Property& property : instance.properties) {
    object.push_back({property.name, ToJson(property.value)});
  }
  return object;
}

Json InstancesJson(const std::vector<host::Instance>& instances) {
  Json array = Json::array();
  for (const host::Instance& instance : instances) array.push_back(InstanceJson(instance));
  return array;
}

}  // namespace

Json ToJson(const host::Value& value) {
  return std::visit([](const auto& held) { return JsonOf(held); }, value);
}

std::string DocumentText(const Json& document) {
  return document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string JsonText(const std::vector<host::Instance>& instances) {
  return DocumentText(InstancesJson(instances));
}

std::string JsonText(const std::vector<ClassSummary>& classes) {
  Json document = Json::array();
  for (const ClassSummary& summary : classes) {
    document.push_back({{"class", summary.name},
                        {"instances", summary.instances},
                        {"status", summary.status ? Json(*summary.status) : Json()}});
  }
  return DocumentText(document);
}

std::string JsonText(const std::vector<ClassInstances>& classes) {
  Json::object_t document;
  document.reserve(classes.size());
  for (const ClassInstances& one : classes) {
    document.push_back({one.name, one.instances ? InstancesJson(*one.instances) : Json()});
  }
  return DocumentText(document);
}

}  // namespace tqcim::tools
