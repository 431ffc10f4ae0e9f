// JSON against a JSON Schema of docs/schema.
#ifndef TESTS_SYSTEM_JSON_SCHEMA_H_
#define TESTS_SYSTEM_JSON_SCHEMA_H_

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace velmohelp::testing {

/// What in a value differs from its schema: "/cause/name: is not one of the
/// values". Knows the keywords that the schemas use, and objects to others. A
/// member that the schema does not name is a difference too: it is not
/// documented.
std::vector<std::string> SchemaErrors(const nlohmann::json& value,
                                      const nlohmann::json& schema,
                                      const std::string& path = "");

/// A schema of docs/schema.
nlohmann::json DocumentedSchema(const std::string& name);

}  // namespace velmohelp::testing

#endif  // TESTS_SYSTEM_JSON_SCHEMA_H_
