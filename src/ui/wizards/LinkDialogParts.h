#pragma once
// Small pieces the link and image dialogs build their pages from.

#include <string>

class QBoxLayout;
class QComboBox;
class QLineEdit;
class QPushButton;
class QString;
class QWidget;

namespace tessarine {
class Application;
}

namespace tessarine::ui {

QLineEdit* NamedEdit(const char* name);
QPushButton* NamedButton(const char* name, const QString& caption);
QComboBox* NamedCombo(const char* name, bool editable);
// `name` with a "Browse for image..." button beside it, as one row of `layout`; returns the
// button.
QPushButton* ImageNameRow(QBoxLayout* layout, QLineEdit* name, const char* buttonName);
// An editable address box offering "http://" and the remembered URLs.
QComboBox* UrlCombo(Application& app, const char* name);
// Line edits stop at 32767 characters unless told otherwise; addresses and names of any
// length are written as typed.
void AllowLongText(QWidget* dialog);

}  // namespace tessarine::ui
