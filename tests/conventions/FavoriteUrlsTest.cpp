// Remembered URLs and browser favourites.

#include <gtest/gtest.h>

#include "conventions/FavoriteUrls.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

std::string Url(const TestApp& t, int i) {
  return t.store.GetSetting("Favorite URLs", "URL" + std::to_string(i), "");
}

TEST(FavoriteUrls, NewestFirstAndOnlyFifteenEverMove) {
  TestApp t;
  t.store.SaveSetting("Favorite URLs", "URL18", "http://mine.example/");
  for (int i = 1; i <= 16; ++i) RememberUrl(t.app, "http://u" + std::to_string(i) + "/");
  EXPECT_EQ(Url(t, 1), "http://u16/");
  EXPECT_EQ(Url(t, 14), "http://u3/");
  // URL15 took what stood in URL14; the first URL fell off instead of reaching URL16.
  EXPECT_EQ(Url(t, 15), "http://u2/");
  EXPECT_EQ(Url(t, 16), "");
  EXPECT_EQ(Url(t, 18), "http://mine.example/");
  EXPECT_EQ(t.app.settings.FavoriteURLs[1], "http://u16/");
  EXPECT_EQ(t.app.settings.FavoriteURLs[18], "http://mine.example/");
}

TEST(FavoriteUrls, AKnownUrlIsNotAddedAgainAndCaseCounts) {
  TestApp t;
  RememberUrl(t.app, "http://a/");
  RememberUrl(t.app, "http://b/");
  RememberUrl(t.app, "http://a/");
  EXPECT_EQ(Url(t, 1), "http://b/");
  EXPECT_EQ(Url(t, 2), "http://a/");
  EXPECT_EQ(Url(t, 3), "");
  EXPECT_TRUE(IsFavoriteUrl(t.store, "http://a/"));
  EXPECT_FALSE(IsFavoriteUrl(t.store, "HTTP://A/"));
  // A favourite of the last five counts too.
  t.store.SaveSetting("Favorite URLs", "URL20", "http://fav/");
  EXPECT_TRUE(IsFavoriteUrl(t.store, "http://fav/"));
}

TEST(FavoriteUrls, EmptyStoredSlotsKeepTheirOldText) {
  TestApp t;
  FavoriteUrlSlots slots;
  slots[2] = "kept";
  t.store.SaveSetting("Favorite URLs", "URL1", "http://x/");
  LoadFavoriteUrls(t.store, slots);
  EXPECT_EQ(slots[1], "http://x/");
  EXPECT_EQ(slots[2], "kept");
}

TEST(BrowseFavorites, ReadsTheUrlBehindTheHeaderLine) {
  TempDir dir;
  TestApp t;
  WriteAll(dir / "site.url", "[InternetShortcut]\r\nURL=http://example.com/a\r\nIconIndex=0\r\n");
  WriteAll(dir / "short.url", "[InternetShortcut]\r\n");
  WriteAll(dir / "bare.url", "[InternetShortcut]\nURL=http://lf.example/");
  t.dialogs.Queue(dir / "site.url");
  t.dialogs.Queue(dir / "short.url");
  t.dialogs.Queue(dir / "missing.url");
  t.dialogs.Queue(dir / "bare.url");
  EXPECT_EQ(BrowseFavorites(t.app), "http://example.com/a");
  ASSERT_FALSE(t.dialogs.requests().empty());
  EXPECT_EQ(t.dialogs.requests()[0].filter, "All Files (*.*)|*.*|URL files (*.url)|*.url");
  EXPECT_EQ(BrowseFavorites(t.app), "");  // under 24 characters
  EXPECT_EQ(BrowseFavorites(t.app), "");  // unreadable
  // A header with LF only is one character shorter: the fixed position eats the "h".
  EXPECT_EQ(BrowseFavorites(t.app), "ttp://lf.example/");
  EXPECT_EQ(BrowseFavorites(t.app), "");  // cancelled
}

}  // namespace
}  // namespace tessarine
