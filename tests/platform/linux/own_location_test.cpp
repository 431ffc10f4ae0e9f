// The library's own folder, as a plug-in of a host sees it.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "tests/support/temporary_directory.h"

namespace velmohelp {
namespace {

using testing::TemporaryDirectory;

class PlugIn : public ::testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::copy_file(VELMO_TEST_PLUGIN, directory_ / "plugin.so");
  }

  /// Loads the plug-in by a path, and asks it from another directory.
  static std::string FolderWhenLoadedAs(const std::string& path) {
    void* plugin = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (plugin == nullptr) return dlerror();
    std::filesystem::current_path("/");
    const auto own_folder =
        reinterpret_cast<const char* (*)()>(dlsym(plugin, "own_folder"));
    std::string folder = own_folder();
    dlclose(plugin);
    return folder;
  }
  const TemporaryDirectory& directory() const { return directory_; }

 private:
  TemporaryDirectory directory_;
};

TEST_F(PlugIn, KnowsItsFolderByAnAbsolutePath) {
  EXPECT_EQ(FolderWhenLoadedAs(directory() / "plugin.so"), directory().path());
}

TEST_F(PlugIn, KnowsItsFolderByARelativePath) {
  std::filesystem::current_path(directory().path());
  EXPECT_EQ(FolderWhenLoadedAs("./plugin.so"), directory().path());
}

TEST_F(PlugIn, KnowsItsFileBehindALink) {
  const std::string elsewhere = directory().MakeDirectory("elsewhere");
  std::filesystem::create_symlink("../plugin.so", elsewhere + "/link.so");
  EXPECT_EQ(FolderWhenLoadedAs(elsewhere + "/link.so"), directory().path());
}

}  // namespace
}  // namespace velmohelp
