#pragma once
// The state of opening, saving and new documents: the dialog folders and filter, the
// recent-file menu as the logic keeps it, and the hooks by which the windows show what
// this layer decides.

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace tessarine {

class DocumentWindow;
struct XmlDocInputs;

// The recent-file entries of the File menu: index 0 is the separator, 1 to 10 the entries.
struct RecentFileMenu {
  static constexpr int kEntries = 10;
  std::array<std::string, kEntries + 1> captions{};
  std::array<bool, kEntries + 1> visible{};
};

struct FileState {
  std::string SaveDirectory;
  std::int16_t LastFilterIndex = 0;
  std::string OpenFileName;   // the path being opened
  int exportFilterIndex = 1;  // the export dialog keeps the filter last chosen

  std::int16_t NewDocumentInProgress = 0;
  std::string DocumentTitle;
  std::string BodyTag;  // the page properties' finished BODY tag, cleared for a new page
  long offsetFromEnd = 0;

  RecentFileMenu recentMenu;
  int autoSaveTicks = 0;  // TimerAutoSave's tag

  // Filled by the windows; each may stay empty, and then nothing is shown.
  std::function<void()> onRecentMenuChanged;
  // "New XML document": true for OK, with the inputs filled in.
  std::function<bool(XmlDocInputs&)> showXmlDocDialog;
  // The style manager on a document, and re-applying the chosen menu system.
  std::function<void(DocumentWindow&)> showStyleManager;
  std::function<void()> applyMenuSystem;
  // The file list beside the documents shows a saved file.
  std::function<void()> refreshFileList;
  // The two entries of the style submenu that a style sheet cannot use.
  std::function<void(bool enabled)> enableStyleInserts;
};

}  // namespace tessarine
