// The desktop's default browser read from scratch XDG folders.

#include <gtest/gtest.h>
#include <stdlib.h>

#include "core/TestApp.h"
#include "platform/DefaultBrowser.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::WriteAll;

struct XdgBrowserTest : ::testing::Test {
  TempDir dir;
  std::string config = dir / "config", data = dir / "data", system = dir / "system";
  const char* names[5] = {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "XDG_DATA_HOME", "XDG_DATA_DIRS",
                          "XDG_CURRENT_DESKTOP"};
  void SetUp() override {
    for (const auto& d : {config, data + "/applications", system + "/applications/kde"})
      std::filesystem::create_directories(d);
    ::setenv("XDG_CONFIG_HOME", config.c_str(), 1);
    ::setenv("XDG_CONFIG_DIRS", (dir / "etc").c_str(), 1);
    ::setenv("XDG_DATA_HOME", data.c_str(), 1);
    ::setenv("XDG_DATA_DIRS", system.c_str(), 1);
    ::setenv("XDG_CURRENT_DESKTOP", "Test:Other", 1);
  }
  void TearDown() override {
    for (const char* n : names) ::unsetenv(n);
  }
  std::string Ask() { return XdgDefaultBrowser("").Command(); }
};

TEST_F(XdgBrowserTest, TheHttpHandlersExecLineWithoutFieldCodes) {
  EXPECT_EQ(Ask(), "");  // nothing named anywhere
  WriteAll(system + "/applications/web.desktop",
           "[Desktop Entry]\nName=Web\nExec=\"/opt/my web/web\" --new-window %u\n"
           "[Desktop Action private]\nExec=/opt/web --private %u\n");
  WriteAll(data + "/applications/mimeapps.list",
           "[Default Applications]\nx-scheme-handler/http=web.desktop;\n");
  EXPECT_EQ(Ask(), "\"/opt/my web/web\" --new-window");

  // The user's config wins over the data folder, the desktop's own list over both.
  WriteAll(system + "/applications/kde/browser.desktop", "[Desktop Entry]\nExec=konq %U\n");
  WriteAll(config + "/mimeapps.list",
           "[Added Associations]\nx-scheme-handler/http=web.desktop;\n"
           "[Default "
           "Applications]\ntext/html=web.desktop\nx-scheme-handler/http=kde-browser.desktop;\n");
  EXPECT_EQ(Ask(), "konq");
  WriteAll(config + "/test-mimeapps.list",
           "[Default Applications]\nx-scheme-handler/http=gone.desktop;web.desktop\n");
  EXPECT_EQ(Ask(), "\"/opt/my web/web\" --new-window");  // the first one has no file
}

TEST(DesktopEntry, FieldCodesGoAndPercentStays) {
  EXPECT_EQ(DropFieldCodes("firefox %u"), "firefox");
  EXPECT_EQ(DropFieldCodes("browser %U --x %i %c"), "browser --x");
  EXPECT_EQ(DropFieldCodes("run --rate=50%% %f"), "run --rate=50%");
  EXPECT_EQ(ExecLineOf("[Other]\nExec=no\n[Desktop Entry]\nExecutable=no\nExec = yes %u\n"),
            "yes %u");
  EXPECT_EQ(ExecLineOf("Exec=outside any group\n"), "");
}

}  // namespace
}  // namespace tessarine
