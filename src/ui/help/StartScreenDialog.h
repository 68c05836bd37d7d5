#pragma once
// The start screen: a small window at start with a way into the program and three help
// pages for those new to it.

#include <QDialog>

class QCheckBox;

namespace tessarine {

class Application;

class StartScreenDialog : public QDialog {
 public:
  StartScreenDialog(Application& app, QWidget* parent);
  void done(int result) override;

 private:
  Application& app_;
  QCheckBox* dontShowAgain_;
};

}  // namespace tessarine
