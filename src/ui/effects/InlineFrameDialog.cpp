#include "ui/effects/InlineFrameDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "conventions/FavoriteUrls.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "effects/EffectPicker.h"
#include "platform/SettingsStore.h"

namespace tessarine::ui {

InlineFrameDialog::InlineFrameDialog(Application& app, QWidget* parent)
    : EffectDialog(app, "InlineFrameDialog", "Inline Frame", parent) {
  auto* layout = new QVBoxLayout(this);
  AddHeading(layout, "Inline Frame",
             "An Inline Frame is a frame that floats on your Web page.  The frame contains any "
             "Web page of your choice.  Only Internet Explorer supports Inline Frames.");
  auto* form = new QFormLayout;
  sourceUrl_ = new QComboBox;
  sourceUrl_->setObjectName("sourceUrl");
  sourceUrl_->setEditable(true);
  FavoriteUrlSlots urls;
  LoadFavoriteUrls(app.store, urls);
  for (const std::string& url : urls)
    if (!url.empty()) sourceUrl_->addItem(Q(url));
  sourceUrl_->setCurrentText("");
  auto* browse = new QPushButton("Browse...");
  browse->setObjectName("browseButton");
  auto* favorites = new QPushButton("Favorites...");
  favorites->setObjectName("favoritesButton");
  for (QPushButton* b : {browse, favorites}) b->setAutoDefault(false);
  auto* urlRow = new QHBoxLayout;
  urlRow->addWidget(sourceUrl_, 1);
  urlRow->addWidget(browse);
  urlRow->addWidget(favorites);
  form->addRow("Source URL:", urlRow);

  auto field = [](const char* name) {
    auto* e = new QLineEdit;
    e->setObjectName(name);
    return e;
  };
  frameWidth_ = field("frameWidth");
  frameHeight_ = field("frameHeight");
  frameWidth_->setPlaceholderText("pixels or %");
  frameHeight_->setPlaceholderText("pixels or %");
  form->addRow("Width:", frameWidth_);
  form->addRow("Height:", frameHeight_);
  alternativeText_ = field("alternativeText");
  form->addRow("Alternative text:", alternativeText_);
  alignmentCombo_ = new QComboBox;
  alignmentCombo_->setObjectName("alignmentCombo");
  for (const std::string& a : InlineFrameAlignments()) alignmentCombo_->addItem(Q(a));
  form->addRow("Alignment:", alignmentCombo_);
  scrollBarsCheck_ = new QCheckBox("Scroll bars");
  scrollBarsCheck_->setObjectName("scrollBarsCheck");
  form->addRow("", scrollBarsCheck_);
  frameBorderCheck_ = new QCheckBox("Frame Border:");
  frameBorderCheck_->setObjectName("frameBorderCheck");
  form->addRow("", frameBorderCheck_);
  hspaceText_ = field("hspaceText");
  vspaceText_ = field("vspaceText");
  form->addRow("Horizontal Space:", hspaceText_);
  form->addRow("Vertical Space:", vspaceText_);
  layout->addLayout(form);

  connect(browse, &QPushButton::clicked, this, [this] {
    const std::string url = BrowseForRelativeUrl(app_);
    if (!url.empty()) sourceUrl_->setCurrentText(Q(url));
  });
  connect(favorites, &QPushButton::clicked, this, [this] {
    const std::string url = BrowseFavorites(app_);
    if (!url.empty()) sourceUrl_->setCurrentText(Q(url));
  });

  AddButtons(layout, "okButton", [this] {
    const tessarine::InlineFrame f = Model();
    if (Refuse(f.Validate())) return false;
    app_.wizards.HeadInsert.clear();
    app_.wizards.BodyInsert = f.Build(TagCaseUpper(app_) == 1);
    RememberUrl(app_, f.url);
    return true;
  });
  setMinimumWidth(480);
}

tessarine::InlineFrame InlineFrameDialog::Model() const {
  tessarine::InlineFrame f;
  f.url = S(sourceUrl_->currentText());
  f.width = S(frameWidth_->text());
  f.height = S(frameHeight_->text());
  f.alternativeText = S(alternativeText_->text());
  f.alignment = S(alignmentCombo_->currentText());
  f.scrollBars = scrollBarsCheck_->isChecked();
  f.frameBorder = frameBorderCheck_->isChecked();
  f.hspace = S(hspaceText_->text());
  f.vspace = S(vspaceText_->text());
  return f;
}

}  // namespace tessarine::ui
