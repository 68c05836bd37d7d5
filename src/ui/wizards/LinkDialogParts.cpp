#include "ui/wizards/LinkDialogParts.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "ui/wizards/WizardDialog.h"
#include "wizards/LinkBrowse.h"

namespace tessarine::ui {

QLineEdit* NamedEdit(const char* name) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  return e;
}

QPushButton* NamedButton(const char* name, const QString& caption) {
  auto* b = new QPushButton(caption);
  b->setObjectName(name);
  b->setAutoDefault(false);
  return b;
}

QPushButton* ImageNameRow(QBoxLayout* layout, QLineEdit* name, const char* buttonName) {
  auto* row = new QHBoxLayout;
  auto* browse = NamedButton(buttonName, "Browse for image...");
  row->addWidget(name, 1);
  row->addWidget(browse);
  layout->addLayout(row);
  return browse;
}

QComboBox* NamedCombo(const char* name, bool editable) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  c->setEditable(editable);
  if (editable) c->setInsertPolicy(QComboBox::NoInsert);
  return c;
}

QComboBox* UrlCombo(Application& app, const char* name) {
  QComboBox* c = NamedCombo(name, true);
  for (const std::string& url : UrlChoices(app)) c->addItem(Q(url));
  c->setEditText("");
  return c;
}

void AllowLongText(QWidget* dialog) {
  for (QLineEdit* e : dialog->findChildren<QLineEdit*>()) e->setMaxLength(1 << 26);
}

}  // namespace tessarine::ui
