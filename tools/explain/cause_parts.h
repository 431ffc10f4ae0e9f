// The kinds of causes. Each function returns nullopt when its kind does not
// apply.
#ifndef TOOLS_EXPLAIN_CAUSE_PARTS_H_
#define TOOLS_EXPLAIN_CAUSE_PARTS_H_

#include <optional>
#include <string_view>

#include "tools/explain/cause.h"

namespace velmohelp::tool {

/// The configuration, its values and the request's arguments.
std::optional<Cause> ConfigurationCause(const Run& run,
                                        const Surroundings& around);
/// A viewer or browser that does not start.
std::optional<Cause> LaunchCause(const Run& run);
/// A page that is in no content folder.
std::optional<Cause> PageCause(const Run& run);
/// A page that its program cannot show.
std::optional<Cause> TargetCause(const Run& run, const Surroundings& around);

/// The last step of a kind and name since the request began; null for none.
const Step* LastStep(const Run& run, Step::Kind kind,
                     std::string_view name = {});
/// The same for a question with this first argument.
const Step* LastQuestion(const Run& run, std::string_view verb,
                         std::string_view subject);

/// " (why)", or "".
std::string InBrackets(const std::string& reason);

}  // namespace velmohelp::tool

#endif  // TOOLS_EXPLAIN_CAUSE_PARTS_H_
