// Drives, unreadable folders, the file list's filters and stored window geometry.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "panels/FileListFilters.h"
#include "panels/FolderAccess.h"
#include "panels/StoredGeometry.h"
#include "platform/SettingsStore.h"
#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::TempSite;
namespace fs = std::filesystem;

TEST(FolderAccess, AFolderThatCannotBeListedSaysWhyAndTheNearestReadableOneTakesOver) {
  TempSite t;
  t.Write("a/b/page.html", "x");
  const std::string root = t.Root();
  EXPECT_EQ(FolderReadError(root + "a/b"), 0);
  EXPECT_EQ(FolderReadError(root + "gone"), ENOENT);
  EXPECT_EQ(FolderReadError(root + "a/b/page.html"), ENOTDIR);
  EXPECT_EQ(FolderReadError(""), ENOENT);

  EXPECT_EQ(FolderErrorMessage(root + "gone", ENOENT),
            "The folder " + root + "gone cannot be found.");
  EXPECT_EQ(FolderErrorMessage("/x", EACCES), "Permission denied.");
  EXPECT_EQ(DriveErrorMessage(EIO), "Drive I/O error.");
  EXPECT_EQ(DriveErrorMessage(EPERM), "Permission denied.");
  EXPECT_EQ(DriveErrorMessage(ENOMEDIUM), "Drive not ready.");
  EXPECT_EQ(DriveErrorMessage(ENOENT), "Drive not ready.");

  EXPECT_EQ(NearestReadableFolder(root + "a/b/c/d"), root + "a/b");
  EXPECT_EQ(NearestReadableFolder(root + "a/b/"), root + "a/b");
  EXPECT_EQ(NearestReadableFolder("/no/such/place"), "/");
  EXPECT_EQ(NearestReadableFolder(""), "/");
}

TEST(FolderAccess, AFolderWithoutReadPermissionIsRefused) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions do not bind the superuser";
  TempSite t;
  t.Write("closed/page.html", "x");
  const std::string closed = t.Root() + "closed";
  ASSERT_EQ(::chmod(closed.c_str(), 0), 0);
  EXPECT_EQ(FolderReadError(closed), EACCES);
  EXPECT_EQ(NearestReadableFolder(closed + "/inner"), t.Root().substr(0, t.Root().size() - 1));
  ::chmod(closed.c_str(), 0755);
}

TEST(FolderAccess, DrivesAreTheRootAndTheUsersVolumes) {
  const std::vector<std::string> mounts = {"/home",
                                           "/proc",
                                           "/proc/sys/fs/binfmt_misc",
                                           "/sys/fs/cgroup",
                                           "/dev/shm",
                                           "/run/user/1000",
                                           "/run/media/ann/STICK",
                                           "/media/cd",
                                           "/",
                                           "/home",
                                           "/boot/efi",
                                           "/snap/core/1",
                                           "relative"};
  const std::vector<std::string> drives = UserDrives(mounts);
  EXPECT_EQ(drives, (std::vector<std::string>{"/", "/home", "/media/cd", "/run/media/ann/STICK"}));
  EXPECT_EQ(UserDrives({}), std::vector<std::string>{"/"});

  EXPECT_EQ(DriveOf("/home/ann/site", drives), "/home");
  EXPECT_EQ(DriveOf("/home", drives), "/home");
  EXPECT_EQ(DriveOf("/homestead/x", drives), "/") << "a prefix of a name is not a folder";
  EXPECT_EQ(DriveOf("/media/cd/pics", drives), "/media/cd");
  EXPECT_EQ(DriveOf("/tmp", drives), "/");
}

