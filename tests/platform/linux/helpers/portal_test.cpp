// The browser of a sandbox, with a session bus and a portal of the test's own.
#include "tests/support/portal.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <thread>

#include "platform/linux/helpers/browser_portal.h"
#include "tests/support/sentence.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using std::chrono::milliseconds;
using testing::PortalBehaviour;
using testing::PortalDouble;

constexpr char kUrl[] = "http://localhost/a%20b?c=d&e=f#g";

/// Much longer than any response takes.
constexpr std::chrono::minutes kLong(1);

struct ResponseRow {
  const char* sentence;
  PortalBehaviour behaviour;
  PortalOutcome outcome;
};

class Response : public ::testing::TestWithParam<ResponseRow> {};

TEST_P(Response, DecidesTheOutcome) {
  const testing::PrivateBus bus;
  const PortalDouble portal(GetParam().behaviour);
  PortalRequest request(kUrl);
  EXPECT_EQ(request.Await(kLong), GetParam().outcome);
  EXPECT_EQ(portal.method(), "OpenURI");
  EXPECT_EQ(portal.target(), kUrl);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Response,
    ::testing::Values(
        ResponseRow{.sentence = "success",
                    .behaviour = {},
                    .outcome = PortalOutcome::kOpened},
        ResponseRow{.sentence = "success before the reply",
                    .behaviour = {.responds_first = true},
                    .outcome = PortalOutcome::kOpened},
        ResponseRow{.sentence = "the person cancelled",
                    .behaviour = {.response = 1},
                    .outcome = PortalOutcome::kNotOpened},
        ResponseRow{.sentence = "ended in some other way",
                    .behaviour = {.response = 2},
                    .outcome = PortalOutcome::kNotOpened},
        ResponseRow{.sentence = "cancelled before the reply",
                    .behaviour = {.response = 1, .responds_first = true},
                    .outcome = PortalOutcome::kNotOpened},
        ResponseRow{.sentence = "a refused call",
                    .behaviour = {.fails = true},
                    .outcome = PortalOutcome::kNotOpened},
        ResponseRow{.sentence = "another client of the bus is not believed",
                    .behaviour = {.response = 2, .forged = true},
                    .outcome = PortalOutcome::kNotOpened}),
    testing::SentenceOf());

struct ChoosingRow {
  const char* sentence;
  PortalBehaviour behaviour;
};

class Choosing : public ::testing::TestWithParam<ChoosingRow> {};

TEST_P(Choosing, KeepsTheRequestPendingAndItsCallerOnTheBus) {
  const testing::PrivateBus bus;
  PortalDouble portal(GetParam().behaviour);
  PortalRequest request(kUrl);
  portal.AwaitCall();
  EXPECT_EQ(request.Await(milliseconds(0)), PortalOutcome::kPending);
  EXPECT_TRUE(portal.caller_is_on_the_bus());
  // The subscription to a path of the portal's own follows its reply.
  do {
    portal.Choose();
  } while (request.Await(milliseconds(20)) == PortalOutcome::kPending);
  EXPECT_EQ(request.Await(kLong), PortalOutcome::kOpened);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Choosing,
    ::testing::Values(
        ChoosingRow{.sentence = "with a request at the documented path",
                    .behaviour = {.response = {}}},
        ChoosingRow{.sentence = "with a request at a path of the portal's own",
                    .behaviour = {.response = {}, .own_handle = true}}),
    testing::SentenceOf());

struct TokenRow {
  const char* sentence;
  const char* variable;
  const char* option;
};

class PortalToken : public ::testing::TestWithParam<TokenRow> {};

TEST_P(PortalToken, IsTheOneInTheEnvironment) {
  const testing::PrivateBus bus;
  const PortalDouble portal({});
  setenv("XDG_ACTIVATION_TOKEN", GetParam().variable, 1);
  EXPECT_EQ(PortalRequest(kUrl).Await(kLong), PortalOutcome::kOpened);
  EXPECT_EQ(portal.activation_token(), GetParam().option);
  unsetenv("XDG_ACTIVATION_TOKEN");
}

