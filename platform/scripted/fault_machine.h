// A machine that breaks down once: for tests of what the client makes of it.
#ifndef PLATFORM_SCRIPTED_FAULT_MACHINE_H_
#define PLATFORM_SCRIPTED_FAULT_MACHINE_H_

#include <optional>
#include <string>

#include "platform/machine.h"

namespace velmohelp {

/// Passes every question on to another machine but one, which it answers with
/// "this machine cannot".
class FaultMachine : public Machine {
 public:
  /// fails_at: the number of the question that fails, from 1; 0 for none.
  FaultMachine(Machine& machine, int fails_at)
      : machine_(machine), fails_at_(fails_at) {}

  /// How many questions were asked so far.
  int Asked() const { return asked_; }

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
  bool Fails() { return ++asked_ == fails_at_; }

  Machine& machine_;
  int fails_at_;
  int asked_ = 0;
};

}  // namespace velmohelp

#endif  // PLATFORM_SCRIPTED_FAULT_MACHINE_H_
