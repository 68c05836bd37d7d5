#include "core/Startup.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "core/Application.h"
#include "core/Documents.h"
#include "core/NewDocument.h"
#include "core/RecentFiles.h"
#include "core/TextServices.h"
#include "platform/Frame.h"
#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {

namespace fs = std::filesystem;

WindowPlacement ComputeWindowPlacement(const SettingsStore& s, int screenWidth, int screenHeight) {
  auto coord = [&](const char* key) {
    const double v = Val(s.GetSetting("Window", key, "0"));
    return v > 0 ? static_cast<int>(v / kTwipsPerPixel) : 0;
  };
  WindowPlacement p;
  p.x = coord("LeftXCoord");
  p.y = coord("LeftYCoord");
  const std::string w = s.GetSetting("Window", "WindowXSize", "5000");
  const std::string h = s.GetSetting("Window", "WindowYSize", "5000");
  p.width = w.empty() ? screenWidth : static_cast<int>(Val(w) / kTwipsPerPixel);
  p.height = h.empty() ? screenHeight : static_cast<int>(Val(h) / kTwipsPerPixel);
  if (w == "5000" && h == "5000") {
    p.width = screenWidth;
    p.height = screenHeight;
  }
  p.fillsScreen = p.width == screenWidth && p.height == screenHeight &&
                  (w.empty() || h.empty() || (w == "5000" && h == "5000"));
  return p;
}

void SaveWindowGeometry(SettingsStore& s, const WindowGeometry& g, bool minimized) {
  if (!minimized) {
    s.SaveSetting("Window", "LeftXCoord", std::to_string(std::max(0LL, g.left)));
    s.SaveSetting("Window", "LeftYCoord", std::to_string(std::max(0LL, g.top)));
    s.SaveSetting("Window", "WindowXSize", std::to_string(g.width));
    s.SaveSetting("Window", "WindowYSize", std::to_string(g.height));
    s.SaveSetting("Window", "FileListWidth", g.fileListWidth);
    s.SaveSetting("Window", "File1Top", g.file1Top);
    s.SaveSetting("Window", "SideBarTab", g.sideBarTab);
  }
  s.SaveSetting("Miscellaneous", "DefaultShortcutBarGroup", g.shortcutBarGroup);
}

bool FirstRunStep(Application& app, void (*registerEditVerbs)(Application&)) {
  std::string firstRun = app.store.GetSetting("Miscellaneous", "FirstRun", "yes");
  std::transform(firstRun.begin(), firstRun.end(), firstRun.begin(),
                 [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; });
  if (firstRun != "yes") return false;
  if (registerEditVerbs) registerEditVerbs(app);
  app.store.SaveSetting("Miscellaneous", "Path", app.programFolder);
  app.store.SaveSetting("Miscellaneous", "FirstRun", "no");
  return true;
}

namespace {
std::string HomeFolder() {
  const char* home = std::getenv("HOME");
  return home && *home ? home : "/tmp";
}
std::string DataHome() {
  const char* x = std::getenv("XDG_DATA_HOME");
  return x && *x ? std::string(x) : HomeFolder() + "/.local/share";
}
}  // namespace

void RegisterEditVerbs(Application& app) {
  std::error_code ec;
  const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
  if (ec) return;
  // The entry's icon: the application's own, where the desktop looks for icons.
  const fs::path icons = fs::path(DataHome()) / "icons/hicolor/scalable/apps";
  fs::create_directories(icons, ec);
  fs::copy_file(fs::path(app.programFolder) / "tessarine.svg", icons / "tessarine.svg",
                fs::copy_options::overwrite_existing, ec);
  const fs::path dir = fs::path(DataHome()) / "applications";
  fs::create_directories(dir, ec);
  std::ofstream out(dir / "tessarine.desktop", std::ios::binary | std::ios::trunc);
  out << "[Desktop Entry]\n"
         "Type=Application\n"
         "Name=Tessarine\n"
         "GenericName=Edit with Tessarine\n"
         "Comment=Edit with Tessarine\n"
         "Exec=\""
      << exe.string()
      << "\" %f\n"
         "MimeType=text/html;application/x-asp;text/javascript;application/javascript;\n"
         "Categories=Development;WebDevelopment;TextEditor;\n"
         "Icon=tessarine\n"
         "Terminal=false\n"
         "NoDisplay=false\n";
}

std::string PrepareApplicationFolder(const std::string& installed) {
  const char* env = std::getenv("TESSARINE_HOME");
  const fs::path folder = env && *env ? fs::path(env) : fs::path(DataHome()) / "Tessarine";
  std::error_code ec;
  fs::create_directories(folder, ec);
  if (!installed.empty() && fs::is_directory(installed, ec)) {
    for (auto it = fs::recursive_directory_iterator(installed, ec);
         !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
      const fs::path target = folder / fs::relative(it->path(), installed, ec);
      if (it->is_directory(ec)) {
        fs::create_directories(target, ec);
      } else if (!fs::exists(target, ec)) {
        fs::copy_file(it->path(), target, ec);
      } else if (*fs::relative(it->path(), installed, ec).begin() == "help") {
        // The help pages are the program's own, not the user's: a newer release replaces
        // them, where templates and other seeded files stay as the user left them.
        fs::copy_file(it->path(), target, fs::copy_options::update_existing, ec);
      }
    }
  }
  return folder.string();
}

std::string FileListPattern(const std::string& value) {
  if (value == "all") return "*.*";
  if (value == "html") return "*.xsl;*.xml;*.shtml;*.html;*.htm;*.dtd;*.asp";
  if (value == "image") return "*.jpg;*.gif";
  return "*.xsl;*.xml;*.shtml;*.jpg;*.html;*.htm;*.gif;*.dtd;*.asp";
}

void OpenStartupDocuments(Application& app, const std::string& commandLine) {
  app.files.SaveDirectory = app.settings.WorkingDirectory;
  if (!commandLine.empty()) {
    // The whole command line is one path: no quotes stripped, no second file looked for.
    OpenFile(app, commandLine);
  } else if (app.settings.StartNewDoc) {
    NewDocument(app, "HTML");
    app.LoadSettings();
  } else if (app.settings.OpenMRUDoc) {
    const std::string recent = app.store.GetSetting("Startup", "RecentFile1", "Not Used");
    if (LCase(recent) != "not used") OpenFile(app, recent);
    LoadRecentFiles(app);
  } else {
    LoadRecentFiles(app);
    app.frame.SetToolbarButtonsEnabled(false);
  }
}

}  // namespace tessarine
