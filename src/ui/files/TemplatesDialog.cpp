#include "ui/files/TemplatesDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/Application.h"
#include "core/NewDocument.h"

namespace tessarine {

TemplatesDialog::TemplatesDialog(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), file1_(new QListWidget) {
  setObjectName("Templates");
  setWindowTitle("Templates");
  file1_->setObjectName("File1");
  for (const std::string& name : ListTemplates(app.programFolder))
    file1_->addItem(QString::fromUtf8(name.data(), static_cast<int>(name.size())));
  auto* command1 = new QPushButton("&OK");
  command1->setObjectName("okButton");
  command1->setDefault(true);
  auto* command2 = new QPushButton("&Cancel");
  command2->setObjectName("cancelButton");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(command1);
  buttons->addWidget(command2);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(new QLabel("Select a template and click OK to open:"));
  layout->addWidget(file1_, 1);
  layout->addLayout(buttons);
  connect(command1, &QPushButton::clicked, this, &TemplatesDialog::OK);
  connect(command2, &QPushButton::clicked, this, &QDialog::reject);
  connect(file1_, &QListWidget::itemDoubleClicked, this, &TemplatesDialog::OpenDoubleClicked);
  resize(360, 300);
}

void TemplatesDialog::OK() {
  QListWidgetItem* item = file1_->currentItem();
  const std::string name = item && item->isSelected() ? item->text().toStdString() : "";
  // The dialog goes first: what opens takes the focus.
  accept();
  OpenTemplate(app_, name, false);
}

void TemplatesDialog::OpenDoubleClicked() {
  QListWidgetItem* item = file1_->currentItem();
  if (!item) return;
  const std::string name = item->text().toStdString();
  accept();
  OpenTemplate(app_, name, true);
}

}  // namespace tessarine
