// The seam: everything that the client asks of the machine it runs on.
#ifndef PLATFORM_MACHINE_H_
#define PLATFORM_MACHINE_H_

#include <velmohelp/platform.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmohelp {

using Arguments = std::vector<std::string>;

/// What the network says of a host.
struct Reachability {
  bool reachable = false;
  /// A connection (dial-up, VPN on demand) would have to be made first.
  bool connection_required = false;
};

/// A preference store: who set the value, and where it holds.
enum class PreferenceScope { kAnyUserCurrentHost, kCurrentUserAnyHost };

/// Something that exists in the file system.
struct FileEntry {
  ITEMInternal::FileReference reference;
  bool is_directory = false;
};

/// The primitives below every rule of the client: no order, no short cut, no
/// trimming and no result code of the client's is decided here.
///
/// Implementations: linux/ (production), scripted/ (tests), unsupported/ (no
/// to everything: the template for another system). Texts and paths are UTF-8
/// byte strings. nullopt and false mean "this machine cannot", whatever the
/// reason; only std::bad_alloc is thrown. Calls come one at a time.
class Machine {
 public:
  virtual ~Machine() = default;

  /// Something exists at path, of any type; a link counts as what it names.
  virtual bool FileExists(const std::string& path) = 0;

  /// What exists at path, as FileExists sees it.
  virtual std::optional<FileEntry> FindFile(const std::string& path) = 0;

  /// The path of a standard folder, without a final "/"; domain and type as
  /// for ITEMInternal::StdStringFindFolder. create: make it when missing.
  virtual std::optional<std::string> StandardFolder(std::int16_t domain,
                                                    std::uint32_t type,
                                                    bool create) = 0;

  /// The directory of the host program's own resources.
  virtual std::optional<std::string> ResourcesDirectory() = 0;

  /// The directory of the bundle with this identifier.
  virtual std::optional<std::string> BundleDirectory(
      const std::string& identifier) = 0;

  /// The executable of an application directory.
  virtual std::optional<std::string> ApplicationExecutable(
      const std::string& directory) = 0;

  /// Runs a program to its end; its exit status, nullopt when it did not start
  /// or a signal ended it. No deadline.
  virtual std::optional<int> RunToEnd(const std::string& program,
                                      const Arguments& arguments) = 0;

  /// Starts a program and reads its standard output once: blocks until it has
  /// written something or closed it, and does not wait for its end.
  virtual std::optional<std::string> FirstOutput(
      const std::string& program, const Arguments& arguments) = 0;

  /// Starts a program in a session of its own and leaves it running. True when
  /// it was running right after the start.
  virtual bool StartProgram(const std::string& program,
                            const Arguments& arguments) = 0;

  /// Opens a URL with the user's default browser, exactly as it stands.
  virtual bool OpenInBrowser(const std::string& url) = 0;

  /// Whether packets to a host have a way; nullopt when that cannot be told,
  /// always so for a null host. Bounded in time.
  virtual std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host) = 0;

  /// A preference's value, read afresh; nullopt when it is not set or is no
  /// valid text. domain may be any text.
  virtual std::optional<std::string> Preference(const std::string& domain,
                                                const std::string& key,
                                                PreferenceScope scope) = 0;

  /// Loads the whole resource at url; true when that ends well and it is text.
  /// Bounded in time.
  virtual bool FetchText(const std::string& url) = 0;
};

/// The machine that this library was built for. Each system's folder defines
/// it; only exports/this_machine.cpp asks for it.
Machine& NativeMachine();

}  // namespace velmohelp

#endif  // PLATFORM_MACHINE_H_
