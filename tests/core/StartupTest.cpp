// The main window's start-up decisions: placement, first run, what opens, and the close.

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "core/Startup.h"
#include "core/Styles.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::ReadAll;
using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

TEST(WindowPlacement, FirstRunTakesTheWholeScreenAtTheOrigin) {
  MemorySettingsStore store;
  const WindowPlacement p = ComputeWindowPlacement(store, 1280, 1024);
  EXPECT_EQ(p.x, 0);
  EXPECT_EQ(p.y, 0);
  EXPECT_EQ(p.width, 1280);
  EXPECT_EQ(p.height, 1024);
  EXPECT_TRUE(p.fillsScreen) << "opens maximised";
}

TEST(WindowPlacement, StoredTwipsBecomePixelsAndBadValuesFallBack) {
  MemorySettingsStore store;
  store.SaveSetting("Window", "LeftXCoord", "-300");
  store.SaveSetting("Window", "LeftYCoord", "1500");
  store.SaveSetting("Window", "WindowXSize", "9000");
  store.SaveSetting("Window", "WindowYSize", "");
  WindowPlacement p = ComputeWindowPlacement(store, 1280, 1024);
  EXPECT_EQ(p.x, 0);
  EXPECT_EQ(p.y, 100);
  EXPECT_EQ(p.width, 600);
  EXPECT_EQ(p.height, 1024);  // empty takes the screen's
  EXPECT_FALSE(p.fillsScreen);

  // Only both at 5000 means the first run.
  store.SaveSetting("Window", "WindowYSize", "5000");
  store.SaveSetting("Window", "WindowXSize", "5000");
  EXPECT_EQ(ComputeWindowPlacement(store, 800, 600).width, 800);
  store.SaveSetting("Window", "WindowXSize", "4995");
  p = ComputeWindowPlacement(store, 800, 600);
  EXPECT_EQ(p.width, 333);
  EXPECT_EQ(p.height, 333);
}

TEST(WindowGeometry, NegativeEdgesAreSavedAsZeroAndAMinimisedWindowSavesOnlyTheGroup) {
  MemorySettingsStore store;
  WindowGeometry g{-45, -1, 9000, 6000, "2400", "", "3", "2"};
  SaveWindowGeometry(store, g, false);
  EXPECT_EQ(store.GetSetting("Window", "LeftXCoord", "?"), "0");
  EXPECT_EQ(store.GetSetting("Window", "LeftYCoord", "?"), "0");
  EXPECT_EQ(store.GetSetting("Window", "WindowXSize", "?"), "9000");
  EXPECT_EQ(store.GetSetting("Window", "WindowYSize", "?"), "6000");
  EXPECT_EQ(store.GetSetting("Window", "FileListWidth", "?"), "2400");
  EXPECT_EQ(store.GetSetting("Window", "SideBarTab", "?"), "3");
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DefaultShortcutBarGroup", "?"), "2");

  MemorySettingsStore minimised;
  SaveWindowGeometry(minimised, g, true);
  EXPECT_EQ(minimised.GetSetting("Miscellaneous", "DefaultShortcutBarGroup", "?"), "2");
  for (const char* key : {"LeftXCoord", "LeftYCoord", "WindowXSize", "WindowYSize", "FileListWidth",
                          "File1Top", "SideBarTab"})
    EXPECT_FALSE(minimised.Has("Window", key)) << key;
}

int registrations = 0;
void CountRegistration(Application&) {
  ++registrations;
}

TEST(FirstRun, RegistersOnceAndRemembersTheProgramFolder) {
  TestApp t;
  registrations = 0;
  EXPECT_TRUE(FirstRunStep(t.app, CountRegistration));
  EXPECT_EQ(registrations, 1);
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "Path", ""), "/opt/tessarine");
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "FirstRun", ""), "no");

  t.store.SaveSetting("Miscellaneous", "Path", "elsewhere");
  EXPECT_FALSE(FirstRunStep(t.app, CountRegistration));
  EXPECT_EQ(registrations, 1);
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "Path", ""), "elsewhere");

  // The word is compared in any case.
  t.store.SaveSetting("Miscellaneous", "FirstRun", "YES");
  EXPECT_TRUE(FirstRunStep(t.app, CountRegistration));
  EXPECT_EQ(registrations, 2);
}

