#include "ui/wizards/QtCheckedQuestions.h"

#include <QCheckBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarine {

namespace {
QString Q(const std::string& s) {
  return QString::fromUtf8(s.data(), static_cast<int>(s.size()));
}
}  // namespace

CheckedAnswer QtCheckedQuestions::Ask(const CheckedQuestion& question) {
  QDialog dialog(parent_);
  dialog.setObjectName("CheckedQuestion");
  dialog.setWindowTitle(Q(question.title));
  auto* text = new QLabel(Q(question.text).replace("\r\n", "\n"));
  text->setObjectName("questionText");
  text->setWordWrap(true);
  auto* yes = new QPushButton(Q(question.yesCaption));
  yes->setObjectName("yesButton");
  auto* no = new QPushButton(Q(question.noCaption));
  no->setObjectName("noButton");
  auto* check = new QCheckBox(Q(question.checkCaption));
  check->setObjectName("dontAskAgain");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(yes);
  buttons->addWidget(no);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(text);
  layout->addLayout(buttons);
  layout->addWidget(check);
  yes->setDefault(true);
  QObject::connect(yes, &QPushButton::clicked, &dialog, &QDialog::accept);
  QObject::connect(no, &QPushButton::clicked, &dialog, &QDialog::reject);
  dialog.setMinimumWidth(420);
  CheckedAnswer answer;
  answer.yes = dialog.exec() == QDialog::Accepted;
  answer.checked = check->isChecked();
  return answer;
}

}  // namespace tessarine
