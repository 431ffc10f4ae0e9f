// A C++ program over the typed exports and the exported state.
#include <velmohelp/config.h>
#include <velmohelp/online.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/state.h>
#include <velmohelp/text.h>
#include <velmohelp/velmohelp.h>

#include <iostream>
#include <string>

namespace {

int failures = 0;

void Expect(const std::string& wanted, const std::string& got) {
  if (wanted == got) return;
  std::cout << "expected " << wanted << ", got " << got << '\n';
  ++failures;
}

}  // namespace

int main() {
  std::string id = "my page";
  NormalizePageID(id);
  Expect("my_page.html", id);
  Expect("a/b", AppentPath("a", "b"));
  Expect("a%20b", ITEMInternal::VelmoHelpEncodeURIComponent("a b"));
  Expect("", XMLParser().GetKey("id"));
  Expect("klh", sDefaultAppID);
  Expect("TRUE", kTrue);
  Expect("é", ITEMInternal::CstrToNSstr("é")->utf8());
  Expect("", ITEMInternal::GetHelpConfigName("", ""));
  return failures;
}
