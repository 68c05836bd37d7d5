// The Tip of the Day: the tips, the stored next number and the start-up choice.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/SettingsStore.h"
#include "settings/DailyTip.h"

namespace tessarine {
namespace {

int Count() {
  return static_cast<int>(DailyTips().size());
}

TEST(DailyTipTest, ThirtyOrMoreDistinctTips) {
  EXPECT_GE(Count(), 30);
  std::set<std::string> seen;
  for (const std::string& tip : DailyTips()) {
    EXPECT_FALSE(tip.empty());
    EXPECT_LE(tip.size(), 300u) << tip;  // the dialog shows one without scrolling
    EXPECT_TRUE(seen.insert(tip).second) << tip;
  }
}

TEST(DailyTipTest, StoredNumberOutsideTheTipsStartsAtTheFirst) {
  const std::string last = std::to_string(Count());
  const std::string past = std::to_string(Count() + 1);
  const std::pair<std::string, int> cases[] = {
      {"1", 1}, {"5", 5},  {" 7 tips", 7}, {last, Count()}, {past, 1},
      {"0", 1}, {"-3", 1}, {"", 1},        {"many", 1},     {"1e9", 1}};
  for (const auto& [stored, number] : cases)
    EXPECT_EQ(TipNumberFromSetting(stored), number) << '"' << stored << '"';
}

TEST(DailyTipTest, EachShowingStoresTheNumberOfTheNextTip) {
  MemorySettingsStore store;
  DailyTip tip(store);  // a first start: no number stored
  EXPECT_EQ(tip.Number(), 1);
  EXPECT_EQ(tip.Text(), DailyTips()[0]);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DailyTipNumber", ""), "2");
  tip.Next();
  EXPECT_EQ(tip.Number(), 2);
  EXPECT_EQ(tip.Text(), DailyTips()[1]);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DailyTipNumber", ""), "3");

  // The next start goes on where the last stopped; after the last tip comes the first.
  store.SaveSetting("Miscellaneous", "DailyTipNumber", std::to_string(Count()));
  DailyTip again(store);
  EXPECT_EQ(again.Number(), Count());
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DailyTipNumber", ""), "1");
  again.Next();
  EXPECT_EQ(again.Number(), 1);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DailyTipNumber", ""), "2");
}

TEST(DailyTipTest, ShowAtStartupReadsOnInAnyCaseAndWritesOnOrOff) {
  MemorySettingsStore store;
  EXPECT_TRUE(TipOfTheDayAtStartup(store));  // absent
  const std::pair<const char*, bool> cases[] = {
      {"on", true}, {"ON", true}, {"off", false}, {"", false}, {"yes", false}};
  for (const auto& [stored, shows] : cases) {
    store.SaveSetting("Miscellaneous", "TipOfTheDay", stored);
    EXPECT_EQ(TipOfTheDayAtStartup(store), shows) << '"' << stored << '"';
  }
  DailyTip tip(store);
  tip.SetShowAtStartup(true);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "TipOfTheDay", ""), "on");
  EXPECT_TRUE(tip.ShowAtStartup());
  tip.SetShowAtStartup(false);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "TipOfTheDay", ""), "off");
  EXPECT_FALSE(tip.ShowAtStartup());
}

}  // namespace
}  // namespace tessarine
