#include "ui/wizards/HorizLineDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include "wizards/frmHorizLine.h"

namespace tessarine::ui {

frmHorizLine::frmHorizLine(Application& app, QWidget* parent)
    : WizardDialog(app, "frmHorizLine", "Horizontal Line", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("<b>Horizontal Line</b>");
  heading->setObjectName("lblHeading");
  layout->addWidget(heading);
  auto* sub = new QLabel("Set the properties below and click OK to insert a horizontal line.");
  sub->setObjectName("lblSubHeading");
  sub->setWordWrap(true);
  layout->addWidget(sub);

  auto* form = new QFormLayout;
  Text1_ = new QLineEdit("1");
  Text1_->setObjectName("Text1");
  auto* upDown = new QSpinBox;
  upDown->setObjectName("UpDown1");
  upDown->setRange(0, 999);
  upDown->setValue(1);
  upDown->setFixedWidth(18);  // the arrows alone: Text1 shows the number
  auto* thickness = new QHBoxLayout;
  thickness->addWidget(Text1_, 1);
  thickness->addWidget(upDown);
  form->addRow("Line thickness:", thickness);
  Text2_ = new QLineEdit;
  Text2_->setObjectName("Text2");
  form->addRow("Length of line:", Text2_);
  Check1_ = new QCheckBox("No Shading");
  Check1_->setObjectName("Check1");
  form->addRow("", Check1_);
  cmbAlign_ = new QComboBox;
  cmbAlign_->setObjectName("cmbAlign");
  for (const char* a : kHorizLineAligns) cmbAlign_->addItem(a);
  cmbAlign_->setCurrentIndex(-1);  // no alignment until one is chosen
  form->addRow("Align:", cmbAlign_);
  layout->addLayout(form);
  connect(upDown, &QSpinBox::valueChanged, this,
          [this](int v) { Text1_->setText(QString::number(v)); });

  AddButtons(layout, "Command1", [this] {
    frmHorizLine_OK(app_, Model());
    return true;
  });
}

tessarine::frmHorizLine frmHorizLine::Model() const {
  tessarine::frmHorizLine m;
  m.Text1 = S(Text1_->text());
  m.Text2 = S(Text2_->text());
  m.Check1 = Check1_->isChecked();
  m.cmbAlign = S(cmbAlign_->currentText());
  return m;
}

}  // namespace tessarine::ui
