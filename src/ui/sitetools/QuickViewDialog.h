#pragma once
// Quick View: a page shown in a small editor, coloured as a document is, with one link
// selected. Save writes it back; a page open as a document is shown read-only.

#include <QDialog>
#include <string>

class QPushButton;

namespace tessarine {

class Application;
class SciEdit;

class QuickViewDialog : public QDialog {
  Q_OBJECT
 public:
  // `position` and `length`: the selection, in bytes of `text`.
  QuickViewDialog(Application& app, const std::string& path, const std::string& text,
                  std::int64_t position, std::int64_t length, bool readOnly,
                  QWidget* parent = nullptr);
  SciEdit& Editor() const { return *editor_; }
  QPushButton* SaveButton() const { return saveButton_; }

 private:
  void Save();

  Application& app_;
  std::string path_;
  SciEdit* editor_;
  QPushButton* saveButton_;
};

}  // namespace tessarine