// Seeded files the user may have changed stay; the shipped help pages follow a newer release.
TEST(ApplicationFolder, KeepsTheUsersFilesAndRefreshesTheHelpPages) {
  TempDir shipped, home;
  std::filesystem::create_directories(shipped.path() / "help");
  std::filesystem::create_directories(shipped.path() / "templates");
  WriteAll(shipped / "help/index.html", "old help");
  WriteAll(shipped / "templates/page.htm", "shipped template");
  ::setenv("TESSARINE_HOME", home.path().c_str(), 1);
  EXPECT_EQ(PrepareApplicationFolder(shipped.path().string()), home.path().string());
  EXPECT_EQ(ReadAll(home / "help/index.html"), "old help");

  WriteAll(home / "templates/page.htm", "the user's template");
  WriteAll(shipped / "templates/page.htm", "newer template");
  WriteAll(shipped / "help/index.html", "new help");
  const auto later =
      std::filesystem::last_write_time(home / "help/index.html") + std::chrono::hours(1);
  std::filesystem::last_write_time(shipped / "help/index.html", later);
  std::filesystem::last_write_time(shipped / "templates/page.htm", later);
  PrepareApplicationFolder(shipped.path().string());
  ::unsetenv("TESSARINE_HOME");
  EXPECT_EQ(ReadAll(home / "help/index.html"), "new help");
  EXPECT_EQ(ReadAll(home / "templates/page.htm"), "the user's template");
}

struct StartupDocuments : ::testing::Test {
  TestApp t;
  TempDir dir;
  std::string given, recent;
  void SetUp() override {
    given = dir / "given.html";
    recent = dir / "recent.html";
    WriteAll(given, "<P>given\r\n");
    WriteAll(recent, "<P>recent\r\n");
    t.store.SaveSetting("Startup", "RecentFile1", recent);
  }
  void Start(const char* startNew, const char* openMru, const std::string& commandLine) {
    t.store.SaveSetting("Miscellaneous", "StartNewDoc", startNew);
    t.store.SaveSetting("Miscellaneous", "OpenMRUDoc", openMru);
    t.app.LoadSettings();
    OpenStartupDocuments(t.app, commandLine);
  }
  std::vector<std::string> Captions() const {
    std::vector<std::string> out;
    for (auto* w : t.frame.Windows()) out.push_back(w->Caption());
    return out;
  }
};

TEST_F(StartupDocuments, TheCommandLineWinsOverBothSettings) {
  Start("1", "1", given);
  EXPECT_EQ(Captions(), std::vector<std::string>{given});
  EXPECT_EQ(t.frame.Windows()[0]->Buffer().Text(), "<P>given");
}

TEST_F(StartupDocuments, ANewDocumentWinsOverTheRecentFile) {
  Start("1", "1", "");
  EXPECT_EQ(Captions(), std::vector<std::string>{"Untitled:1"});
  // The HTML skeleton, with the recent list shown by the new document.
  EXPECT_EQ(t.frame.Windows()[0]->Buffer().Text().compare(0, 9, "<!DOCTYPE"), 0);
  EXPECT_TRUE(t.app.files.recentMenu.visible[1]);
}

TEST_F(StartupDocuments, AMissingCommandLinePathIsReportedAndNothingOpens) {
  Start("1", "1", dir / "gone.html");
  EXPECT_TRUE(Captions().empty());
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text, "Document doesn't exist");
}

TEST_F(StartupDocuments, TheRecentFileOpensWhenAskedFor) {
  Start("0", "", "");  // an empty OpenMRUDoc counts as set
  EXPECT_EQ(Captions(), std::vector<std::string>{recent});
  EXPECT_EQ(t.app.files.recentMenu.captions[1], recent);
}

TEST_F(StartupDocuments, AMissingRecentFileOpensNothingAndLeavesTheToolbars) {
  std::filesystem::remove(recent);
  Start("0", "1", "");
  EXPECT_TRUE(t.frame.Windows().empty());
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text, "Document doesn't exist");
  EXPECT_TRUE(t.frame.toolbarButtonsEnabled);

  t.store.SaveSetting("Startup", "RecentFile1", "NOT USED");
  OpenStartupDocuments(t.app, "");
  EXPECT_EQ(t.messages.shown().size(), 1u);  // not looked for at all
}

TEST_F(StartupDocuments, NothingToOpenDimsTheToolbars) {
  Start("0", "0", "");
  EXPECT_TRUE(t.frame.Windows().empty());
  EXPECT_FALSE(t.frame.toolbarButtonsEnabled);
  EXPECT_TRUE(t.messages.shown().empty());
}

}  // namespace
}  // namespace tessarine
