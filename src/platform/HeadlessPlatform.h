#pragma once
// The whole platform without a display: for tests and the command line.

#include "platform/DefaultBrowser.h"
#include "platform/CheckedQuestions.h"
#include "platform/Desktop.h"
#include "platform/FileDialogs.h"
#include "platform/HeadlessFrame.h"
#include "platform/MessageBoxes.h"
#include "platform/Platform.h"
#include "platform/SettingsStore.h"

namespace tessarine {

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
  FixedDefaultBrowser defaultBrowser;
  ScriptedCheckedQuestions checkedQuestions;

  Platform Get() {
    return {frame,  messages, store, fileDialogs,      colorDialog,     shell,
            clipboard, images, clock, checkedQuestions, &defaultBrowser};
  }
};

}  // namespace tessarine
