// The portal of a desktop, as it is installed, on a bus of the test's own. The
// dialogs and the settings are the test's; everything else is the portal's.
#include <gtest/gtest.h>

#include "platform/linux/helpers/browser_portal.h"
#include "tests/support/portal.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using testing::FileText;

constexpr char kPortal[] = "/usr/libexec/xdg-desktop-portal";
constexpr char kPermissions[] = "/usr/libexec/xdg-permission-store";
constexpr char kDesktopName[] =
    "org.freedesktop.impl.portal.desktop.velmohelptest";
constexpr char kDesktopPath[] = "/org/freedesktop/portal/desktop";
constexpr char kIntrospection[] =
    "<node><interface name='org.freedesktop.impl.portal.AppChooser'>"
    "<method name='ChooseApplication'><arg type='o' direction='in'/>"
    "<arg type='s' direction='in'/><arg type='s' direction='in'/>"
    "<arg type='as' direction='in'/><arg type='a{sv}' direction='in'/>"
    "<arg type='u' direction='out'/><arg type='a{sv}' direction='out'/>"
    "</method></interface>"
    "<interface name='org.freedesktop.impl.portal.Lockdown'>"
    "<property name='disable-application-handlers' type='b' access='read'/>"
    "</interface></node>";

/// What the person and the administrator of the desktop do.
struct Desktop {
  /// The response of the dialog in which an application is chosen: 0 with the
  /// viewer of pages as the choice, or 1 when the person cancels.
  unsigned choice = 0;
  bool locked_down = false;
  /// Applications for every page: none, the viewer as the default, or the
  /// viewer and another one, of which neither is.
  int applications = 1;
};

/// The half of a portal that a desktop brings: its dialogs and settings.
class DesktopDouble {
 public:
  explicit DesktopDouble(const Desktop& desktop) : desktop_(desktop) {
    static const GDBusInterfaceVTable kTable = {&OnCall, &OnGet, nullptr, {}};
    const testing::ServiceThread::Guard guard(thread_.context());
    bus_ = testing::ConnectToBus();
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kIntrospection, nullptr);
    for (GDBusInterfaceInfo** at = node->interfaces; *at != nullptr; ++at) {
      g_dbus_connection_register_object(bus_.get(), kDesktopPath, *at, &kTable,
                                        &desktop_, nullptr, nullptr);
    }
    g_dbus_node_info_unref(node);
    testing::OwnName(bus_.get(), kDesktopName);
    thread_.Run();
  }
  DesktopDouble(const DesktopDouble&) = delete;
  DesktopDouble& operator=(const DesktopDouble&) = delete;
  ~DesktopDouble() {
    g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
  }

 private:
  static void OnCall(GDBusConnection*, const char*, const char*, const char*,
                     const char*, GVariant*, GDBusMethodInvocation* call,
                     gpointer desktop) {
    GVariantBuilder results;
    g_variant_builder_init(&results, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&results, "{sv}", "choice",
                          g_variant_new_string("viewer"));
    g_dbus_method_invocation_return_value(
        call, g_variant_new("(ua{sv})", static_cast<Desktop*>(desktop)->choice,
                            &results));
  }
  static GVariant* OnGet(GDBusConnection*, const char*, const char*,
                         const char*, const char*, GError**, gpointer desktop) {
    return g_variant_new_boolean(
        static_cast<Desktop*>(desktop)->locked_down ? TRUE : FALSE);
  }

  Desktop desktop_;
  testing::ServiceThread thread_;
  ObjectPtr<GDBusConnection> bus_;
};

struct PortalRow {
  const char* sentence;
  Desktop desktop;
  /// "{folder}" is the test's folder.
  std::string url;
  PortalOutcome outcome;
  /// What the application was started with.
  std::string opened = "";
};

