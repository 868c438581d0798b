#include "tools/quill-inp/formats/json_schema.hpp"

#include <algorithm>
#include <cmath>
#include <regex>
#include <stdexcept>
#include <string>

#include <nlohmann/json.hpp>

namespace kelp::input::quill::tool {

namespace {

using Json = nlohmann::json;

class Validator {
 public:
  explicit Validator(const Json& root) : root_(root) {}

  bool is_valid(const Json& value, const Json& schema) const {
    return std::all_of(schema.items().begin(), schema.items().end(), [&](const auto& keyword) {
      return follows(value, keyword.key(), keyword.value(), schema);
    });
  }

 private:
  bool follows(const Json& value, const std::string& keyword, const Json& rule,
               const Json& schema) const {
    if (keyword == "$schema" || keyword == "title" || keyword == "description" ||
        keyword == "$defs" || keyword == "additionalProperties")
      return true;  // the last one is part of "properties" below
    if (keyword == "$ref") return is_valid(value, resolve(rule.get<std::string>()));
    if (keyword == "type") return has_type(value, rule.get<std::string>());
    if (keyword == "enum") return std::find(rule.begin(), rule.end(), value) != rule.end();
    if (keyword == "minimum") return !value.is_number() || value >= rule;
    if (keyword == "maximum") return !value.is_number() || value <= rule;
    if (keyword == "pattern")
      return !value.is_string() ||
             std::regex_search(value.get<std::string>(), std::regex(rule.get<std::string>()));
    if (keyword == "oneOf") {
      return std::count_if(rule.begin(), rule.end(),
                           [&](const Json& option) { return is_valid(value, option); }) == 1;
    }
    if (keyword == "items") {
      return !value.is_array() || std::all_of(value.begin(), value.end(), [&](const Json& entry) {
        return is_valid(entry, rule);
      });
    }
    if (keyword == "required") {
      return !value.is_object() || std::all_of(rule.begin(), rule.end(), [&](const Json& name) {
        return value.contains(name.get<std::string>());
      });
    }
    if (keyword == "properties") return !value.is_object() || has_properties(value, rule, schema);
    throw std::runtime_error("unknown keyword " + keyword);
  }

  const Json& resolve(const std::string& reference) const {
    return root_.at(Json::json_pointer(reference.substr(1)));
  }

  bool has_properties(const Json& value, const Json& properties, const Json& schema) const {
    if (schema.at("additionalProperties") != false) throw std::runtime_error("open object");
    const auto members = value.items();
    return std::all_of(members.begin(), members.end(), [&](const auto& member) {
      return properties.contains(member.key()) &&
             is_valid(member.value(), properties[member.key()]);
    });
  }

  static bool has_type(const Json& value, const std::string& type) {
    if (type == "object") return value.is_object();
    if (type == "array") return value.is_array();
    if (type == "string") return value.is_string();
    if (type == "boolean") return value.is_boolean();
    if (type == "number") return value.is_number();
    if (type == "integer")
      return value.is_number() && std::trunc(value.get<double>()) == value.get<double>();
    throw std::runtime_error("unknown type " + type);
  }

  const Json& root_;
};

}  // namespace

bool is_valid(const nlohmann::json& value, const nlohmann::json& schema) {
  return Validator(schema).is_valid(value, schema);
}

}  // namespace kelp::input::quill::tool
