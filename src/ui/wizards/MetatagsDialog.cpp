#include "ui/wizards/MetatagsDialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextEdit>
#include <QVBoxLayout>

#include "core/Application.h"
#include "wizards/Metatags.h"

namespace tessarine::ui {

Metatags::Metatags(Application& app, QWidget* parent)
    : WizardDialog(app, "Metatags", "Meta Tags", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* l1 =
      new QLabel("Type a description (250 characters) of your Web page for search engines to use.");
  l1->setWordWrap(true);
  layout->addWidget(l1);
  Text1_ = new QTextEdit;
  Text1_->setObjectName("Text1");
  Text1_->setAcceptRichText(false);
  Text1_->setMaximumHeight(70);
  layout->addWidget(Text1_);
  layout->addWidget(new QLabel("Keywords (separated by commas):"));
  Text2_ = new QLineEdit;
  Text2_->setObjectName("Text2");
  layout->addWidget(Text2_);
  Check1_ = new QCheckBox("Make this page a splash screen.");
  Check1_->setObjectName("Check1");
  layout->addWidget(Check1_);

  auto* form = new QFormLayout;
  auto* lblSeconds = new QLabel("Number of seconds to wait before loading second page:");
  lblSeconds->setObjectName("lblSplashSeconds");
  Text3_ = new QLineEdit;
  Text3_->setObjectName("Text3");
  auto* upDown = new QSpinBox;
  upDown->setObjectName("UpDown1");
  upDown->setRange(0, 3600);
  upDown->setFixedWidth(18);
  auto* seconds = new QHBoxLayout;
  seconds->addWidget(Text3_, 1);
  seconds->addWidget(upDown);
  form->addRow(lblSeconds, seconds);
  auto* lblUrl = new QLabel("URL of second Web page:");
  lblUrl->setObjectName("lblSplashURL");
  Text4_ = new QLineEdit;
  Text4_->setObjectName("Text4");
  form->addRow(lblUrl, Text4_);
  layout->addLayout(form);
  connect(upDown, &QSpinBox::valueChanged, this,
          [this](int v) { Text3_->setText(QString::number(v)); });

  auto splash = [this, lblSeconds, lblUrl, upDown](bool on) {
    for (QWidget* w : {static_cast<QWidget*>(lblSeconds), static_cast<QWidget*>(lblUrl),
                       static_cast<QWidget*>(Text3_), static_cast<QWidget*>(Text4_),
                       static_cast<QWidget*>(upDown)})
      w->setEnabled(on);
  };
  splash(false);
  connect(Check1_, &QCheckBox::toggled, this, splash);

  AddButtons(layout, "Command1", [this] {
    const CheckResult failed = Metatags_OK(app_, Model());
    FocusField(failed);
    return !failed;
  });
  connect(this, &QDialog::rejected, this, [this] {
    app_.wizards.MetaDescription.clear();
    app_.wizards.MetaKeywords.clear();
    app_.wizards.MetaEffects.clear();
  });
}

tessarine::Metatags Metatags::Model() const {
  tessarine::Metatags m;
  m.Text1 = S(Text1_->toPlainText());
  m.Text2 = S(Text2_->text());
  m.Check1 = Check1_->isChecked();
  m.Text3 = S(Text3_->text());
  m.Text4 = S(Text4_->text());
  return m;
}

}  // namespace tessarine::ui
