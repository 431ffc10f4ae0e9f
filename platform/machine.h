// The seam: everything that the client asks of the machine that it runs on.
#ifndef PLATFORM_MACHINE_H_
#define PLATFORM_MACHINE_H_

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmohelp {

using Arguments = std::vector<std::string>;

/// What the network knows of a host.
struct Reachability {
  bool reachable = false;
  /// A connection (dial-up, VPN on demand) would have to be made first.
  bool connection_required = false;
};

/// A preference store: whose value it is, and on which machines it holds.
enum class PreferenceScope { kAnyUserCurrentHost, kCurrentUserAnyHost };

/// Names one existing file, whatever path leads to it.
struct FileReference {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
};

/// Something that exists in the file system.
struct FileEntry {
  FileReference reference;
  bool is_directory = false;
};

/// The primitives below every rule of the client: no order, no short cut, no
/// trimming and no result code of the client's is decided here.
///
/// Implementations: linux/ (production), scripted/ (tests), unsupported/ (does
/// nothing: the template for another system). Texts and paths are UTF-8 byte
/// strings. nullopt and false mean "this machine cannot", whatever the reason;
/// only std::bad_alloc is thrown. Calls come one at a time.
///
/// OpenInBrowser, HostReachability and FetchText end at a time limit. RunToEnd
/// and FirstOutput block as long as the program makes them, without limit. The
/// others take as long as the file system does (a dead network mount: without
/// limit), PreferencesFolder also as long as the user database does.
class Machine {
 public:
  virtual ~Machine() = default;

  /// What exists at path: a file of any type or a directory. A link counts as
  /// the file that it points to.
  virtual std::optional<FileEntry> FindFile(const std::string& path) = 0;

  /// The names of what a directory holds, in no order and without "." and "..".
  /// Empty also when path is not a directory that can be read.
  virtual std::vector<std::string> NamesIn(const std::string& path) = 0;

  /// The user's Preferences folder, without a final "/". create: makes it when
  /// it is missing.
  virtual std::optional<std::string> PreferencesFolder(bool create) = 0;

  /// From now on another executable is the host program: resources and bundles
  /// are looked up from it. nullopt: this process's own again. False, and no
  /// change, when no file can have the path.
  virtual bool SetHost(const std::optional<std::string>& executable) = 0;

  /// The directory of the host program's own resources.
  virtual std::optional<std::string> ResourcesDirectory() = 0;

  /// The directory of the bundle with this identifier.
  virtual std::optional<std::string> BundleDirectory(
      const std::string& identifier) = 0;

  /// The executable of an application directory.
  virtual std::optional<std::string> ApplicationExecutable(
      const std::string& directory) = 0;

  /// Runs a program to its end. Returns its exit status; nullopt when it did
  /// not start or was ended by a signal. No deadline.
  virtual std::optional<int> RunToEnd(const std::string& program,
                                      const Arguments& arguments) = 0;

  /// Starts a program and reads its standard output once: blocks until it has
  /// written something or closed it, and does not wait for its end.
  virtual std::optional<std::string> FirstOutput(
      const std::string& program, const Arguments& arguments) = 0;

  /// A token with which the window system lets the program that StartProgram,
  /// OpenInBrowser or StartWorker starts next raise its window. That call uses
  /// it up, whatever comes of it. nullopt: none. False, and no change, when the
  /// text is too long.
  virtual bool SetActivationToken(const std::optional<std::string>& token) = 0;

  /// Starts a program in its own session and leaves it running. True when it
  /// was running right after the start.
  virtual bool StartProgram(const std::string& program,
                            const Arguments& arguments) = 0;

  /// Whether StartProgram would find a program to start at this path. Whether
  /// it then keeps running is not known without starting it.
  virtual bool CanStart(const std::string& program) = 0;

  /// Opens a URL, unchanged, with the user's default browser.
  virtual bool OpenInBrowser(const std::string& url) = 0;

  /// What OpenInBrowser would use now, without starting or asking anything to
  /// open: the words of a command line, or none when the desktop would open the
  /// URL itself, as it does for a sandbox. nullopt when nothing opens it.
  virtual std::optional<Arguments> FindBrowser(const std::string& url) = 0;

  /// Whether there is a route to a host; nullopt when that is unknown, and
  /// always without a host. Bounded in time.
  virtual std::optional<Reachability> HostReachability(
      const std::optional<std::string>& host) = 0;

  /// A preference's value, read from the store at each call; nullopt when it
  /// is not set or not valid UTF-8. domain may be any text.
  virtual std::optional<std::string> Preference(const std::string& domain,
                                                const std::string& key,
                                                PreferenceScope scope) = 0;

  /// Loads the whole resource at url. True when that succeeds within timeout
  /// and the resource is text.
  virtual bool FetchText(const std::string& url,
                         std::chrono::milliseconds timeout) = 0;

  /// Has a process of its own, which acts for this host, make a request: the
  /// words go to what that process runs (see worker.h). Returns at once: a
  /// descriptor, close-on-exec, that becomes readable when there is an answer
  /// or the process has ended; -1 when it cannot. Closing the descriptor ends
  /// the process and whatever it waits for.
  virtual int StartWorker(const Arguments& words) = 0;

  /// The answer of a worker. Blocks until there is one, and closes the
  /// descriptor. nullopt when the worker ended without one.
  virtual std::optional<std::string> FinishWorker(int descriptor) = 0;

  /// The time on a clock that nobody sets: only differences have a meaning.
  virtual std::chrono::milliseconds MonotonicTime() = 0;
};

/// The machine that this library was built for. Each system's folder defines
/// it; only exports/this_machine.cpp asks for it.
Machine& NativeMachine();

}  // namespace velmohelp

#endif  // PLATFORM_MACHINE_H_
