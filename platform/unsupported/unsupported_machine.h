// A machine that can do nothing: what the client is on a system that nobody
// has written a folder for yet, and the template for writing one.
#ifndef PLATFORM_UNSUPPORTED_UNSUPPORTED_MACHINE_H_
#define PLATFORM_UNSUPPORTED_UNSUPPORTED_MACHINE_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

class UnsupportedMachine : public Machine {
 public:
  bool FileExists(const std::string& path) override;
  std::optional<FileEntry> FindFile(const std::string& path) override;
  std::optional<std::string> StandardFolder(std::int16_t domain,
                                            std::uint32_t type,
                                            bool create) override;
  std::optional<std::string> ResourcesDirectory() override;
  std::optional<std::string> BundleDirectory(
      const std::string& identifier) override;
  std::optional<std::string> ApplicationExecutable(
      const std::string& directory) override;
  std::optional<int> RunToEnd(const std::string& program,
                              const Arguments& arguments) override;
  std::optional<std::string> FirstOutput(const std::string& program,
                                         const Arguments& arguments) override;
  bool StartProgram(const std::string& program,
                    const Arguments& arguments) override;
  bool OpenInBrowser(const std::string& url) override;
  std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host) override;
  std::optional<std::string> Preference(const std::string& domain,
                                        const std::string& key,
                                        PreferenceScope scope) override;
  bool FetchText(const std::string& url) override;
};

}  // namespace velmohelp

#endif  // PLATFORM_UNSUPPORTED_UNSUPPORTED_MACHINE_H_
