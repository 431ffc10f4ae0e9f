#include "tests/system/json_schema.h"

#include <algorithm>
#include <set>

#include "tests/support/temporary_directory.h"

namespace velmohelp::testing {
namespace {

using Json = nlohmann::json;
using Errors = std::vector<std::string>;

const std::set<std::string> kKeywords = {
    "$schema", "allOf",    "const",   "description", "enum",
    "if",      "items",    "maximum", "minimum",     "properties",
    "then",    "required", "title",   "type"};

/// "integer", "object" and so on.
std::string TypeOf(const Json& value) {
  return value.is_number_integer() ? "integer" : value.type_name();
}

bool HasType(const Json& value, const Json& type) {
  if (type.is_string()) return TypeOf(value) == type;
  return std::ranges::count(type, Json(TypeOf(value))) > 0;
}

class Validator {
 public:
  Validator(const Json& value, const Json& schema, const std::string& path)
      : value_(value), schema_(schema), path_(path) {}

  Errors Run() {
    for (const auto& [keyword, unused] : schema_.items()) {
      if (!kKeywords.contains(keyword)) Fail("unknown keyword " + keyword);
    }
    CheckValue();
    if (value_.is_object()) CheckObject();
    if (value_.is_array() && schema_.contains("items")) CheckItems();
    for (const Json& part : schema_.value("allOf", Json::array())) {
      CheckCondition(part);
    }
    return errors_;
  }

 private:
  void Fail(const std::string& why) { errors_.push_back(path_ + ": " + why); }

  void Descend(const Json& value, const Json& schema, const std::string& name) {
    const Errors below = SchemaErrors(value, schema, path_ + "/" + name);
    errors_.insert(errors_.end(), below.begin(), below.end());
  }

  void CheckValue() {
    if (schema_.contains("type") && !HasType(value_, schema_["type"])) {
      Fail("has the type " + TypeOf(value_));
    }
    if (schema_.contains("const") && value_ != schema_["const"]) {
      Fail("is not the value");
    }
    if (schema_.contains("enum") &&
        std::ranges::count(schema_["enum"], value_) == 0) {
      Fail(value_.dump() + " is not one of the values");
    }
    if (!value_.is_number()) return;
    if (value_ < schema_.value("minimum", value_)) Fail("is too small");
    if (value_ > schema_.value("maximum", value_)) Fail("is too large");
  }

  void CheckObject() {
    CheckRequired(schema_);
    const Json properties = schema_.value("properties", Json::object());
    for (const auto& [name, member] : value_.items()) {
      if (!properties.contains(name)) {
        Fail("has the member " + name);
      } else {
        Descend(member, properties[name], name);
      }
    }
  }

  void CheckRequired(const Json& schema) {
    for (const Json& name : schema.value("required", Json::array())) {
      if (!value_.contains(name)) Fail("lacks " + name.get<std::string>());
    }
  }

  void CheckItems() {
    for (std::size_t i = 0; i < value_.size(); ++i) {
      Descend(value_[i], schema_["items"], std::to_string(i));
    }
  }

  /// {"if": {"properties": {NAME: {"const": ...}}}, "then": {"required": ...}}
  void CheckCondition(const Json& part) {
    for (const auto& [name, wanted] : part["if"]["properties"].items()) {
      if (value_.value(name, Json()) != wanted["const"]) return;
    }
    CheckRequired(part["then"]);
  }

  const Json& value_;
  const Json& schema_;
  std::string path_;
  Errors errors_;
};

}  // namespace

Errors SchemaErrors(const Json& value, const Json& schema,
                    const std::string& path) {
  return Validator(value, schema, path).Run();
}

Json DocumentedSchema(const std::string& name) {
  return Json::parse(
      FileText(std::string(VELMO_TEST_SCHEMAS) + "/" + name + ".json"), nullptr,
      false);
}

}  // namespace velmohelp::testing
