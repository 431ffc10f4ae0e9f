#include "platform/folders.h"
#include "tests/support/scripted_test.h"
#include "tests/support/sentence.h"

namespace velmohelp::testing {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Row {
  const char* sentence;
  std::string path;
  /// The path that the machine is asked for.
  std::string asked;
};

class Reference : public ScriptedTest,
                  public ::testing::WithParamInterface<Row> {
 protected:
  FileReference out = {7, 7};
};

TEST_P(Reference, IsThatOfTheFile) {
  machine.AddFile(GetParam().asked);
  const auto expected = machine.FindFile(GetParam().asked)->reference;
  EXPECT_EQ(FindFileReference(machine, GetParam().path, out), 0);
  EXPECT_EQ(out.device, expected.device);
  EXPECT_EQ(out.inode, expected.inode);
  EXPECT_EQ(machine.Questions()[0], machine.Questions()[1]);
}

const Row kPaths[] = {
    {"a plain path", "/x/y.html", "/x/y.html"},
    {"a path with characters that are illegal in a URL", "/x y/\"<ä>\"\n",
     "/x y/\"<ä>\"\n"},
    {"a path that is escaped already", "/x%20y/%C3%A4", "/x y/ä"},
    {"a path that is escaped twice", "/x%2520y", "/x y"},
    {"a path that is escaped in part", "/x y%20z", "/x y z"},
    {"a percent sign before no digits", "/100%", "/100%"},
    {"a percent sign before one digit", "/a%4", "/a%4"},
    {"a file URL", "file:///x%20y", "/x y"},
    {"a URL with a host", "file://localhost/x", "/x"},
    {"a query is not part of the path", "/x?y", "/x"},
    {"a fragment is not part of the path", "/x#y", "/x"},
    {"a colon inside a path", "/a:b/c", "/a:b/c"},
    {"a colon after the first slash of a relative path", "./a:b", "./a:b"},
    {"a colon in the query of a relative path", "a?b:c", "a"},
    {"a URL with an absolute path and no host", "file:/x", "/x"},
    {"a URL whose scheme has every kind of character", "a+1-.:/x", "/x"},
    {"a path up to its first zero byte", "/x\0/y"s, "/x"},
    {"a path up to an escaped zero byte", "/x%00/y", "/x"},
    {"a path of 1023 bytes", "/" + std::string(1022, 'a'),
     "/" + std::string(1022, 'a')},
};

INSTANTIATE_TEST_SUITE_P(OfPaths, Reference, ::testing::ValuesIn(kPaths),
                         SentenceOf());

class NoReference : public Reference {
 protected:
  void ExpectStatus(const std::string& path, std::int16_t status) {
    EXPECT_EQ(FindFileReference(machine, path, out), status)
        << path.substr(0, 99);
    EXPECT_EQ(out.device, 7);
    EXPECT_EQ(out.inode, 7);
  }
};

TEST_F(NoReference, ComesFromATextThatMakesNoUrl) {
  ExpectStatus("", -1403);
  ExpectStatus("\0/x"s, -1403);
  ExpectStatus("/\xFF", -1403);
  ExpectStatus("/\xED\xA0\x80", -1403);
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(NoReference, ComesFromEscapesThatAreNotUtf8) {
  ExpectStatus("/%FF", -1403);
  ExpectStatus("/\xC3\xA4%C3", -1403);
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(NoReference, ComesFromAMissingFile) {
  ExpectStatus("/x", -43);
  EXPECT_THAT(machine.Questions(), ElementsAre("FindFile /x"));
}

/// The file whose name follows the colon is another one.
TEST_F(NoReference, ComesFromAColonWithoutAPathOfAUrl) {
  for (const char* path : {"x", "b/c", "/x"}) machine.AddFile(path);
  for (const char* path : {"mailto:x", "file:x", "a:b/c", "1:/x", ":x", ":/x",
                           "a_b:/x", "ä:/x", "a b:/x", "file:", "a:?/x"}) {
    ExpectStatus(path, -1403);
  }
  EXPECT_THAT(machine.Questions(), IsEmpty());
}

TEST_F(NoReference, ComesFromADirectoryThoughItExists) {
  machine.AddDirectory("/x y");
  ExpectStatus("/x y", -1302);
  ExpectStatus("/x%20y/", -1302);
  ExpectStatus("file:///x%20y", -1302);
}

TEST_F(NoReference, ComesFromAPathOf1024Bytes) {
  const std::string path = "/" + std::string(1023, 'a');
  machine.AddFile(path);
  ExpectStatus(path, -43);
}

TEST_F(NoReference, ComesFromEscapesOfEscapesThatAreNotUtf8) {
  machine.AddFile("/\xFF");
  ExpectStatus("/%25FF", -43);
}

TEST_F(NoReference, ComesFromMegabytes) {
  ExpectStatus("/" + std::string(4'000'000, ' '), -43);
  ExpectStatus("/" + std::string(4'000'000, '%'), -43);
}

}  // namespace
}  // namespace velmohelp::testing
