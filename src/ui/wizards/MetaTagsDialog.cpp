#include "ui/wizards/MetaTagsDialog.h"

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

MetaTagsDialog::MetaTagsDialog(Application& app, QWidget* parent)
    : WizardDialog(app, "Metatags", "Meta Tags", parent) {
  auto* layout = new QVBoxLayout(this);
  auto* l1 =
      new QLabel("Type a description (250 characters) of your Web page for search engines to use.");
  l1->setWordWrap(true);
  layout->addWidget(l1);
  description_ = new QTextEdit;
  description_->setObjectName("description");
  description_->setAcceptRichText(false);
  description_->setMaximumHeight(70);
  layout->addWidget(description_);
  layout->addWidget(new QLabel("Keywords (separated by commas):"));
  keywords_ = new QLineEdit;
  keywords_->setObjectName("keywords");
  layout->addWidget(keywords_);
  splashScreen_ = new QCheckBox("Make this page a splash screen.");
  splashScreen_->setObjectName("splashScreen");
  layout->addWidget(splashScreen_);

  auto* form = new QFormLayout;
  auto* lblSeconds = new QLabel("Number of seconds to wait before loading second page:");
  lblSeconds->setObjectName("lblSplashSeconds");
  refreshSeconds_ = new QLineEdit;
  refreshSeconds_->setObjectName("refreshSeconds");
  auto* upDown = new QSpinBox;
  upDown->setObjectName("refreshSecondsArrows");
  upDown->setRange(0, 3600);
  upDown->setFixedWidth(18);
  auto* seconds = new QHBoxLayout;
  seconds->addWidget(refreshSeconds_, 1);
  seconds->addWidget(upDown);
  form->addRow(lblSeconds, seconds);
  auto* lblUrl = new QLabel("URL of second Web page:");
  lblUrl->setObjectName("lblSplashURL");
  nextPageUrl_ = new QLineEdit;
  nextPageUrl_->setObjectName("nextPageUrl");
  form->addRow(lblUrl, nextPageUrl_);
  layout->addLayout(form);
  connect(upDown, &QSpinBox::valueChanged, this,
          [this](int v) { refreshSeconds_->setText(QString::number(v)); });

  auto splash = [this, lblSeconds, lblUrl, upDown](bool on) {
    for (QWidget* w : {static_cast<QWidget*>(lblSeconds), static_cast<QWidget*>(lblUrl),
                       static_cast<QWidget*>(refreshSeconds_), static_cast<QWidget*>(nextPageUrl_),
                       static_cast<QWidget*>(upDown)})
      w->setEnabled(on);
  };
  splash(false);
  connect(splashScreen_, &QCheckBox::toggled, this, splash);

  AddButtons(layout, "okButton", [this] {
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

tessarine::Metatags MetaTagsDialog::Model() const {
  tessarine::Metatags m;
  m.description = S(description_->toPlainText());
  m.keywords = S(keywords_->text());
  m.splashScreen = splashScreen_->isChecked();
  m.refreshSeconds = S(refreshSeconds_->text());
  m.nextPageUrl = S(nextPageUrl_->text());
  return m;
}

}  // namespace tessarine::ui
