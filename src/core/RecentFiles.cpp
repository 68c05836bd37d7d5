#include "core/RecentFiles.h"

#include <algorithm>

#include "core/Application.h"
#include "core/FileOpen.h"
#include "platform/SettingsStore.h"

namespace tessarine {

namespace {

std::string Key(int i) {
  return "RecentFile" + std::to_string(i);
}

int EntryCount(const Application& app) {
  return std::min<int>(app.settings.NumberOfMRUFiles, RecentFileMenu::kEntries);
}

}  // namespace

bool IsUnusedRecentEntry(const std::string& value) {
  return value.compare(0, 8, "Not Used") == 0;
}

void UpdateRecentFiles(Application& app, const std::string& path) {
  // Only the first four entries are looked at, however long the list is.
  const auto& captions = app.files.recentMenu.captions;
  if (std::find(captions.begin() + 1, captions.begin() + 5, path) == captions.begin() + 5)
    WriteRecentFile(app, path);
  LoadRecentFiles(app);
}

void WriteRecentFile(Application& app, const std::string& path) {
  for (int i = app.settings.NumberOfMRUFiles - 1; i >= 1; --i) {
    const std::string entry = app.store.GetSetting("Startup", Key(i), "Not Used");
    if (!IsUnusedRecentEntry(entry)) app.store.SaveSetting("Startup", Key(i + 1), entry);
  }
  app.store.SaveSetting("Startup", Key(1), path);
}

void LoadRecentFiles(Application& app) {
  RecentFileMenu& menu = app.files.recentMenu;
  for (int i = 1; i <= EntryCount(app); ++i) {
    const std::string entry = app.store.GetSetting("Startup", Key(i), "Not Used");
    if (IsUnusedRecentEntry(entry)) continue;
    menu.captions[static_cast<std::size_t>(i)] = entry;
    menu.visible[static_cast<std::size_t>(i)] = true;
    menu.visible[0] = true;
  }
  if (app.files.onRecentMenuChanged) app.files.onRecentMenuChanged();
}

void ChooseRecentFile(Application& app, int index, bool fromDocumentWindow) {
  if (index < 1 || index > RecentFileMenu::kEntries) return;
  app.files.OpenFileName = app.files.recentMenu.captions[static_cast<std::size_t>(index)];
  if (fromDocumentWindow) GiveWayIfUntouchedFirstWindow(app);
  OpenFile(app, app.files.OpenFileName);
  LoadRecentFiles(app);
  ApplyStyleSheetRow(app);
}

}  // namespace tessarine
