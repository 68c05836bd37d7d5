#include "ui/wizards/ScriptTagsDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "wizards/ScriptTags.h"

namespace tessarine::ui {

ScriptTagsDialog::ScriptTagsDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "ScriptTags", "Script Tags", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  cmbLanguage_ = new QComboBox;
  cmbLanguage_->setObjectName("cmbLanguage");
  for (const char* l : kScriptLanguages) cmbLanguage_->addItem(l);
  form->addRow("Language:", cmbLanguage_);
  chkRunAtServer_ = new QCheckBox("RunAt=Server");
  chkRunAtServer_->setObjectName("chkRunAtServer");
  form->addRow("", chkRunAtServer_);
  txtSrc_ = new QLineEdit;
  txtSrc_->setObjectName("txtSrc");
  auto* src = new QHBoxLayout;
  src->addWidget(txtSrc_, 1);
  src->addWidget(new QLabel("(optional)"));
  form->addRow("External file:", src);
  chkInsertIntoHead_ = new QCheckBox("Insert script tags into HEAD section");
  chkInsertIntoHead_->setObjectName("chkInsertIntoHead");
  form->addRow("", chkInsertIntoHead_);
  layout->addLayout(form);

  auto adjust = [this](const QString& language) {
    const ScriptLanguageFields f = ScriptLanguageState(S(language));
    chkRunAtServer_->setEnabled(f.runAtEnabled);
    if (!f.runAtEnabled) chkRunAtServer_->setChecked(false);
    txtSrc_->setEnabled(f.srcEnabled);
  };
  adjust(cmbLanguage_->currentText());
  connect(cmbLanguage_, &QComboBox::currentTextChanged, this, adjust);

  AddButtons(layout, "cmdOK", [this] {
    const CheckResult failed = ScriptTags_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
}

tessarine::ScriptTags ScriptTagsDialog::Model() const {
  tessarine::ScriptTags m;
  m.cmbLanguage = S(cmbLanguage_->currentText());
  m.chkRunAtServer = chkRunAtServer_->isChecked();
  m.txtSrc = txtSrc_->isEnabled() ? S(txtSrc_->text()) : "";
  m.chkInsertIntoHead = chkInsertIntoHead_->isChecked();
  return m;
}

}  // namespace tessarine::ui
