#include "ui/effects/EffectDialog.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "core/Application.h"
#include "platform/MessageBoxes.h"

namespace tessarine::ui {

bool EffectDialog::Refuse(const CheckResult& failed) {
  if (!failed) return false;
  app_.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app_.title);
  FocusField(failed);
  return true;
}

QLabel* EffectDialog::AddHeading(QBoxLayout* layout, const QString& heading,
                                 const QString& subHeading, QLabel** subLabel) {
  auto* title = new QLabel(heading);
  title->setObjectName("headingLabel");
  QFont bold = title->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.25);
  title->setFont(bold);
  layout->addWidget(title);
  auto* sub = new QLabel(subHeading);
  sub->setObjectName("subHeadingLabel");
  sub->setWordWrap(true);
  layout->addWidget(sub);
  if (subLabel) *subLabel = sub;
  return title;
}

void EffectDialog::AddPageButtons(QBoxLayout* layout) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  previousButton_ = new QPushButton("<< &Previous");
  previousButton_->setObjectName("previousButton");
  nextButton_ = new QPushButton("&Next >>");
  nextButton_->setObjectName("nextButton");
  nextButton_->setDefault(true);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cancelButton");
  row->addWidget(previousButton_);
  row->addWidget(nextButton_);
  row->addWidget(cancel);
  layout->addLayout(row);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

}  // namespace tessarine::ui
