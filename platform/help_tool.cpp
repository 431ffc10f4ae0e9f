#include "platform/help_tool.h"

#include <optional>
#include <utility>

#include "platform/files.h"
#include "util/text_buffer.h"
#include "util/text_encoding.h"

namespace velmohelp {
namespace {

constexpr char kFrameworkIdentifier[] = "com.velmo.vxclientframework";
// The bundle's path is followed by "/" and then by this: the slash is doubled.
constexpr char kToolInFramework[] = "/Versions/A/Resources/QTV";

/// nullopt when the tool does not exist.
std::optional<std::string> ToolPath(Machine& machine) {
  const auto bundle = machine.BundleDirectory(kFrameworkIdentifier);
  if (!bundle) return std::nullopt;
  const std::string path = *bundle + "/" + kToolInFramework;
  if (!FitsTextBuffer(path) || !FileExists(machine, path)) return std::nullopt;
  return path;
}

/// The path that the tool printed; "" when there is none. One line feed at the
/// end is the tool's, everything else belongs to the path.
std::string PathFromOutput(const std::string& output) {
  if (output.find('\0') != std::string::npos) return "";
  auto path = DecodeText(output, TextEncoding::kAscii);
  if (!path || !FitsTextBuffer(*path)) return "";
  if (path->ends_with('\n')) path->pop_back();
  return std::move(*path);
}

std::string ExecutableOf(Machine& machine, const std::string& directory) {
  if (directory.empty()) return "";
  const auto executable = machine.ApplicationExecutable(directory);
  return executable && FitsTextBuffer(*executable) ? *executable : "";
}

}  // namespace

bool IsZamRuntimePresent(Machine& machine) {
  const auto tool = ToolPath(machine);
  return tool && machine.RunToEnd(*tool, {"-isRuntimeInstalled"}) == 0;
}

std::string HelpApplicationPath(Machine& machine,
                                const ViewerIdentity& viewer) {
  const auto tool = ToolPath(machine);
  if (!tool) return "";
  const Arguments is_installed = {"-isAppInstalled", viewer.app_id,
                                  viewer.publisher_id};
  if (machine.RunToEnd(*tool, is_installed) != 0) return "";
  const Arguments location = {"-appLocation", viewer.app_id,
                              viewer.publisher_id};
  const auto output = machine.FirstOutput(*tool, location);
  return output ? ExecutableOf(machine, PathFromOutput(*output)) : "";
}

}  // namespace velmohelp
