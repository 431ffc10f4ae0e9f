// The order in which the built library makes its state at load, and destroys
// it at unload.
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>

#include "tests/abi/elf_symbols.h"
#include "tests/abi/load_recorder.h"

namespace velmohelp {
namespace {

using ::testing::ElementsAreArray;
using testing::Recording;

constexpr char kExported[] = "sAppID";
constexpr char kTable[] = "velmohelp::own::sHelpPaths";
constexpr std::size_t kTableStrings = 200;

/// In the order of construction.
const std::vector<std::string> kState = {
    "velmohelp::own::sConfigID",
    "velmohelp::own::sLocale",
    "velmohelp::own::sHelpAppPath",
    "velmohelp::own::sUnused",
    "velmohelp::own::sBaseUrl",
    "velmohelp::own::sProductID",
    kTable,
    "sAppID",
    "sPublisherID",
    "sHelpMap",
    "sDefaultAppID",
    "sDefaultPublisherID",
    "std::__ioinit",
    "kKLHPreferenceFile",
    "kDownloadedOfflineContent",
    "kDownloadedHelpcfg",
};

class LoadOrder : public ::testing::Test {
 protected:
  LoadOrder() : symbols_(testing::SymbolsOf(VELMO_LIBRARY)) {}

  void Load() {
    testing::StartRecording();
    library_ = dlopen(VELMO_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    loaded_ = testing::StopRecording();
    ASSERT_NE(library_, nullptr) << dlerror();
  }

  void Unload() {
    testing::StartRecording();
    dlclose(library_);
    unloaded_ = testing::StopRecording();
    ASSERT_EQ(dlopen(VELMO_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr);
  }

  template <typename T>
  T* Object(const std::string& name) const {
    // The address of an exported variable gives those of the others.
    const auto distance = static_cast<std::ptrdiff_t>(symbols_.at(name)) -
                          static_cast<std::ptrdiff_t>(symbols_.at(kExported));
    auto* exported = static_cast<char*>(dlsym(library_, kExported));
    return reinterpret_cast<T*>(exported + distance);
  }

  std::vector<const void*> State() const {
    std::vector<const void*> state;
    state.reserve(kState.size());
    for (const std::string& name : kState) {
      state.push_back(Object<const void>(name));
    }
    return state;
  }

  std::map<std::string, std::uintptr_t> symbols_;
  void* library_ = nullptr;
  Recording loaded_;
  Recording unloaded_;
};

TEST_F(LoadOrder, IsTheDocumentedOneBeforeAnythingElseIsMade) {
  Load();
  ASSERT_GE(loaded_.made.size(), kState.size());
  loaded_.made.resize(kState.size());
  EXPECT_THAT(loaded_.made, ElementsAreArray(State()));
  Unload();
}

TEST_F(LoadOrder, IsReversedAtUnload) {
  Load();
  std::vector<const void*> state = State();
  std::ranges::reverse(state);
  Unload();
  ASSERT_EQ(unloaded_.destroyed.size(), loaded_.made.size());
  const auto others = unloaded_.destroyed.size() - state.size();
  unloaded_.destroyed.erase(
      unloaded_.destroyed.begin(),
      unloaded_.destroyed.begin() + static_cast<std::ptrdiff_t>(others));
  EXPECT_THAT(unloaded_.destroyed, ElementsAreArray(state));
}

TEST_F(LoadOrder, DestroysTheContentTableFromItsLastString) {
  Load();
  auto* strings = Object<std::string>(kTable);
  std::vector<const void*> texts;
  for (std::size_t i = 0; i < kTableStrings; ++i) {
    strings[i] = std::string(100, 'x');
    texts.insert(texts.begin(), strings[i].data());
  }
  Unload();
  std::erase_if(unloaded_.freed, [&](const void* address) {
    return std::ranges::count(texts, address) == 0;
  });
  EXPECT_THAT(unloaded_.freed, ElementsAreArray(texts));
}

TEST_F(LoadOrder, ReleasesEveryEntryOfTheHelpMapAtUnload) {
  Load();
  Unload();
  const std::size_t freed_without_entries = unloaded_.freed.size();
  Load();
  auto& map = *Object<std::map<std::string, std::string>>("sHelpMap");
  for (const char c : {'a', 'b', 'c'}) {
    map[std::string(100, c)] = std::string(100, c);
  }
  Unload();
  // Of each entry its node and two texts.
  EXPECT_EQ(unloaded_.freed.size(), freed_without_entries + 9);
}

TEST_F(LoadOrder, IsTheSameAtEachLoad) {
  for (int i = 0; i < 3; ++i) {
    Load();
    loaded_.made.resize(kState.size());
    EXPECT_THAT(loaded_.made, ElementsAreArray(State()));
    Unload();
  }
}

}  // namespace
}  // namespace velmohelp
