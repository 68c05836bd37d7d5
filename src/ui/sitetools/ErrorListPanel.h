#pragma once
// The main window's error list as the validator uses it: Tidy's report shown whole, and a
// click on a message's line moves the caret of the validated document to its place.

#include <QObject>
#include <QPointer>

#include "sitetools/ValidateWizard.h"

class QPlainTextEdit;
class QWidget;

namespace tessarine {

class MainWindow;

class ErrorListPanel : public QObject, public ValidateHost {
 public:
  explicit ErrorListPanel(MainWindow& frame);

  std::string DocumentText() override;
  std::string DocumentTitle() override;
  void ShowErrorPanel(const std::string* text) override;
  void ShowMessage(const std::string& text) override;

  // The caret to the place named on line `lineNumber` (0-based) of the panel's text.
  bool GoToMessage(int lineNumber);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  MainWindow& frame_;
  QWidget* panel_;
  QPlainTextEdit* text_;
  QPointer<QWidget> validated_;  // the document the report is about
};

}  // namespace tessarine
