#include "ui/sitetools/StepButtons.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace tessarine {

StepButtons MakeStepButtons() {
  StepButtons b;
  b.row = new QHBoxLayout;
  b.help = new QPushButton("&Help");
  b.help->setObjectName("helpButton");
  b.previous = new QPushButton("<< &Previous");
  b.previous->setObjectName("previousButton");
  b.next = new QPushButton("&Next >>");
  b.next->setObjectName("nextButton");
  b.next->setDefault(true);
  b.cancel = new QPushButton("&Cancel");
  b.cancel->setObjectName("cancelButton");
  b.row->addWidget(b.help);
  b.row->addStretch();
  b.row->addWidget(b.previous);
  b.row->addWidget(b.next);
  b.row->addWidget(b.cancel);
  return b;
}

}  // namespace tessarine
