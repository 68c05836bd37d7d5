#include "ui/settings/CustomMenuDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "settings/MenuSystem.h"

namespace tessarine {

CustomMenuDialog::CustomMenuDialog(Application& app, QWidget* parent) : QDialog(parent), app_(app) {
  setObjectName("CustomMenuDialog");
  setWindowTitle("Custom Menu Settings");
  auto* layout = new QVBoxLayout(this);
  auto* group = new QGroupBox("Include these items in your Custom menus");
  auto* boxes = new QVBoxLayout(group);
  const CustomMenuChoices shown = CurrentCustomMenuChoices(app_.settings);
  auto box = [boxes](const char* name, const char* caption, bool ticked) {
    auto* b = new QCheckBox(caption);
    b->setObjectName(name);
    b->setChecked(ticked);
    boxes->addWidget(b);
    return b;
  };
  structureTags_ = box("structureTagsCheck", "&Structure Tags", shown.structureTags);
  forms_ = box("formsCheck", "&Forms", shown.forms);
  tables_ = box("tablesCheck", "&Tables", shown.tables);
  specialEffects_ = box("specialEffectsCheck", "Special &Effects", shown.specialEffects);
  javaScript_ = box("javaScriptCheck", "&Java/JavaScript", shown.javaScript);
  layout->addWidget(group);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Ok)->setObjectName("okButton");
  buttons->button(QDialogButtonBox::Cancel)->setObjectName("cancelButton");
  connect(buttons, &QDialogButtonBox::accepted, this, &CustomMenuDialog::Accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

CustomMenuChoices CustomMenuDialog::Choices() const {
  CustomMenuChoices c;
  c.structureTags = structureTags_->isChecked();
  c.forms = forms_->isChecked();
  c.tables = tables_->isChecked();
  c.specialEffects = specialEffects_->isChecked();
  c.javaScript = javaScript_->isChecked();
  return c;
}

void CustomMenuDialog::Accept() {
  ApplyCustomMenuChoices(app_.settings, Choices());
  accept();
}

bool ShowCustomMenuDialog(Application& app, QWidget* parent) {
  CustomMenuDialog dialog(app, parent);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace tessarine
