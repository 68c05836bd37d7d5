#pragma once
// The modeless Find/Replace dialog over the active document. It binds its widgets to the
// inputs of the logic's dialog model and runs the model's commands.

#include <QDialog>

#include "core/Find.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabBar;

namespace tessarine {

class Application;

class FindReplaceDialog : public QDialog {
  Q_OBJECT
 public:
  FindReplaceDialog(Application& app, QWidget* parent);

  // mnuSFind (`replace` false), mnuReplace and the toolbar's Find button.
  void ShowFor(bool replace);
  const FindReplaceInputs& Inputs() const { return in_; }

 protected:
  void reject() override;  // Esc and the close box cancel

 private:
  void ShowTab(int index);
  void Pull();  // widgets to inputs
  void Push();  // inputs to widgets
  void BringForward();

  Application& app_;
  FindReplaceInputs in_;
  QTabBar* tabs;
  QLineEdit* txtFind;
  QLineEdit* txtReplace;
  QLabel* lblReplace;
  QRadioButton* optUp;
  QRadioButton* optDown;
  QCheckBox* chkCase;
  QPushButton* cmdFindButton;
  QPushButton* cmdReplaceButton;
  QPushButton* cmdReplaceAllButton;
  QPushButton* cmdCancelButton;
};

// Document bytes and the text of Qt's widgets: UTF-8 documents as UTF-8, others as
// single-byte text.
QString DocumentTextToQt(Application& app, const std::string& bytes);
std::string QtTextToDocument(Application& app, const QString& text);

}  // namespace tessarine
