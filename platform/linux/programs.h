// Running the programs of others: tools, the viewer, the browser.
#ifndef PLATFORM_LINUX_PROGRAMS_H_
#define PLATFORM_LINUX_PROGRAMS_H_

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "platform/linux/child_reaper.h"
#include "platform/linux/process.h"
#include "platform/linux/unique_fd.h"
#include "platform/machine.h"

namespace velmohelp {

/// See Machine for the first three. Every call first reaps the programs of
/// earlier ones that have ended.
class Programs {
 public:
  /// runner: the path of velmohelp-run, which keeps a tool's exit status from
  /// a host whose own handling of its children would lose it. Without that
  /// program, a tool's status is lost in such hosts.
  explicit Programs(std::string runner) : runner_(std::move(runner)) {}

  std::optional<int> RunToEnd(const std::string& program,
                              const Arguments& arguments);
  std::optional<std::string> FirstOutput(const std::string& program,
                                         const Arguments& arguments);

  /// Starts a program in its own session and leaves it alone.
  bool Start(const std::string& program, const Arguments& arguments);
  /// The same, and true only when it has not ended at once.
  bool StartAndCheck(const std::string& program, const Arguments& arguments);

  /// A helper's answer, see ReadAnswer; a helper without one is ended.
  std::optional<std::string> Answer(const std::string& program,
                                    const Arguments& arguments,
                                    std::chrono::milliseconds patience,
                                    std::size_t limit);

 private:
  /// A program, and the end of a pipe at which its output is read.
  struct Source {
    pid_t process;
    UniqueFd output;
  };

  std::optional<int> RunByRunner(const std::string& program,
                                 const Arguments& arguments);
  std::optional<Source> StartSource(const std::string& program,
                                    const Arguments& arguments);
  std::optional<pid_t> StartApart(const std::string& program,
                                  const Arguments& arguments);
  std::optional<pid_t> StartRemembered(const ProgramStart& start);

  std::string runner_;
  ChildReaper reaper_;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_PROGRAMS_H_
