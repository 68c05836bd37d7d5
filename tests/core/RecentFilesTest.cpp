// The recent-file list and the timed backups.

#include <gtest/gtest.h>

#include "core/Backups.h"
#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "core/RecentFiles.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::ReadAll;
using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

std::vector<std::string> Stored(TestApp& t, int n) {
  std::vector<std::string> out;
  for (int i = 1; i <= n; ++i)
    out.push_back(t.store.GetSetting("Startup", "RecentFile" + std::to_string(i), "Not Used"));
  return out;
}

TEST(RecentFiles, NewPathsGoOnTopAndTheOldestFallsOff) {
  TestApp t;
  for (const char* p : {"/a", "/b", "/c", "/d", "/e"}) WriteRecentFile(t.app, p);
  EXPECT_EQ(Stored(t, 5), (std::vector<std::string>{"/e", "/d", "/c", "/b", "Not Used"}));
  WriteRecentFile(t.app, "/e");  // no move to the top: it stands twice
  EXPECT_EQ(Stored(t, 4), (std::vector<std::string>{"/e", "/e", "/d", "/c"}));

  // An entry whose first eight characters say unused is not carried down, so the one
  // below it keeps its old value.
  t.store.SaveSetting("Startup", "RecentFile2", "Not Used (cleared)");
  WriteRecentFile(t.app, "/f");
  EXPECT_EQ(Stored(t, 4), (std::vector<std::string>{"/f", "/e", "/d", "/d"}));

  t.store.SaveSetting("Startup", "NumberOfMRUFiles", "1");
  t.app.LoadSettings();
  WriteRecentFile(t.app, "/g");
  EXPECT_EQ(Stored(t, 3), (std::vector<std::string>{"/g", "/e", "/d"}));
}

TEST(RecentFiles, TheMenuShowsUsedEntriesAndUpdateLooksAtFourOnly) {
  TestApp t;
  int refreshed = 0;
  t.app.files.onRecentMenuChanged = [&] { ++refreshed; };
  LoadRecentFiles(t.app);
  EXPECT_FALSE(t.app.files.recentMenu.visible[0]);
  EXPECT_EQ(refreshed, 1);

  t.store.SaveSetting("Startup", "NumberOfMRUFiles", "6");
  t.app.LoadSettings();
  for (const char* p : {"/1", "/2", "/3", "/4", "/5"}) UpdateRecentFiles(t.app, p);
  const auto& menu = t.app.files.recentMenu;
  EXPECT_TRUE(menu.visible[0]);
  EXPECT_EQ(menu.captions[1], "/5");
  EXPECT_EQ(menu.captions[5], "/1");
  EXPECT_TRUE(menu.visible[5]);
  EXPECT_FALSE(menu.visible[6]);

  UpdateRecentFiles(t.app, "/2");  // fourth entry: known
  EXPECT_EQ(menu.captions[1], "/5");
  UpdateRecentFiles(t.app, "/1");  // fifth entry: not looked at, so it stands twice
  EXPECT_EQ(Stored(t, 6), (std::vector<std::string>{"/1", "/5", "/4", "/3", "/2", "/1"}));
}

TEST(RecentFiles, SavingAddsThePathButAReadOnlyFailureDoesNot) {
  TestApp t;
  TempDir dir;
  auto& w = t.NewWindow("x");
  SaveFile(t.app, w, dir / "a.html", SaveMode::Command);
  EXPECT_EQ(t.app.files.recentMenu.captions[1], dir / "a.html");
  SaveFile(t.app, w, dir.path().string(), SaveMode::Command);  // a folder: error 75
  EXPECT_EQ(t.store.GetSetting("Startup", "RecentFile2", "Not Used"), "Not Used");
}

TEST(RecentFiles, ChoosingAnEntryOpensItAndTheFirstWindowGivesWay) {
  TestApp t;
  TempDir dir;
  WriteAll(dir / "r.css", "P {}");
  t.store.SaveSetting("Startup", "RecentFile1", dir / "r.css");
  LoadRecentFiles(t.app);
  bool insertsEnabled = true;
  t.app.files.enableStyleInserts = [&](bool on) { insertsEnabled = on; };
  t.NewWindow();
  ChooseRecentFile(t.app, 1, true);
  ASSERT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(t.frame.Windows()[0]->Caption(), dir / "r.css");
  EXPECT_EQ(t.app.files.OpenFileName, dir / "r.css");
  EXPECT_FALSE(insertsEnabled);
}

TEST(Backups, EveryNthMinuteChangedDocumentsAreCopiedBesideThem) {
  TestApp t;
  TempDir dir;
  WriteAll(dir / "page.html", "<P>old\r\n");
  ASSERT_TRUE(OpenFile(t.app, dir / "page.html"));
  auto& page = *t.frame.Windows().back();
  page.Buffer().Type("new ");
  OpenFile(t.app, dir / "page.html");
  WriteAll(dir / "same.html", "same");
  ASSERT_TRUE(OpenFile(t.app, dir / "same.html"));  // unchanged: no copy

  t.store.SaveSetting("Miscellaneous", "AutoSave", "2");
  t.app.LoadSettings();
  TimerAutoSaveTick(t.app);
  EXPECT_FALSE(std::filesystem::exists(dir / "Backup of page.html"));
  TimerAutoSaveTick(t.app);
  EXPECT_EQ(ReadAll(dir / "Backup of page.html"), "new <P>old\r\n");
  EXPECT_FALSE(std::filesystem::exists(dir / "Backup of same.html"));
  EXPECT_EQ(ReadAll(dir / "page.html"), "<P>old\r\n");
  EXPECT_TRUE(t.Changed(page));
  EXPECT_EQ(page.Caption(), dir / "page.html");
  EXPECT_EQ(t.app.files.autoSaveTicks, 0);

  // An untitled window's copy goes to the current folder.
  auto& untitled = t.NewWindow("draft");
  untitled.Buffer().Type("1 ");
  const auto cwd = std::filesystem::current_path();
  std::filesystem::current_path(dir.path());
  BackupChangedDocuments(t.app);
  std::filesystem::current_path(cwd);
  EXPECT_EQ(ReadAll(dir / ("Backup of " + untitled.Caption())), "1 draft\r\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 4);
  EXPECT_EQ(BackupName("/a/b/c.htm"), "/a/b/Backup of c.htm");

  // Off: the count goes on, nothing is written.
  std::filesystem::remove(dir / "Backup of page.html");
  t.store.SaveSetting("Miscellaneous", "AutoSave", "0");
  t.app.LoadSettings();
  for (int i = 0; i < 3; ++i) TimerAutoSaveTick(t.app);
  EXPECT_FALSE(std::filesystem::exists(dir / "Backup of page.html"));
}

}  // namespace
}  // namespace tessarine
