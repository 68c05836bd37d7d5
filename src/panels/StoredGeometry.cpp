#include "panels/StoredGeometry.h"

#include <algorithm>

#include "core/Startup.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {
namespace {

std::string Key(const GeometryKeys& keys, const char* name) {
  return std::string(keys.prefix) + name;
}

// Twips to pixels; negative and unreadable values give 0.
int Pixels(const std::string& twips) {
  const double v = Val(twips);
  if (!(v > 0)) return 0;
  return static_cast<int>(std::min(v, 1e9) / kTwipsPerPixel);
}

std::string Twips(int pixels) {
  return std::to_string(static_cast<long long>(std::max(0, pixels)) * kTwipsPerPixel);
}

}  // namespace

StoredGeometry ReadStoredGeometry(const SettingsStore& s, const GeometryKeys& keys) {
  StoredGeometry g;
  g.left = Pixels(s.GetSetting(keys.section, Key(keys, "LeftXCoord"), "0"));
  g.top = Pixels(s.GetSetting(keys.section, Key(keys, "LeftYCoord"), "0"));
  const std::string w = s.GetSetting(keys.section, Key(keys, "WindowXSize"), keys.defaultSize);
  const std::string h = s.GetSetting(keys.section, Key(keys, "WindowYSize"), keys.defaultSize);
  g.width = Pixels(w);
  g.height = Pixels(h);
  g.sized = g.width > 0 && g.height > 0 &&
            !(keys.defaultMeansUnsaved && w == keys.defaultSize && h == keys.defaultSize);
  if (keys.withSplits) {
    const std::string top = s.GetSetting(keys.section, "File1Top", "");
    const std::string width = s.GetSetting(keys.section, "FileListWidth", "");
    if (!top.empty()) g.file1Top = Pixels(top);
    if (!width.empty()) g.fileListWidth = Pixels(width);
  }
  return g;
}

void WriteStoredGeometry(SettingsStore& s, const GeometryKeys& keys, const StoredGeometry& g,
                         bool minimized) {
  if (minimized) return;
  s.SaveSetting(keys.section, Key(keys, "LeftXCoord"), Twips(g.left));
  s.SaveSetting(keys.section, Key(keys, "LeftYCoord"), Twips(g.top));
  s.SaveSetting(keys.section, Key(keys, "WindowXSize"), Twips(g.width));
  s.SaveSetting(keys.section, Key(keys, "WindowYSize"), Twips(g.height));
  if (!keys.withSplits) return;
  if (g.file1Top >= 0) s.SaveSetting(keys.section, "File1Top", Twips(g.file1Top));
  if (g.fileListWidth >= 0) s.SaveSetting(keys.section, "FileListWidth", Twips(g.fileListWidth));
}

}  // namespace tessarine
