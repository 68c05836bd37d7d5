#include "ui/files/XmlDocumentDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/NewDocument.h"

namespace tessarine {

XmlDocumentDialog::XmlDocumentDialog(QWidget* parent)
    : QDialog(parent),
      cboVersion_(new QComboBox),
      chkStandalone_(new QCheckBox("&Standalone")),
      txtStyleSheetFilename_(new QLineEdit) {
  setObjectName("XmlDocumentDialog");
  setWindowTitle("New XML document");
  cboVersion_->setObjectName("cboVersion");
  cboVersion_->setEditable(true);
  cboVersion_->addItem("1.0");
  cboVersion_->setEditText("1.0");
  chkStandalone_->setObjectName("chkStandalone");
  txtStyleSheetFilename_->setObjectName("txtStyleSheetFilename");
  auto* form = new QFormLayout;
  form->addRow("XML &version:", cboVersion_);
  form->addRow("", chkStandalone_);
  form->addRow("Style s&heet:", txtStyleSheetFilename_);
  // Room for a path, not just a name.
  txtStyleSheetFilename_->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('x')) * 48);
  auto* ok = new QPushButton("OK");
  ok->setObjectName("cmdOK");
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cmdCancel");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addLayout(buttons);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

XmlDocInputs XmlDocumentDialog::Inputs() const {
  XmlDocInputs in;
  in.cboVersion = cboVersion_->currentText().toStdString();
  in.chkStandalone = chkStandalone_->isChecked();
  in.txtStyleSheetFilename = txtStyleSheetFilename_->text().toStdString();
  return in;
}

bool XmlDocumentDialog::Ask(QWidget* parent, XmlDocInputs& inputs) {
  XmlDocumentDialog dialog(parent);
  if (dialog.exec() != QDialog::Accepted) return false;
  inputs = dialog.Inputs();
  return true;
}

}  // namespace tessarine
