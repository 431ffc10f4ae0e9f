// Requests as a host makes them, with the world that bench/speed/world built.
#include <velmohelp/online.h>
#include <velmohelp/platform.h>
#include <velmohelp/resolve.h>
#include <velmohelp/velmohelp.h>

#include <cstdlib>
#include <cstring>

#include "bench/speed/samples/samples.h"
#include "bench/stopwatch.h"

namespace velmohelp::bench {
namespace {

/// config: the user's configuration folder, which decides whether online help
/// is on.
void Initialise(const std::string& config, const std::string& product) {
  setenv("XDG_CONFIG_HOME", config.c_str(), 1);
  Require(InitializeVelmoHelpClient(product.c_str(), "en_US", 0) == 0,
          "not initialised");
}

/// Memory that the host has touched. Never freed.
void MakeResident(std::size_t bytes) {
  char* memory = static_cast<char*>(std::malloc(bytes));
  Require(memory != nullptr, "no memory");
  std::memset(memory, 1, bytes);
  Use(memory);
}

/// A viewer that does nothing may have ended before the library looks whether
/// it runs: both results cost the same.
void Display() {
  const std::uint32_t code = DisplayVelmoHelpClientPage("page_7");
  Require(code == 0 || code == 1, "not displayed");
}

/// request CONFIG MEGABYTES
double Request(const Words& words) {
  MakeResident(std::stoull(words.at(1)) << 20U);
  Initialise(words.at(0), "page");
  return MedianNanoseconds(15, Display);
}

/// requests CONFIG COUNT: the mean of that many displays in one process.
double Requests(const Words& words) {
  const int count = std::stoi(words.at(1));
  Initialise(words.at(0), "page");
  return Nanoseconds([&] {
           for (int i = 0; i < count; ++i) Display();
         }) /
         count;
}

/// find CONFIG PRODUCT PAGE: looks for a page that a content folder of the
/// product has.
double Find(const Words& words) {
  Initialise(words.at(0), words.at(1));
  std::string target;
  unsigned char code = 3;
  const double time =
      Nanoseconds([&] { code = ValidateID(words.at(2), false, target); });
  Require(code == 0, "page not found");
  return time;
}

/// browser CONFIG
double Browser(const Words& words) {
  setenv("XDG_CONFIG_HOME", words.at(0).c_str(), 1);
  return MedianNanoseconds(5, [] {
    Require(ITEMInternal::LaunchPlatformBrowser("http://localhost/a?b=c") == 0,
            "browser not started");
  });
}

double Reachability(const Words&) {
  return MedianNanoseconds(9, [] {
    Require(ITEMInternal::GetOnlineStatus("http://localhost"), "unreachable");
  });
}

}  // namespace

Samples RequestSamples() {
  return {{"request", Request},
          {"requests", Requests},
          {"find", Find},
          {"browser", Browser},
          {"reachability", Reachability}};
}

}  // namespace velmohelp::bench
