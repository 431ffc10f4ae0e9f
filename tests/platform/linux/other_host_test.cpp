// The machine of a host that this process stands in for.
#include <gtest/gtest.h>

#include <climits>

#include "platform/linux/bundles.h"
#include "platform/linux/linux_machine.h"
#include "platform/linux/own_location.h"
#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using testing::TemporaryDirectory;

class OtherHost : public ::testing::Test {
 protected:
  const TemporaryDirectory directory_;
  const std::string resources_ = directory_.MakeDirectory("bin/app.resources");
  const std::string bundle_ =
      directory_.MakeDirectory("Frameworks/com.example.other.framework");
  LinuxMachine machine_;
};

TEST_F(OtherHost, HasResourcesAndBundlesOfItsOwn) {
  EXPECT_FALSE(machine_.BundleDirectory("com.example.other"));
  EXPECT_TRUE(machine_.SetHost(directory_ / "bin/app"));
  EXPECT_EQ(machine_.ResourcesDirectory(), resources_);
  EXPECT_EQ(machine_.BundleDirectory("com.example.other"),
            directory_ / "bin/../Frameworks/com.example.other.framework");
}

TEST_F(OtherHost, IsForgotten) {
  EXPECT_TRUE(machine_.SetHost(directory_ / "bin/app"));
  EXPECT_TRUE(machine_.SetHost(std::nullopt));
  EXPECT_EQ(machine_.ResourcesDirectory(),
            ResourcesOf(HostExecutable().value()));
}

TEST_F(OtherHost, StaysWhenTheNextPathCannotBeAFiles) {
  EXPECT_TRUE(machine_.SetHost(directory_ / "bin/app"));
  EXPECT_FALSE(machine_.SetHost(""));
  EXPECT_FALSE(machine_.SetHost(std::string("/a\0b", 4)));
  EXPECT_FALSE(machine_.SetHost("/" + std::string(PATH_MAX, 'a')));
  EXPECT_EQ(machine_.ResourcesDirectory(), resources_);
}

}  // namespace
}  // namespace velmohelp
