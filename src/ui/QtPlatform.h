#pragma once
// The Qt versions of the platform interfaces that need no window of their own.

#include <QString>

#include "platform/Desktop.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

class QWidget;
class QSettings;

namespace tessarine {

// QSettings, INI format, user scope, organisation and application "Tessarine".
class QtSettingsStore : public SettingsStore {
 public:
  QtSettingsStore();
  ~QtSettingsStore() override;
  std::string GetSetting(const std::string& section, const std::string& key,
                         const std::string& defaultValue) const override;
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override;
  void DeleteSetting(const std::string& section, const std::string& key) override;
  QString FileName() const;

 private:
  QSettings* settings_;
};

class QtMessageBoxes : public MessageBoxes {
 public:
  void SetParent(QWidget* parent) { parent_ = parent; }
  MsgAnswer Show(const std::string& text, MsgButtons buttons, MsgIcon icon,
                 const std::string& title) override;

 private:
  QWidget* parent_ = nullptr;
};

class QtFileDialogs : public FileDialogs {
 public:
  void SetParent(QWidget* parent) { parent_ = parent; }
  FileDialogAnswer Show(const FileDialogRequest& request) override;
  // "Text (*.txt)|*.txt|..." into Qt's "Text (*.txt) (*.txt);;..." keeping the order.
  static QString ToQtFilter(const std::string& filter, QStringList* list = nullptr);

 private:
  QWidget* parent_ = nullptr;
};

class QtColorDialog : public ColorDialog {
 public:
  void SetParent(QWidget* parent) { parent_ = parent; }
  bool PickColor(std::int32_t initial, std::int32_t& chosen) override;

 private:
  QWidget* parent_ = nullptr;
};

// Opening with xdg-open through Qt, programs detached, and a small properties dialog.
class QtShell : public Shell {
 public:
  void SetParent(QWidget* parent) { parent_ = parent; }
  bool OpenInDefaultViewer(const std::string& path) override;
  bool StartProgram(const std::string& program, const std::vector<std::string>& args) override;
  void ShowProperties(const std::string& path) override;

 private:
  QWidget* parent_ = nullptr;
};

class QtClipboard : public Clipboard {
 public:
  std::string Text() const override;
  void SetText(const std::string& text) override;
};

class QtImageInfo : public ImageInfo {
 public:
  bool Size(const std::string& path, int& width, int& height) override;
};

}  // namespace tessarine
