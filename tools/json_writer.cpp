#include "tools/json_writer.h"

#include <algorithm>
#include <charconv>
#include <concepts>
#include <iterator>
#include <nlohmann/json.hpp>
#include <type_traits>
#include <variant>

namespace tqcim::tools {
namespace {

std::string LibraryText(const auto& value) {
  return nlohmann::json(value).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

/// Adds a value; one overload for whatever it may be.
void Append(std::string& text, std::monostate) {
  text += "null";
}
void Append(std::string& text, bool value) {
  text += value ? "true" : "false";
}
template <std::integral T>
void Append(std::string& text, T number) {
  char digits[20];
  text.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}
void Append(std::string& text, double number) {
  text += LibraryText(number);
}
void Append(std::string& text, std::string_view value) {
  const auto stands_for_itself = [](char c) {
    return c >= ' ' && c <= '~' && c != '"' && c != '\\';
  };
  if (std::all_of(value.begin(), value.end(), stands_for_itself)) {
    text.append(1, '"').append(value).append(1, '"');
  } else {
    text += LibraryText(value);
  }
}

}  // namespace

void JsonWriter::Name(std::string_view name) {
  BeginItem();
  Append(text_, name);
  text_ += ": ";
  is_named_ = true;
}

void JsonWriter::Value(const host::Value& value) {
  const auto write = [this](const auto& held) {
    if constexpr (std::is_same_v<decltype(held), const host::Array&>) {
      Array([&] {
        for (const host::Scalar& item : held) Value(host::ToValue(item));
      });
    } else {
      BeginItem();
      Append(text_, held);
    }
  };
  std::visit(write, value);
}

void JsonWriter::Begin(char bracket) {
  BeginItem();
  text_ += bracket;
  ++depth_;
  is_first_ = true;
}

void JsonWriter::End(char bracket) {
  --depth_;
  if (!is_first_) BeginLine();
  text_ += bracket;
  is_first_ = false;
}

void JsonWriter::BeginItem() {
  if (!is_named_ && depth_ != 0) {
    if (!is_first_) text_ += ',';
    BeginLine();
  }
  is_first_ = false;
  is_named_ = false;
}

void JsonWriter::BeginLine() {
  text_ += '\n';
  text_.append(2 * depth_, ' ');
}

}  // namespace tqcim::tools
