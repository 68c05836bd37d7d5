#pragma once
// The application object: all long-lived state, grouped by subsystem, and the desktop
// services the logic talks through. Nothing else is global.

#include <cstdint>
#include <string>

#include "core/DocumentList.h"
#include "settings/Settings.h"

namespace tessarine {

class Frame;
class MessageBoxes;
class SettingsStore;
class FileDialogs;
class ColorDialog;
class Shell;
class Clipboard;
class ImageInfo;
class Clock;
class EditControl;
class DocumentWindow;
struct Platform;

// The shared state of the text services.
struct TextServiceState {
  std::string LastStartTag;
  std::string LastEndTag;
  bool ReplaceSelectionOnce = false;
};

struct ColorizeState {
  std::int16_t ColorizingInProgress = 0;
  bool CancelColorizing = false;
};

struct FileState {
  std::string SaveDirectory;
  std::int16_t LastFilterIndex = 0;
};

class Application {
 public:
  Application(const Platform& platform, std::string programFolder);

  Frame& frame;
  MessageBoxes& messages;
  SettingsStore& store;
  FileDialogs& fileDialogs;
  ColorDialog& colorDialog;
  Shell& shell;
  Clipboard& clipboard;
  ImageInfo& images;
  Clock& clock;
  const std::string programFolder;
  const std::string title = "Tessarine";
  // Where the folder settings point until the user chooses: the program's folder unless
  // the desktop has a better place (the home folder).
  std::string defaultDocumentFolder;

  SettingsVars settings;
  DocumentList documents;
  TextServiceState textServices;
  ColorizeState colorizing;
  FileState files;

  // The frame's active child: every command works on it at the moment it runs.
  DocumentWindow* ActiveDocument();
  EditControl* ActiveEdit();
  void LoadSettings();
};

}  // namespace tessarine
