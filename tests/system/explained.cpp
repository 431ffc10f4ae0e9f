#include "tests/system/explained.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>

#ifdef VELMO_TEST_TOOL
#include <nlohmann/json.hpp>
#endif

namespace velmohelp::testing {
#ifdef VELMO_TEST_TOOL
namespace {

std::vector<char*> Pointers(const Words& words) {
  std::vector<char*> pointers;
  for (const std::string& word : words) {
    pointers.push_back(const_cast<char*>(word.c_str()));
  }
  pointers.push_back(nullptr);
  return pointers;
}

/// The process's streams: nothing, and two files.
class Streams {
 public:
  Streams(const std::string& out, const std::string& err) {
    constexpr int kNew = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addopen(&actions_, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions_, 1, out.c_str(), kNew, 0600);
    posix_spawn_file_actions_addopen(&actions_, 2, err.c_str(), kNew, 0600);
  }
  Streams(const Streams&) = delete;
  Streams& operator=(const Streams&) = delete;
  ~Streams() { posix_spawn_file_actions_destroy(&actions_); }

  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_ = {};
};

/// The last word of each request is what is asked for.
Words Question(const Words& request) {
  return {"explain",    request.front(), "Foo", "en_US",       "--host",
          "{bin}/host", "--json",        "--",  request.back()};
}

}  // namespace

ToolProcess RunToolIn(HelpWorld& world, const Words& arguments,
                      const char* tool) {
  if (tool == nullptr) tool = VELMO_TEST_TOOL;
  const std::string out = world.Expanded("{bin}/../tool.out");
  const std::string err = world.Expanded("{bin}/../tool.err");
  Words words = world.Expanded(arguments);
  words.insert(words.begin(), tool);
  const Streams streams(out, err);
  pid_t process = -1;
  int status = -1;
  if (posix_spawn(&process, tool, streams.get(), nullptr,
                  Pointers(words).data(),
                  Pointers(world.start().environment).data()) != 0) {
    return {};
  }
  waitpid(process, &status, 0);
  return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          .out = FileText(out),
          .err = FileText(err)};
}

void ExpectExplained(HelpWorld& world, const Words& request,
                     const std::string& code, const Words& started) {
  const auto run = RunToolIn(world, Question(request));
  const auto json = nlohmann::json::parse(run.out, nullptr, false);
  ASSERT_TRUE(json.is_object()) << run.out << run.err;
  EXPECT_EQ(std::to_string(run.status), code);
  EXPECT_EQ(std::to_string(json["result"]["code"].get<int>()), code);
  const auto starts = json["starts"];
  EXPECT_EQ(starts.is_null() ? Words() : starts["command"].get<Words>(),
            world.Expanded(started))
      << run.out;
}
#else
ToolProcess RunToolIn(HelpWorld&, const Words&, const char*) { return {}; }
void ExpectExplained(HelpWorld&, const Words&, const std::string&,
                     const Words&) {}
#endif

}  // namespace velmohelp::testing
