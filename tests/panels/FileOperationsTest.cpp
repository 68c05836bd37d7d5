// The file list's decisions and file operations over a real folder.
#include "panels/FileOperations.h"

#include <gtest/gtest.h>

#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::ReadAll;
using sitetest::TempSite;
namespace fs = std::filesystem;

TEST(FileList, ADoubleClickOpensPagesInsertsPicturesAndIgnoresTheRest) {
  const struct {
    const char* name;
    FileListAction action;
  } cases[] = {
      {"a.HTM", FileListAction::OpenAsDocument}, {"b.shtml", FileListAction::OpenAsDocument},
      {"s.cgi", FileListAction::OpenAsDocument}, {"x.css", FileListAction::OpenAsDocument},
      {"p.GIF", FileListAction::InsertImage},    {"p.jpg", FileListAction::InsertImage},
      {"p.jpeg", FileListAction::Nothing},       {"p.bmp", FileListAction::Nothing},
      {"archive.zip", FileListAction::Nothing}};
  for (const auto& c : cases) EXPECT_EQ(ActionForName(c.name), c.action) << c.name;
  EXPECT_EQ(ImageTagText("img/a.gif", 10, 20, true), "<IMG SRC=\"img/a.gif\" WIDTH=10 HEIGHT=20>");
  EXPECT_EQ(ImageTagText("a.gif", 1, 2, false), "<img src=\"a.gif\" width=1 height=2>");
  EXPECT_EQ(JoinFolder("/", "a"), "/a");
  EXPECT_EQ(JoinFolder("/s", "a"), "/s/a");
}

TEST(FileList, AMoveThatCannotCopyKeepsItsSource) {
  TempSite t;
  t.Write("a.html", "A");
  t.Write("other/b.html", "B");
  t.Write("taken/a.html", "older");
  const std::string root = t.Root();
  // Into its own folder: the copy fails, and the file stays.
  std::string said = RunFileOperation(FileOperation::Move, root + "a.html", root, "");
  EXPECT_NE(said.find("could not be moved"), std::string::npos) << said;
  EXPECT_EQ(ReadAll(root + "a.html"), "A");
  // Onto an existing file: neither is lost.
  said = RunFileOperation(FileOperation::Move, root + "a.html", root + "taken", "");
  EXPECT_FALSE(said.empty());
  EXPECT_EQ(ReadAll(root + "a.html"), "A");
  EXPECT_EQ(ReadAll(root + "taken/a.html"), "older");
  // Into a folder that is not there.
  said = RunFileOperation(FileOperation::Move, root + "a.html", root + "nowhere", "");
  EXPECT_FALSE(said.empty());
  EXPECT_TRUE(fs::exists(root + "a.html"));
  // A real move.
  EXPECT_EQ(RunFileOperation(FileOperation::Move, root + "other/b.html", root, ""), "");
  EXPECT_EQ(ReadAll(root + "b.html"), "B");
  EXPECT_FALSE(fs::exists(root + "other/b.html"));
}

TEST(FileList, RenameCopyDeleteAndNewFolder) {
  TempSite t;
  t.Write("a.html", "A");
  t.Write("c.html", "C");
  const std::string root = t.Root();
  EXPECT_EQ(RunFileOperation(FileOperation::Rename, root + "a.html", "", "b.html"), "");
  EXPECT_EQ(ReadAll(root + "b.html"), "A");
  EXPECT_NE(RunFileOperation(FileOperation::Rename, root + "b.html", "", "c.html"), "");
  EXPECT_EQ(ReadAll(root + "c.html"), "C") << "a rename never overwrites";
  EXPECT_EQ(CreateFolder(root, ""), "Please enter the name of the folder you wish to create.");
  EXPECT_EQ(CreateFolder(root, "new"), "");
  EXPECT_TRUE(fs::is_directory(root + "new"));
  EXPECT_EQ(RunFileOperation(FileOperation::Copy, root + "b.html", root + "new", ""), "");
  EXPECT_EQ(ReadAll(root + "new/b.html"), "A");
  EXPECT_EQ(ReadAll(root + "b.html"), "A");
  EXPECT_TRUE(DeleteFile(root + "b.html"));
  EXPECT_FALSE(fs::exists(root + "b.html"));
}

}  // namespace
}  // namespace tessarine
