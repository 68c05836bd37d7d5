#include "ui/styles/StyleEditorDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSize>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/MessageBoxes.h"
#include "styles/CSSstyle.h"
#include "ui/wizards/WizardDialog.h"

namespace tessarine::ui {

namespace {

template <typename List>
QComboBox* Combo(const char* name, const List& items, const char* current = "") {
  auto* box = new QComboBox;
  box->setObjectName(name);
  box->setEditable(true);  // a value read from a sheet need not be one of the items
  for (const char* item : items) box->addItem(item);
  box->setCurrentIndex(-1);
  box->setEditText(current);
  return box;
}

QComboBox* UnitCombo(const char* name, const char* unit) {
  return Combo(name, kStyleUnits, unit);
}

QLineEdit* Line(const char* name) {
  auto* edit = new QLineEdit;
  edit->setObjectName(name);
  return edit;
}

QCheckBox* Check(const char* name, const char* caption) {
  auto* box = new QCheckBox(caption);
  box->setObjectName(name);
  return box;
}

QHBoxLayout* Row(QWidget* a, QWidget* b) {
  auto* row = new QHBoxLayout;
  row->addWidget(a, 1);
  row->addWidget(b);
  return row;
}

std::string Text(const QComboBox* box) {
  return S(box->currentText());
}
std::string Text(const QLineEdit* box) {
  return S(box->text());
}
void Set(QComboBox* box, const std::string& v) {
  box->setEditText(Q(v));
}
void Set(QLineEdit* box, const std::string& v) {
  box->setText(Q(v));
}

const char* Heading(std::int16_t mode) {
  switch (mode) {
    case kAddStyleToDocument:
    case kAddManagedStyle:
      return "Add Style";
    case kInsertInlineStyle:
      return "Insert Inline Style";
    default:
      return "";
  }
}

}  // namespace

StyleEditorDialog::StyleEditorDialog(Application& app, std::int16_t mode,
                                     const std::string& managerSelection, QWidget* parent)
    : QDialog(parent), app_(app), mode_(mode), managerSelection_(managerSelection) {
  setObjectName("StyleEditorDialog");
  setWindowTitle("Cascading Style Sheet Wizard");
  auto* layout = new QVBoxLayout(this);
  heading_ = new QLabel;
  heading_->setObjectName("heading");
  QFont big = heading_->font();
  big.setBold(true);
  big.setPointSizeF(big.pointSizeF() * 1.3);
  heading_->setFont(big);
  heading_->setText(mode == kEditManagedStyle ? "Editing Style: " + Q(managerSelection)
                                              : QString(Heading(mode)));
  layout->addWidget(heading_);

  pages_ = new QStackedWidget;
  pages_->setObjectName("pages");
  pages_->addWidget(BuildNamingPage());
  propertyTabs_ = new QTabWidget;
  propertyTabs_->setObjectName("propertyTabs");
  propertyTabs_->addTab(BuildFormattingPage(), "Formatting");
  propertyTabs_->addTab(BuildLayoutPage(), "Layout");
  propertyTabs_->addTab(BuildBackgroundPage(), "Background properties");
  propertyTabs_->addTab(BuildPositioningPage(), "Positioning");
  propertyTabs_->addTab(BuildPreviewPage(), "Preview");
  pages_->addWidget(propertyTabs_);
  layout->addWidget(pages_, 1);
  connect(propertyTabs_, &QTabWidget::currentChanged, this, [this](int tab) {
    QWidget* first[] = {font_, verticalAlign_, backgroundColor_, width_};
    if (tab >= 0 && tab < 4) first[tab]->setFocus();
  });

  auto* buttons = new QHBoxLayout;
  nextButton_ = new QPushButton("&Next >>");
  nextButton_->setObjectName("nextButton");
  okButton_ = new QPushButton("OK");
  okButton_->setObjectName("okButton");
  okButton_->setDefault(true);
  auto* cancel = new QPushButton("Cancel");
  cancel->setObjectName("cancelButton");
  buttons->addWidget(nextButton_);
  buttons->addStretch();
  buttons->addWidget(okButton_);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  connect(nextButton_, &QPushButton::clicked, this, &StyleEditorDialog::NextOrPrevious);
  connect(okButton_, &QPushButton::clicked, this, &StyleEditorDialog::OnOK);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  const bool named = mode == kAddStyleToDocument || mode == kAddManagedStyle;
  nextButton_->setVisible(named);
  ShowPropertyPages(!named);
  propertyTabs_->setUsesScrollButtons(false);  // all five page names in view
  resize(sizeHint().expandedTo(QSize(600, 440)));
}

QWidget* StyleEditorDialog::BuildNamingPage() {
  auto* page = new QWidget;
  page->setObjectName("namingPage");
  auto* layout = new QVBoxLayout(page);
  auto* text = new QLabel(
      "Create a style for an existing HTML tag by selecting from the list below or create a "
      "custom style.  Click the \"Next >>\" button after specifying the style name.");
  text->setWordWrap(true);
  layout->addWidget(text);
  htmlElementOption_ = new QRadioButton("HTML element");
  htmlElementOption_->setObjectName("htmlElementOption");
  htmlElementOption_->setChecked(true);
  customOption_ = new QRadioButton("Custom");
  customOption_->setObjectName("customOption");
  auto* kind = new QHBoxLayout;
  kind->addWidget(htmlElementOption_);
  kind->addWidget(customOption_);
  kind->addStretch();
  layout->addLayout(kind);

  htmlElements_ = new QListWidget;
  htmlElements_->setObjectName("htmlElements");
  for (const char* e : kStyleHtmlElements) htmlElements_->addItem(e);
  layout->addWidget(htmlElements_, 1);

  auto* custom = new QGroupBox("Custom style");
  auto* customLayout = new QHBoxLayout(custom);
  customName_ = Line("customName");
  classOption_ = new QRadioButton("Class");
  classOption_->setObjectName("classOption");
  classOption_->setChecked(true);
  idOption_ = new QRadioButton("ID");
  idOption_->setObjectName("idOption");
  customLayout->addWidget(customName_, 1);
  customLayout->addWidget(classOption_);
  customLayout->addWidget(idOption_);
  layout->addWidget(custom);
  auto update = [this] {
    htmlElements_->setEnabled(htmlElementOption_->isChecked());
    customName_->setEnabled(customOption_->isChecked());
    classOption_->setEnabled(customOption_->isChecked());
    idOption_->setEnabled(customOption_->isChecked());
  };
  connect(htmlElementOption_, &QRadioButton::toggled, this, update);
  update();
  return page;
}

QWidget* StyleEditorDialog::BuildFormattingPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  font_ = Combo("fontCombo", kStyleFonts);
  auto* moreFonts = new QPushButton("more");
  moreFonts->setObjectName("moreFontsButton");
  connect(moreFonts, &QPushButton::clicked, this, [this, moreFonts] {
    const QString typed = font_->currentText();
    for (const QString& family : QFontDatabase::families())
      if (font_->findText(family) < 0) font_->addItem(family);
    font_->setEditText(typed);
    moreFonts->setEnabled(false);
  });
  form->addRow("Font:", Row(font_, moreFonts));
  fontSize_ = Combo("fontSizeCombo", kStyleSizes);
  fontSizeUnit_ = UnitCombo("fontSizeUnitCombo", "pt");
  form->addRow("Text Size:", Row(fontSize_, fontSizeUnit_));
  fontColor_ = Line("fontColorText");
  fontColorSelect_ = new QPushButton("Select");
  fontColorSelect_->setObjectName("fontColorSelect");
  connect(fontColorSelect_, &QPushButton::clicked, this,
          [this] { PickInto(fontColor_, fontColorSelect_); });
  form->addRow("Text Color:", Row(fontColor_, fontColorSelect_));
  fontCase_ = Combo("fontCaseCombo", kStyleCases);
  form->addRow("Case:", fontCase_);
  auto* styles = new QHBoxLayout;
  bold_ = Check("boldCheck", "Bold");
  italic_ = Check("italicCheck", "Italic");
  smallCaps_ = Check("smallCapsCheck", "Small Caps");
  for (QWidget* w : {bold_, italic_, smallCaps_}) styles->addWidget(w);
  styles->addStretch();
  form->addRow("", styles);
  auto* lines = new QHBoxLayout;
  underline_ = Check("underlineCheck", "Underline");
  overline_ = Check("overlineCheck", "Overline");
  strikethrough_ = Check("strikethroughCheck", "Strikethrough");
  for (QWidget* w : {underline_, overline_, strikethrough_}) lines->addWidget(w);
  lines->addStretch();
  form->addRow("", lines);
  return page;
}

