#pragma once
// The Tip of the Day: one tip at a time, Next and Close, and whether tips show at start.
// It stays open beside the documents without holding them.

#include <QDialog>
#include <memory>

class QCheckBox;
class QLabel;

namespace tessarine {

class Application;
class DailyTip;
class MainWindow;

class DailyTipDialog : public QDialog {
  Q_OBJECT
 public:
  DailyTipDialog(Application& app, QWidget* parent);
  ~DailyTipDialog() override;

 private:
  void ShowTip();

  std::unique_ptr<DailyTip> tip_;
  QLabel* tipText_;
  QCheckBox* showAtStartup_;
};

// Opens the tip beside the frame, or raises the one already open.
void ShowDailyTip(MainWindow& frame);
// Start-up: the tip, while TipOfTheDay is "on".
void ShowDailyTipAtStart(MainWindow& frame);

}  // namespace tessarine
