#include <nlohmann/json.hpp>

#include "tools/formats.h"

namespace tqcim::tools {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const host::Scalar& scalar) {
  return std::visit([](const auto& held) { return Json(held); }, scalar);
}

Json ToJson(const host::Value& value) {
  if (const auto* array = std::get_if<host::Array>(&value)) {
    Json elements = Json::array();
    for (const host::Scalar& element : *array) elements.push_back(ToJson(element));
    return elements;
  }
  const std::optional<host::Scalar> scalar = host::ToScalar(value);
  return scalar ? ToJson(*scalar) : Json();
}

std::string Text(const Json& document) {
  return document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string JsonText(const std::vector<host::Instance>& instances) {
  Json document = Json::array();
  for (const host::Instance& instance : instances) {
    Json object = Json::object();
    for (const host::Property& property : instance.properties) {
      object.emplace(property.name, ToJson(property.value));
    }
    document.push_back(std::move(object));
  }
  return Text(document);
}

std::string JsonText(const std::vector<ClassSummary>& classes) {
  Json document = Json::array();
  for (const ClassSummary& summary : classes) {
    document.push_back({{"class", summary.name},
                        {"instances", summary.instances},
                        {"status", summary.status ? Json(*summary.status) : Json()}});
  }
  return Text(document);
}

}  // namespace tqcim::tools