QWidget* StyleEditorDialog::BuildLayoutPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  verticalAlign_ = Combo("verticalAlignCombo", kStyleVerticalAligns);
  form->addRow("Vertical Alignment:", verticalAlign_);
  horizontalAlign_ = Combo("horizontalAlignCombo", kStyleHorizontalAligns);
  form->addRow("Horizontal Alignment:", horizontalAlign_);
  indent_ = Line("indentText");
  indentUnit_ = UnitCombo("indentUnitCombo", "px");
  form->addRow("Indent:", Row(indent_, indentUnit_));
  lineHeight_ = Combo("lineHeightCombo", kStyleSizes);
  lineHeightUnit_ = UnitCombo("lineHeightUnitCombo", "pt");
  form->addRow("Line Height:", Row(lineHeight_, lineHeightUnit_));
  std::vector<std::string> spacings;
  for (int i = -5; i <= 10; ++i) spacings.push_back(std::to_string(i));
  std::vector<const char*> spacingItems;
  for (const std::string& s : spacings) spacingItems.push_back(s.c_str());
  letterSpacing_ = Combo("letterSpacingCombo", spacingItems);
  letterSpacingUnit_ = UnitCombo("letterSpacingUnitCombo", "pt");
  form->addRow("Letter Spacing:", Row(letterSpacing_, letterSpacingUnit_));
  return page;
}

