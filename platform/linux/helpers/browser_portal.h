// Opening a URL from inside a sandbox, by the desktop's OpenURI portal.
#ifndef PLATFORM_LINUX_HELPERS_BROWSER_PORTAL_H_
#define PLATFORM_LINUX_HELPERS_BROWSER_PORTAL_H_

#include <gio/gio.h>

#include <chrono>
#include <string>

#include "platform/linux/helpers/gobject_ptr.h"

namespace velmohelp {

/// True inside a Flatpak sandbox, where the browser's program cannot be
/// started.
bool IsInSandbox();

/// Whether the desktop has a portal, running or to be started when it is
/// called, and the URL is one that a PortalRequest hands to it. Asks the bus
/// alone: nothing is opened or started.
bool PortalTakes(const std::string& url);

/// What became of a request.
enum class PortalOutcome {
  /// No response yet: the person may be choosing an application.
  kPending,
  /// The portal gave the URL to an application.
  kOpened,
  /// There is no portal, it refused, or the person cancelled.
  kNotOpened
};

/// One request to open a URL, on a connection to the session bus of its own.
///
/// The portal's reply only says that it took the request. Whether anything
/// opened comes later, in the Response signal of the request, which this object
/// subscribes to before it calls: a fast portal responds before its reply.
///
/// The portal takes no file: URL. A file is opened here and its descriptor is
/// handed over (OpenFile), so the URL's query and fragment are lost. What is
/// not a regular file of this machine is not opened.
///
/// The portal drops the request of a caller that leaves the bus, and closes the
/// person's dialog with it: this object leaves at its destruction.
class PortalRequest {
 public:
  /// Sends the request. url: a URI.
  explicit PortalRequest(const std::string& url);
  PortalRequest(const PortalRequest&) = delete;
  PortalRequest& operator=(const PortalRequest&) = delete;
  ~PortalRequest();

  /// Waits for the response, at most this long. May be called again while the
  /// outcome is kPending.
  PortalOutcome Await(std::chrono::milliseconds timeout);

 private:
  struct ContextUnref {
    void operator()(GMainContext* context) const {
      g_main_context_unref(context);
    }
  };

  void Connect();
  void Send(const std::string& url);
  void Call(const char* method, GVariant* arguments, GUnixFDList* files);
  void Subscribe(const std::string& handle);
  void OnReply(GVariant* reply);

  /// The bus delivers to this context, whatever else the thread runs.
  std::unique_ptr<GMainContext, ContextUnref> context_;
  ObjectPtr<GDBusConnection> bus_;
  std::string token_;
  std::string handle_;
  PortalOutcome outcome_ = PortalOutcome::kPending;
};

}  // namespace velmohelp

#endif  // PLATFORM_LINUX_HELPERS_BROWSER_PORTAL_H_
