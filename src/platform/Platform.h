#pragma once
// Everything the logic reaches the desktop through, handed to the application object.

#include "platform/Desktop.h"
#include "platform/FileDialogs.h"
#include "platform/Frame.h"
#include "platform/HeadlessFrame.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

namespace tessarine {

struct Platform {
  Frame& frame;
  MessageBoxes& messages;
  SettingsStore& store;
  FileDialogs& fileDialogs;
  ColorDialog& colorDialog;
  Shell& shell;
  Clipboard& clipboard;
  ImageInfo& images;
  Clock& clock;
};

// The whole platform without a display: for tests and the command line.
struct HeadlessPlatform {
  HeadlessFrame frame;
  ScriptedMessageBoxes messages;
  MemorySettingsStore store;
  ScriptedFileDialogs fileDialogs;
  ScriptedColorDialog colorDialog;
  PosixShell shell;
  MemoryClipboard clipboard;
  HeaderImageInfo images;
  FixedClock clock;

  Platform Get() {
    return {frame, messages, store, fileDialogs, colorDialog, shell, clipboard, images, clock};
  }
};

}  // namespace tessarine