QWidget* StyleEditorDialog::BuildBackgroundPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  backgroundColor_ = Line("backgroundColorText");
  backgroundColorSelect_ = new QPushButton("Select");
  backgroundColorSelect_->setObjectName("backgroundColorSelect");
  connect(backgroundColorSelect_, &QPushButton::clicked, this,
          [this] { PickInto(backgroundColor_, backgroundColorSelect_); });
  form->addRow("Background Color:", Row(backgroundColor_, backgroundColorSelect_));
  backgroundImage_ = Line("backgroundImageText");
  auto* browse = new QPushButton("Browse...");
  browse->setObjectName("browseButton");
  connect(browse, &QPushButton::clicked, this, [this] {
    if (auto path = BrowseBackgroundImage(app_)) backgroundImage_->setText(Q(*path));
  });
  form->addRow("Background Image:", Row(backgroundImage_, browse));
  backgroundTile_ = Combo("backgroundTileCombo", kStyleTiles);
  form->addRow("Tile the background image:", backgroundTile_);
  return page;
}

QWidget* StyleEditorDialog::BuildPositioningPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout(page);
  height_ = Line("heightText");
  heightUnit_ = UnitCombo("heightUnitCombo", "px");
  form->addRow("Height:", Row(height_, heightUnit_));
  width_ = Line("widthText");
  widthUnit_ = UnitCombo("widthUnitCombo", "px");
  form->addRow("Width:", Row(width_, widthUnit_));
  left_ = Line("leftText");
  leftUnit_ = UnitCombo("leftUnitCombo", "px");
  form->addRow("Left:", Row(left_, leftUnit_));
  top_ = Line("topText");
  topUnit_ = UnitCombo("topUnitCombo", "px");
  form->addRow("Top:", Row(top_, topUnit_));
  position_ = Combo("positionCombo", kStylePositions);
  form->addRow("Position:", position_);
  visibility_ = Combo("visibilityCombo", kStyleVisibilities);
  form->addRow("Visibility:", visibility_);
  const char* const zIndexes[] = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
  zIndex_ = Combo("zIndexCombo", zIndexes);
  form->addRow("Z-index:", zIndex_);
  return page;
}

QWidget* StyleEditorDialog::BuildPreviewPage() {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  auto* text = new QLabel("Click Preview to see your style in the browser.");
  text->setWordWrap(true);
  layout->addWidget(text);
  auto* preview = new QPushButton("&Preview");
  preview->setObjectName("previewButton");
  connect(preview, &QPushButton::clicked, this, &StyleEditorDialog::Preview);
  auto* row = new QHBoxLayout;
  row->addWidget(preview);
  row->addStretch();
  layout->addLayout(row);
  layout->addStretch();
  return page;
}

void StyleEditorDialog::ShowPropertyPages(bool show) {
  pages_->setCurrentIndex(show ? 1 : 0);
  okButton_->setEnabled(show);
  nextButton_->setText(show ? "<< &Previous" : "&Next >>");
  if (show) {
    propertyTabs_->setCurrentIndex(0);
    font_->setFocus();
  }
}

void StyleEditorDialog::NextOrPrevious() {
  if (pages_->currentIndex() == 1) {
    ShowPropertyPages(false);
    return;
  }
  if (const CheckResult failed = ValidateStyleName(Fields())) {
    app_.messages.Show(failed->message, MsgButtons::OK, MsgIcon::Exclamation, app_.title);
    if (auto* w = findChild<QWidget*>(Q(failed->field))) w->setFocus();
    return;
  }
  ShowPropertyPages(true);
}

void StyleEditorDialog::OnOK() {
  if (StyleEditorOK(app_, mode_, Fields(), managerSelection_, &added_)) accept();
}

