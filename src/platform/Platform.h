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
};

}  // namespace tessarine
