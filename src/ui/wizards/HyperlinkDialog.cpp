#include "ui/wizards/HyperlinkDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "conventions/FavoriteUrls.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "ui/wizards/LinkDialogParts.h"
#include "wizards/LinkBrowse.h"

namespace tessarine::ui {

HyperlinkDialog::HyperlinkDialog(Application& app, QWidget* parent)
    : HyperlinkDialog(app, parent, Hyperlink_Open(app)) {}

HyperlinkDialog::HyperlinkDialog(Application& app, QWidget* parent, const Hyperlink& initial)
    : WizardDialog(app, "HyperlinkDialog", "Insert Hyperlink", parent) {
  auto* layout = new QVBoxLayout(this);
  pages_ = new QTabWidget;
  pages_->setObjectName("pages");
  layout->addWidget(pages_);

  auto* properties = new QWidget;
  auto* form = new QVBoxLayout(properties);
  form->addWidget(new QLabel("This text will be displayed and clickable on the Web page."));
  linkText_ = NamedEdit("linkText");
  form->addWidget(linkText_);
  form->addWidget(new QLabel("Type the URL (Web address) you wish to link to:"));
  urlCombo_ = UrlCombo(app, "urlCombo");
  form->addWidget(urlCombo_);
  auto* browseRow = new QHBoxLayout;
  auto* browseFile = NamedButton("browseFile", "Browse for local Web page...");
  auto* browseFavorites = NamedButton("browseFavorites", "Browse Internet Explorer Favorites...");
  browseRow->addWidget(browseFile);
  browseRow->addWidget(browseFavorites);
  browseRow->addStretch();
  form->addLayout(browseRow);
  linkToAnchor_ = new QCheckBox("Link to an anchor?");
  linkToAnchor_->setObjectName("linkToAnchor");
  form->addWidget(linkToAnchor_);
  auto* anchorRow = new QFormLayout;
  anchorLabel_ = new QLabel("The name of the anchor to link to:");
  anchorName_ = NamedEdit("anchorName");
  anchorRow->addRow(anchorLabel_, anchorName_);
  targetFrame_ = NamedCombo("targetFrame", true);
  targetFrame_->addItems({"", "_blank", "_parent", "_self", "_top"});
  anchorRow->addRow(new QLabel("Target frame (the name of the frame that shows the page):"),
                    targetFrame_);
  form->addLayout(anchorRow);
  form->addStretch();
  pages_->addTab(properties, "Properties");

  auto* effects = new QWidget;
  auto* effectsForm = new QFormLayout(effects);
  statusText_ = NamedEdit("statusText");
  effectsForm->addRow(new QLabel("Text for the browser's status bar:"), statusText_);
  toolTip_ = NamedEdit("toolTip");
  effectsForm->addRow(new QLabel("Text of the screen tip:"), toolTip_);
  auto* rollover = new QLabel("When the mouse is over any link of this page:");
  effectsForm->addRow(rollover);
  boldOnHover_ = new QCheckBox("Bold the text *");
  boldOnHover_->setObjectName("boldOnHover");
  effectsForm->addRow(boldOnHover_);
  underlineOnHover_ = new QCheckBox("Underline the text *");
  underlineOnHover_->setObjectName("underlineOnHover");
  effectsForm->addRow(underlineOnHover_);
  hoverColor_ = NamedButton("hoverColor", "Click to select color...");
  hoverColor_->setFlat(true);
  hoverColor_->setMinimumHeight(28);
  hoverColor_->setStyleSheet("border: 1px solid gray;");
  effectsForm->addRow(new QLabel("Text color:"), hoverColor_);
  effectsForm->addRow(new QLabel("* Only available in Internet Explorer"));
  pages_->addTab(effects, "Special Effects");
  connect(hoverColor_, &QPushButton::clicked, this, &HyperlinkDialog::PickHoverColor);

  // Only while the box is set does the anchor name count.
  auto anchorEnabled = [this](bool on) {
    anchorLabel_->setEnabled(on);
    anchorName_->setEnabled(on);
  };
  connect(linkToAnchor_, &QCheckBox::toggled, this, [this, anchorEnabled](bool on) {
    anchorEnabled(on);
    if (on) anchorName_->setFocus();
  });
  connect(pages_, &QTabWidget::currentChanged, this, [this](int page) {
    (page == 0 ? static_cast<QWidget*>(linkText_) : statusText_)->setFocus();
  });
  connect(browseFile, &QPushButton::clicked, this, [this] {
    const std::string path = BrowseRelativeFile(app_);
    if (!path.empty()) urlCombo_->setEditText(Q(path));
    urlCombo_->setFocus();
  });
  connect(browseFavorites, &QPushButton::clicked, this, [this] {
    urlCombo_->setEditText(Q(BrowseFavorites(app_)));
    urlCombo_->setFocus();
  });

  AddButtons(layout, "okButton", [this] {
    const CheckResult failed = Hyperlink_OK(app_, Model());
    if (failed && failed->field == "linkText") pages_->setCurrentIndex(0);
    FocusField(failed);
    return !failed;
  });

  AllowLongText(this);
  // The roll-over boxes and the swatch always show the page's sheet as it stands now.
  Hyperlink filled = initial;
  HyperlinkStyles_Open(app_, filled);
  Prefill(filled);
  int red = 0, green = 0, blue = 0;
  if (HyperlinkHoverSwatch(app_, red, green, blue)) ShowSwatch(red, green, blue);
  anchorEnabled(linkToAnchor_->isChecked());
}

void HyperlinkDialog::ShowSwatch(int red, int green, int blue) {
  hoverColor_->setText("");
  hoverColor_->setStyleSheet(QString("border: 1px solid gray; background-color: rgb(%1, %2, %3);")
                                 .arg(red)
                                 .arg(green)
                                 .arg(blue));
}

void HyperlinkDialog::PickHoverColor() {
  PickColor(app_);
  if (app_.wizards.ColorCancelled || !app_.wizards.PickedColor) return;
  const std::int32_t c = *app_.wizards.PickedColor;
  ShowSwatch(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
  HyperlinkSetHoverColor(app_, app_.wizards.PickedColorHex);
}

void HyperlinkDialog::done(int result) {
  WizardDialog::done(result);
  HyperlinkStyles_Close(app_);
}

void HyperlinkDialog::Prefill(const Hyperlink& link) {
  linkText_->setText(Q(link.linkText));
  urlCombo_->setEditText(Q(link.url));
  linkToAnchor_->setChecked(link.linkToAnchor);
  anchorName_->setText(Q(link.anchorName));
  targetFrame_->setEditText(Q(link.targetFrame));
  statusText_->setText(Q(link.statusText));
  toolTip_->setText(Q(link.toolTip));
  boldOnHover_->setChecked(link.boldOnHover);
  underlineOnHover_->setChecked(link.underlineOnHover);
}

Hyperlink HyperlinkDialog::Model() const {
  Hyperlink h;
  h.linkText = S(linkText_->text());
  h.url = S(urlCombo_->currentText());
  h.linkToAnchor = linkToAnchor_->isChecked();
  h.anchorName = S(anchorName_->text());
  h.targetFrame = S(targetFrame_->currentText());
  h.statusText = S(statusText_->text());
  h.toolTip = S(toolTip_->text());
  h.boldOnHover = boldOnHover_->isChecked();
  h.underlineOnHover = underlineOnHover_->isChecked();
  return h;
}

void HyperlinkDialog::showEvent(QShowEvent* event) {
  WizardDialog::showEvent(event);
  // With text chosen already, the address is what is left to type.
  (linkText_->text().isEmpty() ? static_cast<QWidget*>(linkText_) : urlCombo_)->setFocus();
}

}  // namespace tessarine::ui
