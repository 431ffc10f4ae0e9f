// The client's machine on Linux: each question handed to the file that
// answers it.
#ifndef PLATFORM_LINUX_LINUX_MACHINE_H_
#define PLATFORM_LINUX_LINUX_MACHINE_H_

#include <optional>
#include <string>

#include "platform/linux/helper_answers.h"
#include "platform/linux/programs.h"
#include "platform/machine.h"

namespace velmohelp {

class LinuxMachine : public Machine {
 public:
  /// With the helpers that lie beside the library.
  LinuxMachine();
  /// With helpers from another folder.
  explicit LinuxMachine(const std::string& helper_folder,
                        Patience patience = {});
  LinuxMachine(const LinuxMachine&) = delete;
  LinuxMachine& operator=(const LinuxMachine&) = delete;

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

 private:
  Programs programs_;
  HelperAnswers helpers_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_LINUX_MACHINE_H_
