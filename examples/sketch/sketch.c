/* sketch PAGE-ID: shows a page of the help of the product Sketch.
 * sketch --search TEXT: searches that help. */
#include <stdio.h>
#include <string.h>
#include <velmohelp/result_name.h>
#include <velmohelp/velmohelp.h>

int main(int argc, char** argv) {
  if (argc == 3 && strcmp(argv[1], "--search") == 0) {
    uint32_t result = SearchHelp("Sketch", "en_US", argv[2]);
    printf("search: %u %s\n", result, VelmoHelpSearchResultName(result));
    return result != kSearchSuccess;
  }
  const char* page_id = argc > 1 ? argv[1] : "VX_HOME";
  uint32_t result = InitializeVelmoHelpClient("Sketch", "en_US", 0);
  printf("initialise: %u %s\n", result, VelmoHelpInitResultName(result));
  if (result != kInitSuccess) return 1;
  result = DisplayVelmoHelpClientPage(page_id);
  printf("display: %u %s\n", result, VelmoHelpDisplayResultName(result));
  return result != kDisplaySuccess;
}
