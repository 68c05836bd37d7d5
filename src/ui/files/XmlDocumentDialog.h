#pragma once
// "New XML document": version, standalone and a style sheet, bound to XmlDocInputs.

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace tessarine {

struct XmlDocInputs;

class XmlDocumentDialog : public QDialog {
  Q_OBJECT
 public:
  explicit XmlDocumentDialog(QWidget* parent = nullptr);
  // The dialog's fields; call after OK.
  XmlDocInputs Inputs() const;
  // Shows the dialog modally; true for OK, with `inputs` filled.
  static bool Ask(QWidget* parent, XmlDocInputs& inputs);

 private:
  QComboBox* cboVersion_;
  QCheckBox* chkStandalone_;
  QLineEdit* txtStyleSheetFilename_;
};

}  // namespace tessarine
