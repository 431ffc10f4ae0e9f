#include "tests/architecture/include_rules.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/sentence.h"

namespace velmohelp {
namespace {

struct Edge {
  const char* file;
  const char* header;
};

std::string NameOf(const ::testing::TestParamInfo<Edge>& edge) {
  return testing::AsTestName(std::string(edge.param.file) + " to " +
                             edge.param.header);
}

class Allowed : public ::testing::TestWithParam<Edge> {};
class Forbidden : public ::testing::TestWithParam<Edge> {};

TEST_P(Allowed, Edge) {
  EXPECT_TRUE(testing::MayInclude(GetParam().file, GetParam().header));
}

TEST_P(Forbidden, Edge) {
  EXPECT_FALSE(testing::MayInclude(GetParam().file, GetParam().header));
}

INSTANTIATE_TEST_SUITE_P(
    , Allowed,
    ::testing::Values(Edge{"client/search.cpp", "\"client/viewer.h\""},
                      Edge{"client/client_state.h", "\"config/help_config.h\""},
                      Edge{"exports/online.cpp", "\"online/network_status.h\""},
                      Edge{"exports/this_client.h", "\"client/client.h\""},
                      Edge{"resolve/page_id.cpp", "\"util/ascii.h\""},
                      Edge{"exports/text.cpp", "<velmohelp/text.h>"},
                      Edge{"client/client.h", "<velmohelp/velmohelp.h>"},
                      Edge{"online/network_status.h", "<velmohelp/online.h>"},
                      Edge{"util/unicode/x.h", "<velmohelp/unicode.h>"},
                      Edge{"util/utf8.cpp", "<cstddef>"},
                      Edge{"platform/linux/x.cpp", "\"platform/machine.h\""},
                      Edge{"platform/linux/helpers/x.cpp",
                           "\"platform/linux/protocol.h\""},
                      Edge{"platform/linux/x.cpp", "<unistd.h>"},
                      Edge{"platform/linux/x.cpp", "<sys/stat.h>"},
                      Edge{"util/unicode/x.cpp", "<immintrin.h>"},
                      Edge{"platform/linux/helpers/x.cpp", "<curl/curl.h>"},
                      Edge{"platform/linux/helpers/x.cpp", "<gio/gio.h>"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    , Forbidden,
    ::testing::Values(
        Edge{"config/x.cpp", "\"client/client_state.h\""},
        Edge{"resolve/x.cpp", "\"client/client_state.h\""},
        Edge{"client/x.cpp", "\"exports/this_client.h\""},
        Edge{"client/x.cpp", "<velmohelp/state.h>"},
        Edge{"client/x.cpp", "<velmohelp/resolve.h>"},
        Edge{"config/x.cpp", "<velmohelp/config.h>"},
        Edge{"platform/x.cpp", "<velmohelp/platform.h>"},
        Edge{"platform/linux/x.cpp", "<velmohelp/platform.h>"},
        Edge{"util/x.cpp", "<velmohelp/platform.h>"},
        Edge{"util/x.cpp", "<velmohelp/unicode.h>"},
        Edge{"exports/x.cpp", "<velmohelp/missing.h>"},
        Edge{"config/x.cpp", "\"resolve/help_map/help_map.h\""},
        Edge{"online/x.cpp", "\"config/help_config.h\""},
        Edge{"platform/x.cpp", "\"online/network_status.h\""},
        Edge{"platform/x.cpp", "\"platform/linux/x.h\""},
        Edge{"platform/x.cpp", "\"platform/linux/helpers/route.h\""},
        Edge{"platform/linux/x.cpp", "\"platform/linux/helpers/route.h\""},
        Edge{"client/x.cpp", "\"platform/linux/x.h\""},
        Edge{"client/x.cpp", "\"platform/scripted/scripted_machine.h\""},
        Edge{"util/x.cpp", "\"platform/machine.h\""},
        Edge{"client/x.cpp", "\"tests/support/sentence.h\""},
        Edge{"client/x.cpp", "\"state.h\""}, Edge{"client/x.cpp", "<unistd.h>"},
        Edge{"util/x.cpp", "<sys/stat.h>"},
        Edge{"platform/x.cpp", "<unistd.h>"},
        Edge{"platform/scripted/x.cpp", "<dlfcn.h>"},
        Edge{"platform/linux/x.cpp", "<curl/curl.h>"},
        Edge{"platform/linux/x.cpp", "<gio/gio.h>"},
        Edge{"resolve/x.cpp", "<immintrin.h>"},
        Edge{"platform/linux/x.cpp", "<glib.h>"}),
    NameOf);

}  // namespace
}  // namespace velmohelp