/// The bus closes the connection of who sends it other bytes.
INSTANTIATE_TEST_SUITE_P(
    Rows, PortalToken,
    ::testing::Values(
        TokenRow{
            .sentence = "a token", .variable = "a-token", .option = "a-token"},
        TokenRow{.sentence = "no token", .variable = "", .option = ""},
        TokenRow{.sentence = "bytes that are not UTF-8",
                 .variable = "\xFF",
                 .option = ""}),
    testing::SentenceOf());

/// The bus learns of it a moment later; one that stays makes this wait forever.
TEST(PortalRequest, LeavesTheBusAtItsEnd) {
  const testing::PrivateBus bus;
  PortalDouble portal({.response = {}});
  {
    PortalRequest request(kUrl);
    portal.AwaitCall();
  }
  while (portal.caller_is_on_the_bus()) std::this_thread::yield();
}

TEST(PortalRequest, EndsWithTheBus) {
  std::optional<testing::PrivateBus> bus(std::in_place);
  std::optional<PortalDouble> portal(std::in_place,
                                     PortalBehaviour{.response = {}});
  PortalRequest request(kUrl);
  portal->AwaitCall();
  portal.reset();
  bus.reset();
  EXPECT_EQ(request.Await(kLong), PortalOutcome::kNotOpened);
}

TEST(PortalRequest, NeedsAPortal) {
  const testing::PrivateBus bus;
  EXPECT_EQ(PortalRequest(kUrl).Await(kLong), PortalOutcome::kNotOpened);
}

TEST(PortalRequest, NeedsABus) {
  setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
  EXPECT_EQ(PortalRequest(kUrl).Await(kLong), PortalOutcome::kNotOpened);
}

class LocalPage : public ::testing::Test {
 protected:
  PortalOutcome Open(const std::string& url) {
    return PortalRequest(url).Await(kLong);
  }
  /// The folder's path has a space in it.
  std::string Url(const std::string& name) const {
    std::string url = "file://" + directory_ / name;
    url.replace(url.find(' '), 1, "%20");
    url.replace(url.find(' '), 1, "%20");
    return url;
  }
  const testing::TemporaryDirectory& directory() const { return directory_; }
  const PortalDouble& portal() const { return portal_; }

 private:
  testing::PrivateBus bus_;
  PortalDouble portal_{{}};
  testing::TemporaryDirectory directory_;
};

TEST_F(LocalPage, IsHandedOverAsADescriptorWithoutItsQuery) {
  const std::string page = directory().Write("page.html", "a page");
  EXPECT_EQ(Open(Url("page.html?nameAnchor=top#x")), PortalOutcome::kOpened);
  EXPECT_EQ(portal().method(), "OpenFile");
  EXPECT_EQ(portal().target(), page);
}

TEST_F(LocalPage, MayNameThisMachine) {
  const std::string page = directory().Write("page.html", "a page");
  EXPECT_EQ(Open("FILE://localhost" + Url("page.html").substr(7)),
            PortalOutcome::kOpened);
  EXPECT_EQ(portal().target(), page);
}

TEST_F(LocalPage, IsARegularFileOfThisMachine) {
  directory().Write("page.html", "a page");
  directory().MakeDirectory("folder");
  ASSERT_EQ(mkfifo((directory() / "pipe").c_str(), S_IRWXU), 0);
  const std::string page = Url("page.html");
  for (const std::string& bad :
       {Url("missing.html"), Url("folder"), Url("pipe"), page + "%00",
        "file://elsewhere" + page.substr(7), std::string("file:///dev/null")}) {
    EXPECT_EQ(Open(bad), PortalOutcome::kNotOpened) << bad;
  }
  EXPECT_EQ(portal().method(), "");
}

}  // namespace
}  // namespace velmohelp
