#pragma once
// The recent-file entries of the File menu: a separator and ten entries, shown as the
// logic's RecentFileMenu says.

class QMenu;

namespace tessarine {

class MainWindow;

// Adds mnuRecentFile0 (the separator) to mnuRecentFile10, all hidden.
void AddRecentFileEntries(MainWindow& frame, QMenu* menu);
// Shows the entries as the application's recent-file menu stands.
void ShowRecentFileEntries(MainWindow& frame);

}  // namespace tessarine
