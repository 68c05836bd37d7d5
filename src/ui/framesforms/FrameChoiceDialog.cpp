#include "ui/framesforms/FrameChoiceDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessarine::ui {

FrameChoiceDialog::FrameChoiceDialog(QWidget* parent) : QDialog(parent) {
  setObjectName("FrameChoiceDialog");
  setWindowTitle("Frames");
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("<b>How do you want to make your Frames?</b>");
  heading->setObjectName("lblHeading");
  layout->addWidget(heading);
  auto* row = new QHBoxLayout;
  auto* own = new QPushButton("Do-it-yourself");
  own->setObjectName("doItYourselfButton");
  auto* custom = new QPushButton("Custom-made Frames templates");
  custom->setObjectName("customMadeButton");
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cmdCancel");
  row->addWidget(own);
  row->addWidget(custom);
  row->addWidget(cancel);
  layout->addLayout(row);
  // Each choice closes this dialog first; the caller opens the next one.
  connect(own, &QPushButton::clicked, this, [this] {
    chosen_ = DoItYourself;
    accept();
  });
  connect(custom, &QPushButton::clicked, this, [this] {
    chosen_ = CustomMade;
    accept();
  });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

}  // namespace tessarine::ui
