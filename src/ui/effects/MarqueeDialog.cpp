#include "ui/effects/MarqueeDialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "conventions/TagConventions.h"
#include "core/Application.h"

namespace tessarine::ui {

namespace {

QComboBox* Combo(const char* name, const std::vector<std::string>& items, const char* initial) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  for (const std::string& item : items) c->addItem(Q(item));
  c->setCurrentIndex(initial ? c->findText(initial) : -1);
  return c;
}

// A field with its unit behind it.
QWidget* WithUnit(QWidget* field, const char* unit) {
  auto* box = new QWidget;
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(field);
  row->addWidget(new QLabel(unit));
  row->addStretch();
  return box;
}

QLineEdit* Field(const char* name) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  e->setMaximumWidth(80);
  return e;
}

}  // namespace

MarqueeDialog::MarqueeDialog(Application& app, QWidget* parent)
    : EffectDialog(app, "MarqueeDialog", "Marquee Text Ticker", parent) {
  auto* layout = new QVBoxLayout(this);
  AddHeading(layout, "Marquee Text Ticker",
             "Use this to create scrolling text on your Web page.  Only Internet Explorer "
             "supports this MARQUEE tag.");
  marqueeText_ = new QLineEdit;
  marqueeText_->setObjectName("marqueeText");
  layout->addWidget(new QLabel("Text to scroll:"));
  layout->addWidget(marqueeText_);

  auto* grid = new QGridLayout;
  directionCombo_ = Combo("directionCombo", MarqueeDirections(), "Left to Right");
  behaviorCombo_ = Combo("behaviorCombo", MarqueeBehaviors(), nullptr);
  loopCombo_ = Combo("loopCombo", MarqueeLoops(), "Infinite");
  alignmentCombo_ = Combo("alignmentCombo", MarqueeAlignments(), nullptr);
  widthText_ = Field("widthText");
  heightText_ = Field("heightText");
  vspaceText_ = Field("vspaceText");
  hspaceText_ = Field("hspaceText");
  scrollAmountText_ = Field("scrollAmountText");
  scrollDelayText_ = Field("scrollDelayText");
  backgroundColorText_ = Field("backgroundColorText");
  const std::pair<const char*, QWidget*> left[] = {
      {"Direction:", directionCombo_},
      {"Behavior:", behaviorCombo_},
      {"Loop:", loopCombo_},
      {"Alignment:", alignmentCombo_},
      {"ScrollAmount:", WithUnit(scrollAmountText_, "pixels")},
      {"ScrollDelay:", WithUnit(scrollDelayText_, "milliseconds")}};
  const std::pair<const char*, QWidget*> right[] = {{"Width (pixels):", widthText_},
                                                    {"Height (pixels):", heightText_},
                                                    {"Vspace:", vspaceText_},
                                                    {"Hspace:", hspaceText_},
                                                    {"Background Color:", backgroundColorText_}};
  int row = 0;
  for (const auto& [label, field] : left) {
    grid->addWidget(new QLabel(label), row, 0);
    grid->addWidget(field, row++, 1);
  }
  row = 0;
  for (const auto& [label, field] : right) {
    grid->addWidget(new QLabel(label), row, 2);
    grid->addWidget(field, row++, 3);
  }
  auto* selectColor = new QPushButton("Select Color");
  selectColor->setObjectName("selectColorButton");
  selectColor->setAutoDefault(false);
  grid->addWidget(selectColor, row, 3);
  layout->addLayout(grid);
  connect(selectColor, &QPushButton::clicked, this, [this] {
    PickColor(app_);
    if (!app_.wizards.ColorCancelled) backgroundColorText_->setText(Q(app_.wizards.PickedColorHex));
  });

  AddButtons(layout, "okButton", [this] {
    const tessarine::Marquee m = Model();
    if (Refuse(m.Validate())) return false;
    app_.wizards.HeadInsert.clear();
    app_.wizards.BodyInsert = m.Build(TagCaseUpper(app_) == 1);
    return true;
  });
  setMinimumWidth(480);
}

tessarine::Marquee MarqueeDialog::Model() const {
  tessarine::Marquee m;
  m.text = S(marqueeText_->text());
  m.direction = S(directionCombo_->currentText());
  m.behavior = S(behaviorCombo_->currentText());
  m.loop = S(loopCombo_->currentText());
  m.alignment = S(alignmentCombo_->currentText());
  m.width = S(widthText_->text());
  m.height = S(heightText_->text());
  m.vspace = S(vspaceText_->text());
  m.hspace = S(hspaceText_->text());
  m.scrollAmount = S(scrollAmountText_->text());
  m.scrollDelay = S(scrollDelayText_->text());
  m.backgroundColor = S(backgroundColorText_->text());
  return m;
}

}  // namespace tessarine::ui
