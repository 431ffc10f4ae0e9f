/* A pure C program over the C interface. It never initialises the client, so
 * that no result depends on the machine that it runs on. */
#include <stdio.h>
#include <velmohelp/velmohelp.h>

static int failures = 0;

static void Expect(const char* what, long wanted, long got) {
  if (wanted == got) return;
  printf("%s: expected %ld, got %ld\n", what, wanted, got);
  ++failures;
}

int main(void) {
  char encoded[16];
  Expect("the version", 0x10500, GetVelmoHelpClientVersion());
  Expect("a product id of one space", kInitInvalidArgument,
         InitializeVelmoHelpClient(" ", "en_US", 0));
  Expect("the status before an initialisation", 2,
         GetVelmoHelpClientOnlineStatus());
  Expect("a page before an initialisation", kDisplayInvalidInitialization,
         DisplayVelmoHelpClientPage("intro"));
  Expect("a URL before an initialisation", kDisplayInvalidInitialization,
         OpenURL("https://example.com/"));
  Expect("a search for a space", kDisplayInvalidArgument,
         SearchHelp("Sketch", "en_US", " "));
  Expect("a search for a product without a name", 8,
         Search("", "", "en_US", "lines"));
  Expect("an encoded text", 5,
         VelmoHelpEncodeURIComponent("a b", encoded, sizeof encoded));
  return failures;
}
