#include "viewer/web/places.h"

#include "tests/viewer/folder.h"

namespace viewer {
namespace {

class PlacesOf : public ::testing::Test {
 protected:
  PlacesOf() {
    folder_.Write("Help/en_US/Basics/helpmap.txt", "VX_HOME\ta.html\n");
    folder_.Write("Help/en_US/Basics/sub/a.html", "");
    folder_.Write("Help/plain/sub/a.html", "");
    folder_.Write("alone/a.html", "");
    places_.AddPlace("downloaded", folder_.path("Help/"));
  }
  std::string Locate(const std::string& name) {
    const auto address = places_.Locate("file://" + folder_.path(name));
    return address ? address->Uri() : "";
  }
  std::string DirectoryOf(const std::string& uri) {
    const auto file = places_.Find(*ParseAddress(uri));
    return file ? file->folder.directory : "";
  }

  Folder folder_;
  Places places_;
};

TEST_F(PlacesOf, APageWithAHelpMapAboveIt) {
  const auto uri = Locate("Help/en_US/Basics/sub/a.html?nameAnchor=x#y");
  EXPECT_EQ(uri,
            "velmohelp://downloaded/en_US/Basics/sub/a.html"
            "?nameAnchor=x#y");
  EXPECT_EQ(DirectoryOf(uri), folder_.path("Help/en_US/Basics"));
}

TEST_F(PlacesOf, APageWithoutAHelpMapTakeTheOutermostFolder) {
  EXPECT_EQ(DirectoryOf(Locate("Help/plain/sub/a.html")),
            folder_.path("Help/plain"));
}

TEST_F(PlacesOf, APageOutsideHelpTakeItsOwnFolderAndDoNotTrustIt) {
  const auto uri = Locate("alone/a.html");
  EXPECT_EQ(DirectoryOf(uri), folder_.path("alone"));
  EXPECT_FALSE(places_.Find(*ParseAddress(uri))->folder.trusted);
  EXPECT_TRUE(places_.Folders().empty());
}

TEST_F(PlacesOf, ADeclaredFolderDoNotGuess) {
  ASSERT_TRUE(places_.AddFolder("downloaded", "plain/sub"));
  EXPECT_EQ(DirectoryOf(Locate("Help/plain/sub/a.html")),
            folder_.path("Help/plain/sub"));
}

TEST_F(PlacesOf, APageNeedItsFolderDeclared) {
  const auto address = ParseAddress("velmohelp://downloaded/plain/sub/a.html");
  EXPECT_FALSE(places_.Find(*address));
  EXPECT_TRUE(places_.Admit(*address));
  EXPECT_TRUE(places_.Find(*address));
}

TEST_F(PlacesOf, AFolderStayBelowThePlace) {
  EXPECT_FALSE(places_.AddFolder("downloaded", "../alone"));
  EXPECT_FALSE(places_.AddFolder("downloaded", "plain/../../alone"));
  EXPECT_FALSE(places_.AddFolder("downloaded", folder_.path("alone")));
  EXPECT_FALSE(places_.AddFolder("downloaded", ""));
  EXPECT_FALSE(places_.AddFolder("installed", "plain"));
}

TEST_F(PlacesOf, AnAddressGiveBackTheFileUrl) {
  const auto uri = Locate("Help/plain/sub/a.html?nameAnchor=x");
  EXPECT_EQ(places_.FileUrl(*ParseAddress(uri)),
            "file://" + folder_.path("Help/plain/sub/a.html?nameAnchor=x"));
}

TEST_F(PlacesOf, AnAddressNeedTheScheme) {
  EXPECT_FALSE(ParseAddress("file:///a"));
  EXPECT_FALSE(ParseAddress("velmohelp:///a"));
  EXPECT_FALSE(ParseAddress("velmohelp://downloaded/a%2f..%2fb"));
  EXPECT_FALSE(ParseFileUrl("file://host/a"));
  EXPECT_FALSE(ParseFileUrl("file:///a%00b"));
}

}  // namespace
}  // namespace viewer
