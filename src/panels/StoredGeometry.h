#pragma once
// A window's place, size and splits as the settings keep them: in twips, under keys
// "<prefix>LeftXCoord", "<prefix>LeftYCoord", "<prefix>WindowXSize", "<prefix>WindowYSize",
// and for windows with a file list "File1Top" and "FileListWidth".

#include <string>

namespace tessarine {

class SettingsStore;

struct GeometryKeys {
  const char* section;
  const char* prefix;        // "" or "PicViewer"
  const char* defaultSize;   // the size keys' default
  bool defaultMeansUnsaved;  // both sizes at the default: no size was saved
  bool withSplits;           // File1Top and FileListWidth belong to the window
};

inline constexpr GeometryKeys kSiteManagerGeometry{"SiteTolmer", "", "5000", true, true};
inline constexpr GeometryKeys kPictureViewerGeometry{"Window", "PicViewer", "2500", false, false};

struct StoredGeometry {
  int left = 0, top = 0;      // pixels, never negative
  int width = 0, height = 0;  // pixels
  bool sized = false;         // false: no size saved, the window keeps its own
  int file1Top = -1;          // pixels; -1 for the design value
  int fileListWidth = -1;     // pixels; -1 for the design value
};

StoredGeometry ReadStoredGeometry(const SettingsStore& store, const GeometryKeys& keys);
// A minimised window writes nothing. Splits below 0 leave their keys as they are.
void WriteStoredGeometry(SettingsStore& store, const GeometryKeys& keys, const StoredGeometry& g,
                         bool minimized);

}  // namespace tessarine
