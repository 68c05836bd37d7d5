#pragma once
// The recent-file list: the `Startup` keys RecentFile1 (the newest) to RecentFile<n>, and
// the File menu entries that show them.

#include <string>

namespace tessarine {

class Application;

// Adds `path` at the top unless one of the first four menu entries shows it already, then
// refreshes the menu.
void UpdateRecentFiles(Application& app, const std::string& path);
// Moves every used entry down by one (the last falls off) and writes `path` first.
void WriteRecentFile(Application& app, const std::string& path);
// Shows each used entry in the menu; unused ones stay as they were (hidden).
void LoadRecentFiles(Application& app);

// The settings' names for the same two operations.
inline void AddRecentFile(Application& app, const std::string& path) {
  WriteRecentFile(app, path);
}
inline void RebuildRecentFileMenu(Application& app) {
  LoadRecentFiles(app);
}

// True when a stored entry counts as unused: its first eight characters are "Not Used".
bool IsUnusedRecentEntry(const std::string& value);

// Choosing entry `index` of the menu: opens the file it shows. `fromDocumentWindow` lets
// an untouched "Untitled:1" give way, as the Open dialog does.
void ChooseRecentFile(Application& app, int index, bool fromDocumentWindow);

}  // namespace tessarine
