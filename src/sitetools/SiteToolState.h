#pragma once
// The long-lived state of the site tools.

#include <functional>
#include <string>

namespace tessarine {

struct SiteToolState {
  // The last text searched by global find and replace; fills its find box next time.
  std::string LastFindText;
  // Points the main window's file list at a folder (a project opened); unset headless.
  std::function<void(const std::string& folder)> showFolderInFileList;
  // Rebuilds the recent-project entries of the menus; unset headless.
  std::function<void()> rebuildProjectMenu;
};

}  // namespace tessarine
