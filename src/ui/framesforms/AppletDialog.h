#pragma once
// The Java applet dialog, with its parameter lines, and the parameter dialog it opens.

#include "ui/framesforms/FrameFormDialog.h"

class QLabel;
class QListWidget;

namespace tessarine {
struct AppletInputs;
struct AppletParameter;
}

namespace tessarine::ui {

class AppletParameterDialog : public FrameFormDialog {
 public:
  // `line` a PARAM line to change, or empty for a new one.
  AppletParameterDialog(Application& app, QWidget* parent, const std::string& line = "");
  // The line built at Insert.
  const std::string& Line() const { return line_; }
  // Filled from a PARAM tag already in the page.
  void SetParameter(const AppletParameter& p);

 private:
  QLineEdit* name_;
  QLineEdit* value_;
  std::string line_;
};

class AppletDialog : public FrameFormDialog {
 public:
  AppletDialog(Application& app, QWidget* parent);
  AppletInputs Model() const;
  // Filled from a tag already in the page: OK then writes the opening tag alone.
  void SetModel(const AppletInputs& in);

 private:
  void AddParameter();
  void EditParameter(int row);

  QLineEdit* appletFile_;
  QLineEdit* codebase_;
  QLineEdit* altText_;
  QListWidget* parameters_;
  QLineEdit* width_;
  QLineEdit* height_;
  QLineEdit* verticalSpace_;
  QLineEdit* horizontalSpace_;
  QComboBox* align_;
  QLabel* alignDescription_;
  bool changingExistingTag_ = false;
};

}  // namespace tessarine::ui
