#pragma once
// The template chooser: the ".tzt" files of the application folder.

#include <QDialog>

class QListWidget;

namespace tessarine {

class Application;

class TemplatesDialog : public QDialog {
  Q_OBJECT
 public:
  explicit TemplatesDialog(Application& app, QWidget* parent = nullptr);
  QListWidget* File1() const { return file1_; }
  // okButton and the double-click.
  void OK();
  void OpenDoubleClicked();

 private:
  Application& app_;
  QListWidget* file1_;
};

}  // namespace tessarine
