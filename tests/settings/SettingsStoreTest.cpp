// The settings over the in-memory store, the whole-text number conversion, the find box's
// history and the first-run registration.

#include <gtest/gtest.h>
#include <stdlib.h>

#include "core/Startup.h"
#include "core/TestApp.h"
#include "support/SettingsChecks.h"

namespace tessarine {
namespace {

TEST(MemoryStoreSettings, FirstStartEmptyTextsAndABadRecentFileCount) {
  {
    MemorySettingsStore store;
    testing::ExpectFirstStartDefaults(store);
  }
  {
    MemorySettingsStore store;
    testing::ExpectEmptyTextsKeepTheirMeaning(store);
  }
  {
    MemorySettingsStore store;
    testing::ExpectBadRecentFileCountReportedNotRepaired(store);
  }
}

TEST(StrictInt16, TakesOnlyAWholeNumberInRange) {
  struct Case {
    const char* text;
    bool ok;
    int value;
  };
  for (const Case& c : {
           Case{"4", true, 4},
           Case{" 12 ", true, 12},
           Case{"-3", true, -3},
           Case{"+7", true, 7},
           Case{"6.5", true, 6},
           Case{"7.5", true, 8},
           Case{"1e1", true, 10},
           Case{"&H10", true, 16},
           Case{"&hFFFF", true, -1},
           Case{"&O17", true, 15},
           Case{"32767", true, 32767},
           Case{"32768", false, 0},
           Case{"-32769", false, 0},
           Case{"", false, 0},
           Case{"  ", false, 0},
           Case{"6abc", false, 0},
           Case{"six", false, 0},
           Case{"1e", false, 0},
           Case{".", false, 0},
           Case{"&H", false, 0},
           Case{"&HG", false, 0},
           Case{"4 5", false, 0},
           Case{"&H-1", false, 0},
           // Beyond a double's range: out of range, not 0.
           Case{"1e400", false, 0},
           Case{"-1e400", false, 0},
           Case{"1e-400", true, 0},
       }) {
    std::int16_t v = 99;
    EXPECT_EQ(StrictInt16(c.text, v), c.ok) << '"' << c.text << '"';
    if (c.ok) {
      EXPECT_EQ(v, c.value) << c.text;
    }
  }
}

TEST(SearchKeywords, FiveKeysInOrderShortListsClearTheRest) {
  MemorySettingsStore store;
  SaveSearchKeywords(store, {"a", "b", "c", "d", "e", "f"});
  EXPECT_EQ(store.GetSetting("Miscellaneous", "SearchKeyword5", ""), "e");
  EXPECT_FALSE(store.Has("Miscellaneous", "SearchKeyword6"));
  SaveSearchKeywords(store, {"new", "a"});
  const auto words = ReadSearchKeywords(store);
  EXPECT_EQ(words, (std::array<std::string, 5>{"new", "a", "", "", ""}));
}

// The desktop entry lands in a scratch XDG_DATA_HOME.
struct FirstRunTest : ::testing::Test {
  testing::TempDir dir;
  testing::TestApp t;
  std::string entry = dir / "applications/tessarine.desktop";
  void SetUp() override { ::setenv("XDG_DATA_HOME", dir.path().c_str(), 1); }
  void TearDown() override { ::unsetenv("XDG_DATA_HOME"); }
};

TEST_F(FirstRunTest, RegistersOnceAndWritesPathAndFirstRun) {
  EXPECT_TRUE(FirstRunStep(t.app, &RegisterEditVerbs));
  const std::string text = testing::ReadAll(entry);
  const std::string exe = std::filesystem::read_symlink("/proc/self/exe").string();
  EXPECT_NE(text.find("Exec=\"" + exe + "\" %f\n"), std::string::npos) << text;
  for (const char* needed :
       {"Edit with Tessarine", "text/html", "application/x-asp", "application/javascript"})
    EXPECT_NE(text.find(needed), std::string::npos) << needed;
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "Path", ""), "/opt/tessarine");
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "FirstRun", ""), "no");

  // Second start: the entry is not touched, whatever became of it.
  testing::WriteAll(entry, "edited by the user");
  t.store.SaveSetting("Miscellaneous", "Path", "elsewhere");
  EXPECT_FALSE(FirstRunStep(t.app, &RegisterEditVerbs));
  EXPECT_EQ(testing::ReadAll(entry), "edited by the user");
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "Path", ""), "elsewhere");

  // "yes" in any case means another first run.
  t.store.SaveSetting("Miscellaneous", "FirstRun", "YES");
  EXPECT_TRUE(FirstRunStep(t.app, &RegisterEditVerbs));
  EXPECT_EQ(testing::ReadAll(entry), text);
}

TEST_F(FirstRunTest, AFailedRegistrationStillEndsTheFirstRun) {
  // A file where the applications folder should be: the entry cannot be written.
  testing::WriteAll(dir / "applications", "");
  EXPECT_TRUE(FirstRunStep(t.app, &RegisterEditVerbs));
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "FirstRun", ""), "no");
  EXPECT_TRUE(t.messages.shown().empty());
}

}  // namespace
}  // namespace tessarine
