#pragma once
// The main window's start-up and closing decisions that need no widget.

#include <string>

#include "core/FileOpen.h"  // OpenFile, which the start and its callers use

namespace tessarine {

class Application;
class SettingsStore;

// Main window geometry in twips (15 to a pixel), as the settings keep it.
struct WindowGeometry {
  long long left = 0, top = 0, width = 0, height = 0;
  std::string fileListWidth, file1Top, sideBarTab, shortcutBarGroup;
};

constexpr int kTwipsPerPixel = 15;

struct WindowPlacement {
  int x = 0, y = 0, width = 0, height = 0;  // pixels
  // The screen's size was taken (first run or empty sizes): the window opens maximised.
  bool fillsScreen = false;
};

// Where the main window goes at load. Both sizes at exactly 5000 (the first run) or empty
// take the screen's.
WindowPlacement ComputeWindowPlacement(const SettingsStore& store, int screenWidth,
                                       int screenHeight);
// The close's writes; a minimised window saves none of the geometry.
void SaveWindowGeometry(SettingsStore& store, const WindowGeometry& g, bool minimized);

// Step 3 of the load: on the first run, the registration and the program's folder.
// Returns true when it was the first run.
bool FirstRunStep(Application& app, void (*registerEditVerbs)(Application&));

// The "Edit with Tessarine" registration: a desktop entry in the user's applications
// folder (XDG_DATA_HOME) for HTML, ASP and JavaScript files. Failures are silent.
void RegisterEditVerbs(Application& app);
// The application folder: $TESSARINE_HOME, else ~/.local/share/Tessarine; created and given
// the installed data files it lacks, never overwriting.
std::string PrepareApplicationFolder(const std::string& installedDataFolder);

// The file-list pattern of a `FileList` setting value.
std::string FileListPattern(const std::string& value);

// Step 14: what the start opens. `commandLine` is the whole command line, one path.
void OpenStartupDocuments(Application& app, const std::string& commandLine);

}  // namespace tessarine
