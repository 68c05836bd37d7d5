#pragma once
// The log statistics wizard: an introduction, then the log's path and the run.

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace tessarine {

class Application;

class AccessStatsDialog : public QDialog {
 public:
  AccessStatsDialog(Application& app, QWidget* parent);

 private:
  void ShowPage(int page);
  void OnNext();
  void OnBrowse();

  Application& app_;
  int page_ = 0;
  QStackedWidget* pages_;
  QLineEdit* logPathText_;
  QPushButton* nextButton_;
  QPushButton* previousButton_;
};

}  // namespace tessarine
