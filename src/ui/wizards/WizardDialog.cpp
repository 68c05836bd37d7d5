#include "ui/wizards/WizardDialog.h"

#include <QBoxLayout>
#include <QHBoxLayout>
#include <QPushButton>

#include "conventions/TagConventions.h"
#include "core/Application.h"

namespace tessarine::ui {

QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}
std::string S(const QString& s) {
  return s.toUtf8().toStdString();
}

WizardDialog::WizardDialog(Application& app, const char* name, const QString& title,
                           QWidget* parent)
    : QDialog(parent), app_(app) {
  setObjectName(name);
  setWindowTitle(title);
}

void WizardDialog::AddButtons(QBoxLayout* layout, const char* okName, std::function<bool()> onOK) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  auto* ok = new QPushButton("OK");
  ok->setObjectName(okName);
  ok->setDefault(true);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cmdCancel");
  row->addWidget(ok);
  row->addWidget(cancel);
  layout->addLayout(row);
  connect(ok, &QPushButton::clicked, this, [this, onOK = std::move(onOK)] {
    if (onOK()) accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void WizardDialog::FocusField(const CheckResult& failed) {
  if (!failed) return;
  if (auto* w = findChild<QWidget*>(Q(failed->field))) w->setFocus();
}

void WizardDialog::done(int result) {
  QDialog::done(result);
  CloseWizard(app_);
}

}  // namespace tessarine::ui
