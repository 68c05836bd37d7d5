#pragma once
// The file dialog that wizards browse with: properties in, a chosen path out.

#include <string>

namespace tessarine {

class FileDialogs;

class CFile {
 public:
  static const char* const kDefaultFilter;

  explicit CFile(FileDialogs& dialogs) : dialogs_(dialogs) {}

  std::string DialogTitle;
  std::string Filter = kDefaultFilter;
  int FilterIndex = 1;
  std::string InitDir;
  // Set by a browse: the folder with its closing "/", the bare name, and both together.
  // All three are empty after a Cancel.
  std::string Path;
  std::string Filename;
  std::string PathAndFilename;
  // Kept for callers that ask for it; a Cancel is reported by the empty result either way.
  bool CancelError = false;

  // The open dialog; the chosen path or "".
  std::string OpenFile();
  // The save dialog, asking before it overwrites; the chosen path or "".
  std::string Save();
  // Browse and BrowseForFile are the open dialog under the names wizards call it by.
  std::string Browse() { return OpenFile(); }
  std::string BrowseForFile() { return OpenFile(); }
  std::string GetFileName() const { return Filename; }
  std::string GetPath() const { return Path; }

 private:
  std::string Show(bool save);
  FileDialogs& dialogs_;
};

}  // namespace tessarine