TEST(FileListFilters, EachEntryStoresItsWordAndShowsItsPatterns) {
  EXPECT_EQ(FileListWord("html"), "html");
  EXPECT_EQ(FileListWord("image"), "image");
  EXPECT_EQ(FileListWord("all"), "all");
  EXPECT_EQ(FileListWord("HTML"), "both") << "the words are compared exactly";
  EXPECT_EQ(FileListWord(""), "both");

  EXPECT_EQ(NamePatterns("*.*"), std::vector<std::string>{"*"});
  EXPECT_EQ(NamePatterns("*.jpg;*.gif"), (std::vector<std::string>{"*.jpg", "*.gif"}));
  EXPECT_EQ(NamePatterns(";*.htm;;"), std::vector<std::string>{"*.htm"});
  EXPECT_TRUE(NamePatterns("").empty());
}

TEST(StoredGeometry, TheSiteManagerReadsAndWritesItsSectionInTwips) {
  MemorySettingsStore store;
  StoredGeometry g = ReadStoredGeometry(store, kSiteManagerGeometry);
  EXPECT_FALSE(g.sized) << "both sizes at 5000: nothing saved yet";
  EXPECT_EQ(g.left, 0);
  EXPECT_EQ(g.file1Top, -1);
  EXPECT_EQ(g.fileListWidth, -1);

  g = {30, 45, 800, 600, true, 150, 240};
  WriteStoredGeometry(store, kSiteManagerGeometry, g, false);
  EXPECT_EQ(store.GetSetting("SiteTolmer", "LeftXCoord", "?"), "450");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "LeftYCoord", "?"), "675");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "WindowXSize", "?"), "12000");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "WindowYSize", "?"), "9000");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "File1Top", "?"), "2250");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "FileListWidth", "?"), "3600");
  EXPECT_EQ(store.GetSetting("Window", "File1Top", "?"), "?") << "the main window's keys stay";

  const StoredGeometry back = ReadStoredGeometry(store, kSiteManagerGeometry);
  EXPECT_TRUE(back.sized);
  EXPECT_EQ(back.left, 30);
  EXPECT_EQ(back.top, 45);
  EXPECT_EQ(back.width, 800);
  EXPECT_EQ(back.height, 600);
  EXPECT_EQ(back.file1Top, 150);
  EXPECT_EQ(back.fileListWidth, 240);

  // Minimised: nothing is written.
  WriteStoredGeometry(store, kSiteManagerGeometry, {0, 0, 10, 10, true, 1, 1}, true);
  EXPECT_EQ(store.GetSetting("SiteTolmer", "WindowXSize", "?"), "12000");
  // A negative place is written as 0; an unknown split leaves its key.
  WriteStoredGeometry(store, kSiteManagerGeometry, {-20, -1, 500, 400, true, -1, -1}, false);
  EXPECT_EQ(store.GetSetting("SiteTolmer", "LeftXCoord", "?"), "0");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "LeftYCoord", "?"), "0");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "File1Top", "?"), "2250");
}

TEST(StoredGeometry, ThePictureViewerKeysLiveInTheWindowSection) {
  MemorySettingsStore store;
  StoredGeometry g = ReadStoredGeometry(store, kPictureViewerGeometry);
  EXPECT_TRUE(g.sized) << "its default size is a size";
  EXPECT_EQ(g.width, 2500 / 15);
  EXPECT_EQ(g.height, 2500 / 15);
  store.SaveSetting("Window", "PicViewerLeftXCoord", "-300");
  store.SaveSetting("Window", "PicViewerWindowXSize", "junk");
  g = ReadStoredGeometry(store, kPictureViewerGeometry);
  EXPECT_EQ(g.left, 0);
  EXPECT_FALSE(g.sized) << "an unreadable size leaves the window its own";

  WriteStoredGeometry(store, kPictureViewerGeometry, {15, 30, 300, 200, true, 99, 99}, false);
  EXPECT_EQ(store.GetSetting("Window", "PicViewerLeftXCoord", "?"), "225");
  EXPECT_EQ(store.GetSetting("Window", "PicViewerWindowYSize", "?"), "3000");
  EXPECT_EQ(store.GetSetting("Window", "File1Top", "?"), "?") << "the viewer has no splits";
}

}  // namespace
}  // namespace tessarine
