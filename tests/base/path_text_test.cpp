#include "base/path_text.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(PathTextTest, JoinsWithOneSeparator) {
  EXPECT_EQ(JoinPath("/home/a", "x.txt"), "/home/a/x.txt");
  EXPECT_EQ(JoinPath("/home/a/", "x.txt"), "/home/a/x.txt");
  EXPECT_EQ(JoinPath("/home/a/", "/x.txt"), "/home/a/x.txt");
  EXPECT_EQ(JoinPath("/", "x"), "/x");
  EXPECT_EQ(JoinPath("", "x"), "x");
  EXPECT_EQ(JoinPath("a", ""), "a/");
  EXPECT_EQ(JoinPath("/m\xfcll", "\xe9.txt"), "/m\xfcll/\xe9.txt");
}

TEST(PathTextTest, SplitsIntoFolderAndLastElement) {
  EXPECT_EQ(ParentFolder("/a/b/c.txt"), "/a/b");
  EXPECT_EQ(ParentFolder("/a/b/"), "/a");
  EXPECT_EQ(ParentFolder("/a"), "/");
  EXPECT_EQ(ParentFolder("/a//b"), "/a");
  EXPECT_EQ(ParentFolder("/"), "");
  EXPECT_EQ(ParentFolder("c.txt"), "");
  EXPECT_EQ(ParentFolder("a/b"), "a");
  EXPECT_EQ(LastPathElement("/a/b/c.txt"), "c.txt");
  EXPECT_EQ(LastPathElement("/a/b/"), "b");
  EXPECT_EQ(LastPathElement("c"), "c");
  EXPECT_EQ(LastPathElement("/"), "");
  EXPECT_EQ(LastPathElement(""), "");
}

TEST(PathTextTest, ExtensionIsTextAfterTheLastPointOfTheLastElement) {
  EXPECT_EQ(ExtensionName("/a/b.tar.gz"), "gz");
  EXPECT_EQ(ExtensionName("Müller.MP3"), "MP3");
  EXPECT_EQ(ExtensionName("/a.d/file"), "");
  EXPECT_EQ(ExtensionName("name."), "");
  EXPECT_EQ(ExtensionName(".profile"), "profile");
  EXPECT_EQ(ExtensionName("a.b c"), "b c");
  EXPECT_EQ(WithoutExtension("/a/b.tar.gz"), "/a/b.tar");
  EXPECT_EQ(WithoutExtension("/a.d/file"), "/a.d/file");
  EXPECT_EQ(WithoutExtension("name."), "name");
  EXPECT_EQ(WithoutExtension("x.txt"), "x");
}

TEST(PathTextTest, PathElementsKeepEmptyOnes) {
  using Elements = std::vector<std::string>;
  EXPECT_EQ(PathElements("/a/b.jpg"), (Elements{"", "a", "b.jpg"}));
  EXPECT_EQ(PathElements("a//b/"), (Elements{"a", "", "b", ""}));
  EXPECT_EQ(PathElements(""), (Elements{""}));
}

TEST(PathTextTest, AbsolutePathNameResolvesOnTheText) {
  EXPECT_EQ(AbsolutePathName("x.txt", "/home/u"), "/home/u/x.txt");
  EXPECT_EQ(AbsolutePathName("/tmp/./a//b/", "/home/u"), "/tmp/a/b");
  EXPECT_EQ(AbsolutePathName("../x", "/home/u"), "/home/x");
  EXPECT_EQ(AbsolutePathName("../../../..", "/home/u"), "/");
  EXPECT_EQ(AbsolutePathName("", "/home/u/"), "/home/u");
  EXPECT_EQ(AbsolutePathName(".", "/"), "/");
  EXPECT_EQ(AbsolutePathName("a/../../b", "rel"), "b");
  EXPECT_EQ(AbsolutePathName("../b", ""), "../b");
  EXPECT_EQ(AbsolutePathName("", ""), ".");
}

TEST(PathTextTest, EnsureTrailingSeparator) {
  EXPECT_EQ(EnsureTrailingSeparator("/a"), "/a/");
  EXPECT_EQ(EnsureTrailingSeparator("/a/"), "/a/");
  EXPECT_EQ(EnsureTrailingSeparator("/"), "/");
  EXPECT_EQ(EnsureTrailingSeparator(""), "/");
}

}  // namespace
}  // namespace tarnwick
