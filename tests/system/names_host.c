/* A host with variables of its own under the library's exported names, as other
 * things of another size. Built twice: linked with the library, and loading it
 * as a plug-in. Its result is 0 when the library works and nothing was changed
 * on either side. */
#include <dlfcn.h>
#include <string.h>
#include <velmohelp/velmohelp.h>

/* NOLINTBEGIN(bugprone-macro-parentheses): a declared name takes none. */
#define HOST_VARIABLE(name)                                      \
  __attribute__((visibility("default"))) char name[256] = #name; \
  static int Keeps_##name(void) {                                \
    char pattern[256] = #name;                                   \
    return memcmp(name, pattern, sizeof pattern) == 0;           \
  }
/* NOLINTEND(bugprone-macro-parentheses) */

HOST_VARIABLE(sAppID)
HOST_VARIABLE(sPublisherID)
HOST_VARIABLE(sHelpMap)
HOST_VARIABLE(sDefaultAppID)
HOST_VARIABLE(sDefaultPublisherID)
HOST_VARIABLE(kKLHPreferenceFile)
HOST_VARIABLE(kDownloadedOfflineContent)
HOST_VARIABLE(kDownloadedHelpcfg)
HOST_VARIABLE(kTrue)
HOST_VARIABLE(kFalse)

static int KeepsAll(void) {
  return Keeps_sAppID() && Keeps_sPublisherID() && Keeps_sHelpMap() &&
         Keeps_sDefaultAppID() && Keeps_sDefaultPublisherID() &&
         Keeps_kKLHPreferenceFile() && Keeps_kDownloadedOfflineContent() &&
         Keeps_kDownloadedHelpcfg() && Keeps_kTrue() && Keeps_kFalse();
}

static int Load(void) {
#ifdef VELMO_TEST_PLUG_IN
  return dlopen(VELMO_TEST_PLUG_IN, RTLD_LAZY | RTLD_GLOBAL) != NULL;
#else
  return 1;
#endif
}

int main(void) {
  if (!Load()) return 1;
  if (InitializeVelmoHelpClient("Foo", "en_US", 0) != 0) return 2;
  if (DisplayVelmoHelpClientPage("intro") != 0) return 3;
  return KeepsAll() ? 0 : 4;
}
