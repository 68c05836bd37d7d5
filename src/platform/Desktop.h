#pragma once
// The smaller desktop services: colour dialog, shell actions, clipboard, image sizes, the
// clock. Each has a headless version here that really works.

#include <cstdint>
#include <ctime>
#include <deque>
#include <string>
#include <vector>

namespace tessarine {

// The common colour dialog. Colours have red in the low byte.
class ColorDialog {
 public:
  virtual ~ColorDialog() = default;
  // True when a colour was chosen; false for Cancel.
  virtual bool PickColor(std::int32_t initial, std::int32_t& chosen) = 0;
};

// The system's "open" and "properties" actions and starting programs.
class Shell {
 public:
  virtual ~Shell() = default;
  // Opens a local file with the desktop's default application.
  virtual bool OpenInDefaultViewer(const std::string& path) = 0;
  // Starts a program with its arguments, detached; false when it could not be started.
  virtual bool StartProgram(const std::string& program, const std::vector<std::string>& args) = 0;
  virtual void ShowProperties(const std::string& path) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
};

// Width and height of a picture without decoding it.
class ImageInfo {
 public:
  virtual ~ImageInfo() = default;
  virtual bool Size(const std::string& path, int& width, int& height) = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::tm Now() const = 0;  // local time
};

// --- Headless versions ---

class ScriptedColorDialog : public ColorDialog {
 public:
  void Queue(std::int32_t color) { answers_.push_back(color); }
  void QueueCancel() { answers_.push_back(-1); }
  bool PickColor(std::int32_t initial, std::int32_t& chosen) override;
  std::vector<std::int32_t> initials;

 private:
  std::deque<std::int32_t> answers_;
};

// Starts programs for real (fork and exec, detached); records what it was asked.
class PosixShell : public Shell {
 public:
  bool OpenInDefaultViewer(const std::string& path) override;
  bool StartProgram(const std::string& program, const std::vector<std::string>& args) override;
  void ShowProperties(const std::string& path) override { propertiesShown.push_back(path); }

  std::vector<std::string> opened;
  std::vector<std::vector<std::string>> started;  // program first, then its arguments
  std::vector<std::string> propertiesShown;
};

class MemoryClipboard : public Clipboard {
 public:
  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

// Reads the size from the file's header: GIF, PNG, JPEG and BMP.
class HeaderImageInfo : public ImageInfo {
 public:
  bool Size(const std::string& path, int& width, int& height) override;
};

class SystemClock : public Clock {
 public:
  std::tm Now() const override;
};

class FixedClock : public Clock {
 public:
  explicit FixedClock(std::tm at = {}) : at_(at) {}
  void Set(std::tm at) { at_ = at; }
  std::tm Now() const override { return at_; }

 private:
  std::tm at_;
};

}  // namespace tessarine
