#include "ui/wizards/HorizontalLineDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include "wizards/HorizontalLine.h"

namespace tessarine::ui {

HorizontalLineDialog::HorizontalLineDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "HorizontalLine", "Horizontal Line", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel("<b>Horizontal Line</b>");
  heading->setObjectName("lblHeading");
  layout->addWidget(heading);
  auto* sub = new QLabel("Set the properties below and click OK to insert a horizontal line.");
  sub->setObjectName("lblSubHeading");
  sub->setWordWrap(true);
  layout->addWidget(sub);

  auto* form = new QFormLayout;
  thickness_ = new QLineEdit("1");
  thickness_->setObjectName("thickness");
  auto* upDown = new QSpinBox;
  upDown->setObjectName("thicknessArrows");
  upDown->setRange(0, 999);
  upDown->setValue(1);
  upDown->setFixedWidth(18);  // the arrows alone: thickness shows the number
  auto* thickness = new QHBoxLayout;
  thickness->addWidget(thickness_, 1);
  thickness->addWidget(upDown);
  form->addRow("Line thickness:", thickness);
  lineWidth_ = new QLineEdit;
  lineWidth_->setObjectName("lineWidth");
  form->addRow("Length of line:", lineWidth_);
  noShading_ = new QCheckBox("No Shading");
  noShading_->setObjectName("noShading");
  form->addRow("", noShading_);
  cmbAlign_ = new QComboBox;
  cmbAlign_->setObjectName("cmbAlign");
  for (const char* a : kHorizLineAligns) cmbAlign_->addItem(a);
  cmbAlign_->setCurrentIndex(-1);  // no alignment until one is chosen
  form->addRow("Align:", cmbAlign_);
  layout->addLayout(form);
  connect(upDown, &QSpinBox::valueChanged, this,
          [this](int v) { thickness_->setText(QString::number(v)); });

  AddButtons(layout, "okButton", [this] {
    HorizontalLine_OK(app_, Model());
    return true;
  });
}

tessarine::HorizontalLine HorizontalLineDialog::Model() const {
  tessarine::HorizontalLine m;
  m.thickness = S(thickness_->text());
  m.lineWidth = S(lineWidth_->text());
  m.noShading = noShading_->isChecked();
  m.cmbAlign = S(cmbAlign_->currentText());
  return m;
}

void HorizontalLineDialog::SetModel(const tessarine::HorizontalLine& m) {
  thickness_->setText(Q(m.thickness));
  lineWidth_->setText(Q(m.lineWidth));
  noShading_->setChecked(m.noShading);
  cmbAlign_->setCurrentIndex(cmbAlign_->findText(Q(m.cmbAlign)));
}

}  // namespace tessarine::ui
