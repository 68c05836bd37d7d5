#include "conventions/FavoriteUrls.h"

#include <fstream>

#include "conventions/CFile.h"
#include "core/Application.h"
#include "platform/SettingsStore.h"

namespace tessarine {

namespace {
const char* const kSection = "Favorite URLs";
std::string Key(int i) {
  return "URL" + std::to_string(i);
}
}  // namespace

bool IsFavoriteUrl(const SettingsStore& store, const std::string& url) {
  for (int i = 1; i <= 20; ++i)
    if (store.GetSetting(kSection, Key(i), "") == url) return true;
  return false;
}

void AddFavoriteUrl(SettingsStore& store, const std::string& url) {
  for (int i = 14; i >= 1; --i) {
    const std::string old = store.GetSetting(kSection, Key(i), "");
    if (!old.empty()) store.SaveSetting(kSection, Key(i + 1), old);
  }
  store.SaveSetting(kSection, Key(1), url);
}

void LoadFavoriteUrls(const SettingsStore& store, FavoriteUrlSlots& slots) {
  for (int i = 1; i <= 20; ++i) {
    const std::string url = store.GetSetting(kSection, Key(i), "");
    if (!url.empty()) slots[static_cast<std::size_t>(i)] = url;
  }
}

void LoadFavoriteUrls(Application& app) {
  LoadFavoriteUrls(app.store, app.settings.FavoriteURLs);
}

void RememberUrl(Application& app, const std::string& url) {
  if (!IsFavoriteUrl(app.store, url)) AddFavoriteUrl(app.store, url);
  LoadFavoriteUrls(app);
}

std::string ReadFavoriteFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return "";
  // The header line and "URL=" behind it.
  char skipped[24];
  if (!in.read(skipped, sizeof skipped)) return "";
  std::string url;
  char c;
  // No URL is this long: a file without line ends stops here rather than filling memory.
  constexpr std::size_t kLongest = 65536;
  while (url.size() < kLongest && in.get(c) && c != '\r' && c != '\n') url += c;
  return url;
}

std::string BrowseFavorites(Application& app) {
  CFile file(app.fileDialogs);
  file.Filter = "All Files (*.*)|*.*|URL files (*.url)|*.url";
  file.InitDir = app.defaultDocumentFolder + "/Favorites";
  file.BrowseForFile();
  if (file.PathAndFilename.empty()) return "";
  return ReadFavoriteFile(file.PathAndFilename);
}

}  // namespace tessarine
