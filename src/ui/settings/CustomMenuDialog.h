#pragma once
// "Custom Menu Settings": the five groups the custom menus may include.

#include <QDialog>

class QCheckBox;

namespace tessarine {

class Application;
struct CustomMenuChoices;

class CustomMenuDialog : public QDialog {
  Q_OBJECT
 public:
  // The boxes show the current menu variables.
  CustomMenuDialog(Application& app, QWidget* parent);
  CustomMenuChoices Choices() const;

 private:
  void Accept();

  Application& app_;
  QCheckBox* structureTags_;
  QCheckBox* forms_;
  QCheckBox* tables_;
  QCheckBox* specialEffects_;
  QCheckBox* javaScript_;
};

// Opens the dialog; OK sets the five menu variables, Cancel changes nothing. The store is
// written later, by SaveMenuSystem. True for OK.
bool ShowCustomMenuDialog(Application& app, QWidget* parent);

}  // namespace tessarine
