#pragma once
// Everything the logic reaches the desktop through, handed to the application object.

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
class DefaultBrowser;
class CheckedQuestions;

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
  CheckedQuestions& checkedQuestions;
  // The desktop's default browser; when unset, asked through the XDG files.
  DefaultBrowser* defaultBrowser = nullptr;
};

}  // namespace tessarine