class RealPortal : public ::testing::TestWithParam<PortalRow> {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(kPortal)) {
      GTEST_SKIP() << "xdg-desktop-portal is not installed";
    }
    Set("XDG_CONFIG_HOME", directory_.MakeDirectory("config"));
    Set("XDG_DATA_HOME", directory_.MakeDirectory("data"));
    // The system's settings, and none of its applications.
    Set("XDG_DATA_DIRS", directory_.MakeDirectory("share"));
    std::filesystem::create_directory_symlink("/usr/share/glib-2.0",
                                              directory_ / "share/glib-2.0");
    Set("XDG_CURRENT_DESKTOP", "velmohelptest");
    Set("XDG_RUNTIME_DIR", directory_.MakeDirectory("run"));
    Set("XDG_DESKTOP_PORTAL_DIR", directory_.MakeDirectory("portals"));
    Set("GSETTINGS_BACKEND", "memory");
    Set("GIO_USE_VFS", "local");
    directory_.Write("portals/velmohelptest.portal",
                     std::string("[portal]\nDBusName=") + kDesktopName +
                         "\nInterfaces=org.freedesktop.impl.portal.AppChooser;"
                         "org.freedesktop.impl.portal.Lockdown;\n"
                         "UseIn=velmohelptest\n");
    Serve("org.freedesktop.portal.Desktop", kPortal);
    Serve("org.freedesktop.impl.portal.PermissionStore", kPermissions);
    Install("viewer");
    Install("other");
    Associate(GetParam().desktop.applications);
  }

  std::string Expanded(std::string text) const {
    const std::size_t at = text.find("{folder}");
    return at == std::string::npos ? text
                                   : text.replace(at, 8, directory_.path());
  }
  std::string Url() const {
    std::string url = Expanded(GetParam().url);
    for (std::size_t at = 0; (at = url.find(' ')) != std::string::npos;) {
      url.replace(at, 1, "%20");
    }
    return url;
  }
  const testing::TemporaryDirectory& directory() const { return directory_; }

 private:
  static void Set(const char* name, const std::string& value) {
    setenv(name, value.c_str(), 1);
  }
  void Serve(const std::string& name, const std::string& program) {
    directory_.Write(
        "services/" + name + ".service",
        "[D-BUS Service]\nName=" + name + "\nExec=" + program + "\n");
  }
  /// Installs an application that writes its argument down.
  void Install(const std::string& name) {
    const std::string part = directory_ / "part";
    const std::string program = directory_.WriteScript(
        name, "printf '%s' \"$1\" > '" + part + "' && mv '" + part + "' '" +
                  (directory_ / "opened") + "'");
    directory_.Write("data/applications/" + name + ".desktop",
                     "[Desktop Entry]\nType=Application\nName=" + name +
                         "\nExec=\"" + program + "\" %u\n");
  }
  /// For pages on the network, and for every type that a local page may have.
  void Associate(int applications) {
    const bool one = applications == 1;
    std::string list =
        one ? "[Default Applications]\n" : "[Added Associations]\n";
    for (const char* type : {"x-scheme-handler/https", "text/html",
                             "text/plain", "application/octet-stream"}) {
      list += type + std::string("=viewer.desktop") +
              (one ? "\n" : ";other.desktop\n");
    }
    if (applications > 0) directory_.Write("config/mimeapps.list", list);
  }

  testing::TemporaryDirectory directory_;
};

TEST_P(RealPortal, TellsWhatBecameOfARequest) {
  directory().Write("page.html", "<!DOCTYPE html><p>a page");
  const testing::PrivateBus bus(directory() / "services");
  const DesktopDouble desktop(GetParam().desktop);
  const PortalOutcome outcome =
      PortalRequest(Url()).Await(std::chrono::minutes(1));
  ASSERT_EQ(outcome, GetParam().outcome);
  // The portal responds when it has started the application, which writes
  // later.
  const std::string opened = directory() / "opened";
  while (outcome == PortalOutcome::kOpened &&
         !std::filesystem::exists(opened)) {
    std::this_thread::yield();
  }
  EXPECT_EQ(FileText(opened), Expanded(GetParam().opened));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RealPortal,
    ::testing::Values(PortalRow{.sentence = "a page on the network",
                                .desktop = {},
                                .url = "https://localhost/a?b=c&d=e#f",
                                .outcome = PortalOutcome::kOpened,
                                .opened = "https://localhost/a?b=c&d=e#f"},
                      PortalRow{
                          .sentence = "a local page",
                          .desktop = {},
                          .url = "file://{folder}/page.html?nameAnchor=top",
                          .outcome = PortalOutcome::kOpened,
                          .opened = "{folder}/page.html"},
                      PortalRow{.sentence = "a missing file",
                                .desktop = {},
                                .url = "file://{folder}/missing.html",
                                .outcome = PortalOutcome::kNotOpened},
                      PortalRow{.sentence = "a cancelled chooser",
                                .desktop = {.choice = 1, .applications = 2},
                                .url = "file://{folder}/page.html",
                                .outcome = PortalOutcome::kNotOpened},
                      PortalRow{.sentence = "a chosen application",
                                .desktop = {.applications = 2},
                                .url = "file://{folder}/page.html",
                                .outcome = PortalOutcome::kOpened,
                                .opened = "{folder}/page.html"},
                      PortalRow{.sentence = "a desktop that is locked down",
                                .desktop = {.locked_down = true},
                                .url = "https://localhost/",
                                .outcome = PortalOutcome::kNotOpened},
                      PortalRow{.sentence = "no application for the page",
                                .desktop = {.choice = 1, .applications = 0},
                                .url = "https://localhost/",
                                .outcome = PortalOutcome::kNotOpened}),
    testing::SentenceOf());

}  // namespace
}  // namespace velmohelp
