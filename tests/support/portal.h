// A desktop portal of a test's own.
#ifndef TESTS_SUPPORT_PORTAL_H_
#define TESTS_SUPPORT_PORTAL_H_

#include <gio/gio.h>

#include <future>
#include <optional>
#include <string>
#include <thread>

#include "platform/linux/helpers/gobject_ptr.h"

namespace velmohelp::testing {

/// A session bus of the test's own, in the environment of this process.
class PrivateBus {
 public:
  /// service_folder: the bus starts the programs of the service files there.
  explicit PrivateBus(const std::string& service_folder = "");
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;
  ~PrivateBus();

 private:
  ObjectPtr<GTestDBus> bus_;
};

/// A connection to that bus; null where there is none.
ObjectPtr<GDBusConnection> ConnectToBus();

/// True when the name was free.
bool OwnName(GDBusConnection* bus, const char* name);

/// Serves the objects of a connection on a thread of its own.
class ServiceThread {
 public:
  ServiceThread();
  ServiceThread(const ServiceThread&) = delete;
  ServiceThread& operator=(const ServiceThread&) = delete;
  ~ServiceThread();

  /// Connections made and objects registered meanwhile are served there. One
  /// guard at a time.
  class Guard {
   public:
    explicit Guard(GMainContext* context) : context_(context) {
      g_main_context_push_thread_default(context_);
    }
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;
    ~Guard() { g_main_context_pop_thread_default(context_); }

   private:
    GMainContext* context_;
  };
  GMainContext* context() const { return context_; }
  void Run();

 private:
  GMainContext* context_;
  GMainLoop* loop_;
  std::thread thread_;
};

/// What a portal does with a request.
struct PortalBehaviour {
  /// The number in the Response signal; none: the person is still choosing.
  std::optional<unsigned> response = 0;
  /// The signal comes before the reply to the call.
  bool responds_first = false;
  /// The method fails, and there is no request.
  bool fails = false;
  /// The request's path is the portal's choice, as before version 0.9.
  bool own_handle = false;
  /// Another client of the bus says first that the request succeeded.
  bool forged = false;
};

/// The OpenURI portal, as its documentation describes it: the reply to a call
/// is the path of a request, and that request's Response signal tells what
/// became of it.
class PortalDouble {
 public:
  explicit PortalDouble(const PortalBehaviour& behaviour);
  PortalDouble(const PortalDouble&) = delete;
  PortalDouble& operator=(const PortalDouble&) = delete;
  ~PortalDouble();

  /// Waits until it has been called and has replied.
  void AwaitCall() { called_.get_future().wait(); }
  /// The person has chosen an application. After the call.
  void Choose();

  /// The method of the last call, "" before the first.
  const std::string& method() const { return method_; }
  /// Its URL, or the path of the file whose descriptor came with it.
  const std::string& target() const { return target_; }
  /// The option of this name in the last call; "" without one.
  const std::string& activation_token() const { return activation_token_; }
  bool caller_is_on_the_bus() const;

 private:
  static void OnCall(GDBusConnection* bus, const char* sender, const char* path,
                     const char* interface, const char* method,
                     GVariant* arguments, GDBusMethodInvocation* call,
                     gpointer self);
  void Answer(GVariant* arguments, GDBusMethodInvocation* call);
  void Respond(GDBusConnection* from, unsigned response);

  PortalBehaviour behaviour_;
  ObjectPtr<GDBusConnection> bus_;
  ObjectPtr<GDBusConnection> other_client_;
  std::string method_;
  std::string target_;
  std::string activation_token_;
  std::string caller_;
  std::string handle_;
  std::promise<void> called_;
  /// Ends first: it may still be in a call, after it has responded.
  ServiceThread thread_;
};

}  // namespace velmohelp::testing

#endif  // TESTS_SUPPORT_PORTAL_H_