void StyleEditorDialog::Preview() {
  std::string name = ".test";
  if (mode_ == kAddStyleToDocument || mode_ == kAddManagedStyle) name = GetStyleSelector(Fields());
  if (mode_ == kEditManagedStyle) name = managerSelection_;
  ShowStylePreview(app_, StylePreviewPage(name, BuildStyleDefinition(Fields(), true)));
}

void StyleEditorDialog::PickInto(QLineEdit* box, QPushButton* swatch) {
  const std::optional<std::string> hex = PickStyleColor(app_);
  if (!hex) return;
  box->setText(Q(*hex));
  swatch->setStyleSheet("background-color: #" + Q(*hex) + ";");
}

StyleEditorFields StyleEditorDialog::Fields() const {
  StyleEditorFields f;
  f.customName = customOption_->isChecked();
  if (const auto selected = htmlElements_->selectedItems(); !selected.isEmpty())
    f.htmlElement = S(selected.front()->text());
  f.customText = Text(customName_);
  f.idSelector = idOption_->isChecked();
  f.font = Text(font_);
  f.fontSize = Text(fontSize_);
  f.fontSizeUnit = Text(fontSizeUnit_);
  f.fontColor = Text(fontColor_);
  f.fontCase = Text(fontCase_);
  f.bold = bold_->isChecked();
  f.italic = italic_->isChecked();
  f.smallCaps = smallCaps_->isChecked();
  f.underline = underline_->isChecked();
  f.overline = overline_->isChecked();
  f.strikethrough = strikethrough_->isChecked();
  f.verticalAlign = Text(verticalAlign_);
  f.horizontalAlign = Text(horizontalAlign_);
  f.indent = Text(indent_);
  f.indentUnit = Text(indentUnit_);
  f.lineHeight = Text(lineHeight_);
  f.lineHeightUnit = Text(lineHeightUnit_);
  f.letterSpacing = Text(letterSpacing_);
  f.letterSpacingUnit = Text(letterSpacingUnit_);
  f.backgroundColor = Text(backgroundColor_);
  f.backgroundImage = Text(backgroundImage_);
  f.backgroundTile = Text(backgroundTile_);
  f.height = Text(height_);
  f.heightUnit = Text(heightUnit_);
  f.width = Text(width_);
  f.widthUnit = Text(widthUnit_);
  f.left = Text(left_);
  f.leftUnit = Text(leftUnit_);
  f.top = Text(top_);
  f.topUnit = Text(topUnit_);
  f.position = Text(position_);
  f.visibility = Text(visibility_);
  f.zIndex = Text(zIndex_);
  return f;
}

void StyleEditorDialog::SetFields(const StyleEditorFields& f) {
  customOption_->setChecked(f.customName);
  htmlElementOption_->setChecked(!f.customName);
  const auto found = htmlElements_->findItems(Q(f.htmlElement), Qt::MatchExactly);
  if (!found.isEmpty()) htmlElements_->setCurrentItem(found.front());
  Set(customName_, f.customText);
  idOption_->setChecked(f.idSelector);
  classOption_->setChecked(!f.idSelector);
  Set(font_, f.font);
  Set(fontSize_, f.fontSize);
  Set(fontSizeUnit_, f.fontSizeUnit);
  Set(fontColor_, f.fontColor);
  Set(fontCase_, f.fontCase);
  bold_->setChecked(f.bold);
  italic_->setChecked(f.italic);
  smallCaps_->setChecked(f.smallCaps);
  underline_->setChecked(f.underline);
  overline_->setChecked(f.overline);
  strikethrough_->setChecked(f.strikethrough);
  Set(verticalAlign_, f.verticalAlign);
  Set(horizontalAlign_, f.horizontalAlign);
  Set(indent_, f.indent);
  Set(indentUnit_, f.indentUnit);
  Set(lineHeight_, f.lineHeight);
  Set(lineHeightUnit_, f.lineHeightUnit);
  Set(letterSpacing_, f.letterSpacing);
  Set(letterSpacingUnit_, f.letterSpacingUnit);
  Set(backgroundColor_, f.backgroundColor);
  Set(backgroundImage_, f.backgroundImage);
  Set(backgroundTile_, f.backgroundTile);
  Set(height_, f.height);
  Set(heightUnit_, f.heightUnit);
  Set(width_, f.width);
  Set(widthUnit_, f.widthUnit);
  Set(left_, f.left);
  Set(leftUnit_, f.leftUnit);
  Set(top_, f.top);
  Set(topUnit_, f.topUnit);
  Set(position_, f.position);
  Set(visibility_, f.visibility);
  Set(zIndex_, f.zIndex);
}

void StyleEditorDialog::LoadStyle(const CSSstyle& style) {
  StyleEditorFields f = Fields();
  LoadStyleControls(f, style);
  SetFields(f);
}

}  // namespace tessarine::ui
