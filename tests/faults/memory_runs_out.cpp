#include "tests/faults/memory_runs_out.h"

#include <algorithm>

#include "tests/support/client_variables.h"

namespace velmohelp::testing {

void AtLoad(ClientWorld& world) { SetAsAtLoad(world.state()); }

void Initialised(ClientWorld& world) {
  AtLoad(world);
  world.Initialise();
}

void WithViewer(ClientWorld& world) {
  world.InstallWorkingViewer();
  Initialised(world);
}

void Online(ClientWorld& world) {
  world.GoOnline();
  Initialised(world);
}

void PrintTo(const EntryPoint& point, std::ostream* out) {
  *out << point.sentence;
}

MemoryRunsOut::MemoryRunsOut() {
  world_.Install();
  world_.Download();
  world_.AddFile(world_.DownloadedManual() + "/helpmap.txt",
                 "page\ta-page-of-another-name.html\nVX_HOME\tb\na\ta\n");
  world_.AddFile(world_.DownloadedManual() + "/search.html");
  world_.SetAccessibleMode("no");
  world_.StartBrowsers();
  world_.machine().AddText("http://localhost/help/" + OwnName("manual") +
                           "/search.html");
  world_.machine().SetPreference("com.velmo.a.b", "HelpcfgName",
                                 PreferenceScope::kAnyUserCurrentHost, "Foo");
}

std::set<long> MemoryRunsOut::CodesOf(Shortage shortage) {
  std::set<long> codes;
  std::size_t nth = 1;
  while (const auto code = CallExhaustedAt(nth, shortage)) {
    codes.insert(*code);
    EXPECT_EQ(GetParam().call(), GetParam().code) << nth;
    ++nth;
  }
  return codes;
}

bool MemoryRunsOut::ReadsOnlinePreferences() const {
  const auto questions = world_.Questions();
  return std::any_of(questions.begin(), questions.end(), [](const auto& asked) {
    return asked.ends_with("VelmoOnlineDefault");
  });
}

std::optional<long> MemoryRunsOut::CallExhaustedAt(std::size_t nth,
                                                   Shortage shortage) {
  GetParam().prepare(world_);
  world_.machine().ForgetQuestions();
  const Exhaustion exhaustion(nth, shortage);
  const long code = GetParam().call();
  return Exhaustion::Came() ? std::optional(code) : std::nullopt;
}

TEST_P(MemoryRunsOut, AtOneAllocationOrForGood) {
  std::set<long> codes = GetParam().codes_of_exhaustion;
  EXPECT_EQ(CodesOf(Shortage::kFromThenOn), codes);
  if (ReadsOnlinePreferences()) codes.insert(GetParam().code);
  EXPECT_EQ(CodesOf(Shortage::kOneAllocation), codes);
}

}  // namespace velmohelp::testing
